#include "macaco/exame.h"

#include "apoio/estado.h"
#include "comum/arquivo_texto.h"
#include "comum/atos.h"
#include "comum/tela.h"
#include "shell/sistema.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <vector>

#include <unistd.h>

namespace varenta::teste {
namespace {

/// The buttons and options that lead from the main window to where a kind of file is opened, the last of them
/// opening it.
struct Caminho {
    std::string_view tela;
    std::vector<std::string_view> cliques;
};

const std::array caminhos{
    Caminho{"PerfilForm", {"Form3.Ou_aspB", "PerfilForm.Option2"}},
    Caminho{"Perfil", {"Form3.Ou_aspB", "PerfilForm.Option2"}},
    Caminho{"Form_EC", {"Form3.EnsCampo", "Form_EC.Option2"}},
    Caminho{"Form_E", {"Form3.TX20c", "form_AjVen.Command4", "Form_E1.Option5"}},
    Caminho{"Form_MiE", {"Form3.TX20d", "form_AjVen.Command11", "Form_MiE1.Option5"}},
    Caminho{"form_AjVen", {"Form3.TX20B", "form1.Command3", "Form7.Command1"}},
};

void clicar(std::string_view nome) {
    const auto ponto = nome.find('.');
    auto* tela = telaDeNome(nome.substr(0, ponto));
    atos::clicar({tela, tela->achar(nome.substr(ponto + 1), std::nullopt).value()});
}

} // namespace

std::string exameDosRegistros(bool encerrado) {
    if (const auto onde = primeiroNãoFinito(); !onde.empty()) return "no number in " + onde;
    if (const auto onde = primeiroIncoerente(); !onde.empty()) return "contradiction in " + onde;
    bool à_vista = false;
    for (auto* tela : telasEmOrdem()) {
        if (!tela->carregada()) continue;
        à_vista = à_vista || (tela->visivel && tela->habilitada);
        if (tela->ponteiro == Ponteiro::ampulheta) return "hourglass left over " + tela->nome();
    }
    if (!à_vista && !encerrado) return "no screen in sight";
    return {};
}

std::string exameDoTextoSalvo(std::string_view texto) {
    constexpr std::string_view marca = "\xEF\xBB\xBF";
    if (texto.starts_with(marca)) texto.remove_prefix(marca.size());
    if (texto.find('\0') != std::string_view::npos) return "a NUL in a saved file";
    if (decodificar(texto) != texto) return "a saved file that is no UTF-8";
    if (nãoÉNúmero(texto)) return "no number in a saved file";
    return {};
}

std::string LeituraDeVolta::conferir(std::string_view tela, const std::string& caminho) {
    // The screens of one kind bear its name and a number.
    const auto tipo = tela.substr(0, tela.find_last_not_of("123") + 1);
    const auto* leitura = std::ranges::find(caminhos, tipo, &Caminho::tela);
    if (leitura == caminhos.end()) return {};
    preparar(caminho);
    for (const auto nome : leitura->cliques) clicar(nome);
    const auto recado = recados();
    return recado.empty() ? "" : "saved by " + std::string{tela} + " and refused: " + recado;
}

double memóriaResidente() {
    std::ifstream estado{"/proc/self/statm"};
    double páginas = 0, residentes = 0;
    estado >> páginas >> residentes;
    return residentes * static_cast<double>(::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

} // namespace varenta::teste
