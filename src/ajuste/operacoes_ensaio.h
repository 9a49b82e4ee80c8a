#pragma once

#include "ajuste/arquivo_ensaio.h"
#include "ajuste/controles_ensaio.h"
#include "ajuste/tela_de_ajuste.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

/// What the screens of both kinds of test do alike.
namespace varenta {

/// One test screen.
struct TelaDeEnsaio {
    TelaBase& tela;
    ControlesDeEnsaio& controles;
    int número;
};

/// The grid with its entry line: readings with three decimals.
Planilha planilhaDoEnsaio(ControlesDeEnsaio& controles);

/// Writes the wind's speed, and its bearing, which also draws the arrow.
void escreverVelocidadeDoVento(ControlesDeEnsaio& controles);
void escreverDireçãoDoVento(ControlesDeEnsaio& controles);

/// What the entry line holds goes to its cell, as Enter would send it, before the cells are read.
void confirmarEntrada(ControlesDeEnsaio& controles);

/// Typing is chosen: the entry line shows, with the current cell's text.
void escolherDigitação(ControlesDeEnsaio& controles);

/// Gives the grid its size, once what the entry line holds has gone to its cell.
void dimensionarPlanilha(ControlesDeEnsaio& controles, int linhas, int colunas);

/// Shows or hides the entry line with its labels.
void mostrarEntrada(ControlesDeEnsaio& controles, bool mostra);

/// Shows the diameter of the collector for readings in volume only, and empties it where that changes.
void mostrarDiâmetro(ControlesDeEnsaio& controles);

/// Whether the list shows a number of collectors or lines that a grid can be made of.
bool éContagem(const Lista& lista);

/// Whether headers have room for the spacing that the list shows, whatever it is besides.
bool cabeNosCabeçalhos(const Lista& lista);

/// Answers a list whose text is not accepted: tells so, and sets the text back to `padrão`.
void corrigirLista(Lista& lista, bool aceita, const char* padrão);

/// Empties all cells but the headers.
void esvaziarCélulas(Grade& grade);

/// Loads the test's screen for a sprinkler, writes that into it, leaves its set of buttons, and shows it.
void abrirEnsaio(const TelaDeEnsaio& ensaio, Aspersor aspersor);

/// Asks for a test file, empties the boxes that it fills, and lets `ler` read it; goes back to typing where
/// there is none to read.
void abrirArquivoDeEnsaio(const TelaDeEnsaio& ensaio, std::initializer_list<CaixaTexto*> caixas,
                          const std::function<void(const std::string&)>& ler);

/// Writes into a test's screen what a file says of the sprinkler, and its readings.
void escreverAspersorDoArquivo(ControlesDeEnsaio& controles, const ArquivoDeEnsaio& arquivo);
void escreverLeituras(Grade& grade, const std::vector<std::vector<std::string>>& leituras);

/// The lines of a test file that are the sprinkler's.
std::vector<std::string> linhasDoAspersor(const FichaDoAspersor& ficha);
/// Those of the readings in the first rows and columns of data.
std::vector<std::string> linhasDasLeituras(const Grade& grade, int linhas, int colunas);
/// All lines of these parts, each ended by CR LF but the last.
std::string unirLinhas(std::initializer_list<std::vector<std::string>> partes);

/// Asks for a name and writes the text of a test file.
void salvarArquivoDeEnsaio(const std::string& texto);

/// Empties all cells and the entry line, and goes back to typing.
void limparEnsaio(const TelaDeEnsaio& ensaio);

/// Hides the screen, which keeps its data, once the person has said Yes to the sprinkler's figures.
void fecharEnsaio(const TelaDeEnsaio& ensaio, Aspersor aspersor);
/// The same for the sprinkler whose buttons show.
void fecharEnsaio(const TelaDeEnsaio& ensaio);

/// Connects the handlers that both kinds have in common. `tela` gives the screen anew at every event.
template <TelaDeEnsaio (*tela)()>
void ligarEnsaio() {
    auto& c = tela().controles;
    c.HScroll2.aoMudar = c.HScroll2.aoRolar = [] { escreverVelocidadeDoVento(tela().controles); };
    c.HScroll1.aoMudar = c.HScroll1.aoRolar = [] { escreverDireçãoDoVento(tela().controles); };
    c.Option2.aoClicar = [] { escolherDigitação(tela().controles); };
    c.flex_A.planilha = [] { return planilhaDoEnsaio(tela().controles); };
    c.Text5.aoTeclar = [](int tecla) { return teclar(planilhaDoEnsaio(tela().controles), tecla); };
    c.Command2.aoClicar = [] { limparEnsaio(tela()); };
    c.Command5.aoClicar = [] { fecharEnsaio(tela(), Aspersor::doCatálogo); };
    c.Command4.aoClicar = [] { fecharEnsaio(tela(), Aspersor::outro); };
}

} // namespace varenta
