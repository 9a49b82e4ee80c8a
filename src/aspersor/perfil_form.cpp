#include "aspersor/perfil_form.h"

#include "aspersor/arquivo_radial.h"
#include "aspersor/avancar_perfil_form.h"
#include "aspersor/desenho_coletores.h"
#include "aspersor/perfil.h"
#include "comum/ajuda.h"
#include "comum/arquivos_de_dados.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/verificacoes.h"

#include <algorithm>

namespace varenta {
namespace {

/// The unit of the readings decides the header, and which of the two boxes it needs. Both begin empty.
void escolherUnidade(const char* cabeçalho, bool comTempo, bool comDiâmetro) {
    auto& f = *perfilForm.operator->();
    f.flexGrid.formato(cabeçalho);
    f.Text4.visivel = f.Label4.visivel = comTempo;
    f.Text3.visivel = f.Label3.visivel = comDiâmetro;
    definirTexto(f.Text3, "");
    definirTexto(f.Text4, "");
    nomearCélula(perfilForm_planilha());
}

/// The entry line is in sight while the grid is typed into; the number of data is only free then, too.
void mostrarEntrada(bool mostrada) {
    auto& f = *perfilForm.operator->();
    f.Text6.visivel = f.Label6.visivel = f.Label7.visivel = f.Text5.habilitado = mostrada;
}

/// Gives the grid so many rows of data. "12" becomes "13" by way of "1": rows that go are kept until the
/// number grows again. Where the change fails halfway no row is lost: the new grid takes the old one's place
/// when it is whole.
void mudarNúmeroDeDados(int dados) {
    auto& f = *perfilForm.operator->();
    auto pontos = pontosDaGrade(f.flexGrid);
    pontos.insert(pontos.end(), f.recolhidas.begin(), f.recolhidas.end());
    pontos.resize(std::max(pontos.size(), static_cast<std::size_t>(dados)));
    auto grade = f.flexGrid;
    grade.dimensionar(dados + 1, grade.colunas);
    for (int l = 1; l <= dados; ++l) {
        const auto& [r, leitura] = pontos[static_cast<std::size_t>(l - 1)];
        grade.escrever(l, 0, std::to_string(l));
        grade.escrever(l, 1, r);
        grade.escrever(l, 2, leitura);
    }
    pontos.erase(pontos.begin(), pontos.begin() + dados);
    dimensionar(perfilForm_planilha(), grade.linhas, grade.colunas);
    f.flexGrid = std::move(grade);
    f.recolhidas = std::move(pontos);
}

/// The distances that the grid holds so far.
std::vector<double> distâncias(const Grade& grade) {
    std::vector<double> distâncias;
    for (int l = 1; l < grade.linhas; ++l)
        if (const auto& texto = grade.célula(l, 1); éNumérico(texto)) distâncias.push_back(lerEstrito(texto));
    return distâncias;
}

} // namespace

void perfilForm_flexGrid_Change() {
    auto& f = *perfilForm.operator->();
    f.lblPreenchidas.texto = textoDePreenchidas(f.flexGrid);
    desenharLinhaDeColetores(f.Picture1, distâncias(f.flexGrid));
}

Planilha perfilForm_planilha() {
    auto& f = *perfilForm.operator->();
    return {.grade = f.flexGrid,
            .entrada = f.Text6,
            .nomeDaCélula = f.Label6,
            .contagem = &f.Text5,
            .digitação = f.Text6.visivel,
            .padrãoDaColuna = [](int coluna) -> std::string_view { return coluna == 1 ? "0.00" : "0.000"; },
            .aoMudar = perfilForm_flexGrid_Change};
}

void perfilForm_Load() {
    associarAjuda();
    perfilForm_Option5_Click();
    definirTexto(perfilForm->Text5, std::to_string(perfilForm->flexGrid.linhas - 1));
}

void perfilForm_Fechar() {
    perfilForm.descarregar();
    voltarAoMenu();
}

void perfilForm_Option5_Click() { escolherUnidade(cabeçalhoEmMmPorHora, false, false); }

void perfilForm_Option4_Click() {
    escolherUnidade("^No   |^ Distância - r (m) |^ Intensidade - i (mm)    ", true, false);
}

void perfilForm_Option3_Click() {
    escolherUnidade("^No   |^ Distância - r (m) |^ Intensidade - i (ml)      ", true, true);
}

void perfilForm_Option1_Click() {
    voltarADigitar(perfilForm_planilha());
    mostrarEntrada(true);
    perfilForm.ponteiro = Ponteiro::padrão;
}

void perfilForm_Option2_Click() {
    abrirOuVoltar(
        [] {
            sairDaCélula(perfilForm_planilha());
            mostrarEntrada(false);
            return abrirArquivoRadial();
        },
        [] {
            marcar(perfilForm, perfilForm->Option1);
            focar(perfilForm->Option1);
        });
}

void perfilForm_Text5_Change() {
    auto& f = *perfilForm.operator->();
    if (!éNumérico(f.Text5.texto)) return;
    const double pedidos = lerEstrito(f.Text5.texto);
    if (const auto recusa = recusaDoTamanho(pedidos, f.flexGrid.colunas - 1); !recusa.empty()) {
        recusar(f.Text5, recusa.c_str());
        return;
    }
    if (pedidos <= 0 || paraInteiro(pedidos) == 0) {
        recusar(f.Text5, "O valor deve ser maior que zero!");
        return;
    }
    sairDaCélula(perfilForm_planilha());
    mudarNúmeroDeDados(paraInteiro(pedidos));
    nomearCélula(perfilForm_planilha());
    perfilForm_flexGrid_Change();
}

bool perfilForm_Text6_KeyPress(int tecla) { return teclar(perfilForm_planilha(), tecla); }

void perfilForm_Command1_Click() {
    auto& f = *perfilForm.operator->();
    esvaziarDados(f.flexGrid);
    f.recolhidas.clear();
    perfilForm_flexGrid_Change();
    for (auto* caixa : {&f.Text7, &f.Text9, &f.Text1, &f.Text2, &f.Text4, &f.Text3, &f.Text8, &f.Text6})
        definirTexto(*caixa, "");
    marcar(perfilForm, f.Option1);
}

void perfilForm_Command4_Click() {
    if (const auto texto = textoDoArquivoRadial()) salvarArquivoDeDados(*texto, falhaAoSalvarDados);
}

void perfilForm_Command8_Click() {
    const auto medido = avançarPerfilForm();
    if (!medido) return;
    const auto& f = *perfilForm.operator->();
    mostrarNoPerfil(*medido, {.nome = f.Text7.texto,
                              .bocais = f.Text9.texto,
                              .pressão = f.Text2.texto,
                              .nomeDaPressão = "Pressão",
                              .vazão = f.Text1.texto,
                              .anguloJato = f.Text8.texto,
                              .padrãoDoRaio = "##0.000",
                              .divisor = 3});
    perfil->Command4.visivel = perfil->Command5.visivel = false;
    perfilForm.esconder();
    perfil.mostrar();
}

} // namespace varenta
