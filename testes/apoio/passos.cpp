#include "apoio/passos.h"

#include "apoio/plataforma_teste.h"
#include "comum/atos.h"
#include "roteiro/palavras.h"
#include "shell/sistema.h"

#include <filesystem>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace varenta::teste {
namespace {

TelaBase& telaDe(const std::string& nome) {
    auto* tela = telaDeNome(nome);
    if (!tela) throw std::logic_error{"no screen " + nome};
    return *tela;
}

/// The control "Tela.Controle" or "Tela.Controle(3)".
Alvo alvoDe(const std::string& palavra) {
    const auto ponto = palavra.find('.');
    auto& tela = telaDe(palavra.substr(0, ponto));
    auto nome = palavra.substr(ponto + 1);
    std::optional<int> índice;
    if (const auto parêntese = nome.find('('); parêntese != std::string::npos) {
        índice = lerInteiro(std::string_view{nome}.substr(parêntese + 1, nome.size() - parêntese - 2));
        nome.resize(parêntese);
    }
    if (!tela.carregada()) throw AtoRecusado{tela.nome() + " não está carregada"};
    return {&tela, tela.achar(nome, índice).value()};
}

using Palavras = std::vector<std::string>;
const std::map<std::string, void (*)(const Palavras&)> atosPorNome{
    {"clicar", [](const Palavras& p) { atos::clicar(alvoDe(p[1])); }},
    {"escolher", [](const Palavras& p) { atos::escolher(alvoDe(p[1]), p[2]); }},
    {"digitar",
     [](const Palavras& p) {
         atos::digitar(alvoDe(p[1]), p[2]);
         atos::confirmar();
     }},
    {"rolar", [](const Palavras& p) { atos::rolar(alvoDe(p[1]), lerInteiro(p[2])); }},
    {"arrastar", [](const Palavras& p) { atos::arrastar(alvoDe(p[1]), lerInteiro(p[2])); }},
    {"celula",
     [](const Palavras& p) {
         atos::preencherCélula(alvoDe(p[1]), lerInteiro(p[2]), lerInteiro(p[3]), p[4]);
     }},
    {"mover",
     [](const Palavras& p) {
         if (p.size() == 2)
             atos::moverMouse(telaDe(p[1]));
         else
             atos::moverMouse(alvoDe(p[1]), lerNúmero(p[2]), lerNúmero(p[3]));
     }},
    {"fechar", [](const Palavras& p) { atos::fechar(telaDe(p[1])); }},
};

} // namespace

std::vector<Passo> passosDe(const std::string& roteiro, const std::string& pasta) {
    std::vector<Passo> passos;
    Passo passo;
    std::istringstream linhas{roteiro};
    for (std::string linha; std::getline(linhas, linha);) {
        auto palavras = separarPalavras(linha);
        if (palavras.empty()) continue;
        if (palavras[0] == "responder") {
            passo.respostas.push_back(palavras[1] == "sim");
        } else if (palavras[0] == "arquivo") {
            if (palavras[1] == "cancelar")
                passo.arquivos.emplace_back();
            else
                passo.arquivos.emplace_back((std::filesystem::path{pasta} / palavras[1]).string());
        } else if (atosPorNome.contains(palavras[0])) {
            passo.palavras = std::move(palavras);
            passos.push_back(std::exchange(passo, {}));
        }
    }
    return passos;
}

void executar(const Passo& passo) {
    respostas.assign(passo.respostas.begin(), passo.respostas.end());
    arquivos.assign(passo.arquivos.begin(), passo.arquivos.end());
    atosPorNome.at(passo.palavras[0])(passo.palavras);
}

} // namespace varenta::teste
