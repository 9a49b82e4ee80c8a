#include "simulacao/arquivo_parametros.h"

#include "comum/arquivo_texto.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "comum/verificacoes.h"
#include "simulacao/form7.h"

#include <array>
#include <optional>

namespace varenta {
namespace {

bool pressãoForaDaFaixa(const std::string& texto) {
    const double p = lerEstrito(texto);
    return p < 30 || p > 70;
}

constexpr std::array verificaçõesDaPressão = {
    VerificaçãoDeTexto{nãoÉNumérico, "Valor de pressão inválido!"},
    VerificaçãoDeTexto{pressãoForaDaFaixa, "O valor de pressão deve estar entre 30 - 70 m.c.a.!"}};
constexpr std::array verificaçõesDaVazão = {VerificaçãoDeTexto{nãoÉNumérico, "Valor de vazão inválido!"},
                                            VerificaçãoDeTexto{nãoÉPositivo, "Valor de vazão inválido!"}};
constexpr std::array verificaçõesDoRaio = {
    VerificaçãoDeTexto{nãoÉNumérico, "Valor de raio de alcance inválido!"},
    VerificaçãoDeTexto{nãoÉPositivo, "Valor de raio de alcance inválido!"}};

/// The next line if its checks accept it; nothing after the message of the one that refuses it.
std::optional<std::string> próximaAceita(LeitorDeLinhas& leitor,
                                         std::span<const VerificaçãoDeTexto> verificações) {
    auto linha = leitor.próxima();
    const char* recusa = primeiraRecusa(verificações, linha);
    if (!recusa) return linha;
    plataforma::mensagem(recusa, leitor.onde());
    return std::nullopt;
}

void lerLinhas(LeitorDeLinhas& leitor) {
    auto& f = *form7.operator->();
    f.Label20.texto = "ASPERSOR: " + leitor.próxima();
    f.Label19.texto = "Bocais: " + leitor.próxima() + " mm";
    const auto pressão = próximaAceita(leitor, verificaçõesDaPressão);
    if (!pressão) return;
    f.Label18.texto = "Pressão: " + *pressão + " m.c.a.";
    const auto vazão = próximaAceita(leitor, verificaçõesDaVazão);
    if (!vazão) return;
    f.Label27.texto = "Vazão: " + Format(lerEstrito(*vazão), "0.00") + " m³/h";
    const auto raio = próximaAceita(leitor, verificaçõesDoRaio);
    if (!raio) return;
    f.Label28.texto = "Raio: " + Format(lerEstrito(*raio), "0.00") + " m";

    char letra = 'A';
    for (auto* caixa : {&f.Text2, &f.Text3, &f.Text4, &f.Text5, &f.Text6, &f.Text7}) {
        const auto mensagem = std::string{"Parâmetro "} + letra++ + " inválido!";
        const std::array verificações = {VerificaçãoDeTexto{nãoÉNumérico, mensagem.c_str()},
                                         VerificaçãoDeTexto{éVazio, mensagem.c_str()}};
        const auto valor = próximaAceita(leitor, verificações);
        if (!valor) return;
        definirTexto(*caixa, Format(lerEstrito(*valor), "0.0000"));
    }
}

} // namespace

void lerArquivoDeParametros(const std::string& caminho) {
    std::optional<LeitorDeLinhas> leitor;
    try {
        leitor.emplace(caminho);
    } catch (const ErroExecucao& e) {
        plataforma::mensagem(std::string{"O arquivo não pôde ser aberto: "} + e.what() + "!");
        return;
    }
    try {
        lerLinhas(*leitor);
    } catch (const ErroExecucao&) {
        // A file that ends early is answered like any other that can't be read to its end.
        plataforma::mensagem("O arquivo é muito grande!", leitor->onde());
    }
}

} // namespace varenta
