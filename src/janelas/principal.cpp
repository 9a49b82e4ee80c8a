#include "comum/arquivo_texto.h"
#include "comum/erro_execucao.h"
#include "janelas/aplicacao.h"
#include "janelas/janelas.h"
#include "janelas/roteiro_janelas.h"
#include "shell/sistema.h"
#include "simulacao/nucleo/largura.h"

#include <QStringList>

#include <iostream>
#include <optional>
#include <string_view>

namespace {

constexpr const char* uso =
    "Uso: varenta [ARQUIVO]\n"
    "     varenta --roteiro ARQUIVO [--imagens PASTA]\n"
    "Abre a janela principal ou, com ARQUIVO, as janelas onde esse roteiro as deixa.\n"
    "\n"
    "  --roteiro ARQUIVO  executa o roteiro pelas janelas e termina\n"
    "  --imagens PASTA    salva uma imagem da tela a cada \"mostrar Tela\"\n"
    "  --help             mostra esta ajuda e termina\n"
    "  --version          mostra a versão e termina\n";

/// What needs no display; true where that was all.
bool responderSemTela(int quantos, char** argumentos) {
    if (quantos != 2) return false;
    const std::string_view pedido{argumentos[1]};
    if (pedido == "--help")
        std::cout << uso;
    else if (pedido == "--version")
        std::cout << "varenta " VARENTA_VERSAO "\n";
    else
        return false;
    return true;
}

struct Argumentos {
    /// Opened for a person.
    QString arquivo;
    /// Run from its beginning to its end.
    QString roteiro;
    QString imagens;
};

/// Nothing where the command line can't be understood.
std::optional<Argumentos> lerArgumentos(const QStringList& palavras) {
    Argumentos lidos;
    if (palavras.size() == 2 && !palavras[1].startsWith(QLatin1Char{'-'})) {
        lidos.arquivo = palavras[1];
        return lidos;
    }
    for (qsizetype k = 1; k < palavras.size(); k += 2) {
        const auto valor = palavras.value(k + 1);
        if (valor.isEmpty()) return std::nullopt;
        if (palavras[k] == QLatin1String{"--roteiro"})
            lidos.roteiro = valor;
        else if (palavras[k] == QLatin1String{"--imagens"})
            lidos.imagens = valor;
        else
            return std::nullopt;
    }
    if (lidos.roteiro.isEmpty() && !lidos.imagens.isEmpty()) return std::nullopt;
    return lidos;
}

} // namespace

int main(int argc, char** argv) {
    varenta::falharNoLimiteDeTamanho();
    if (responderSemTela(argc, argv)) return std::cout.flush() ? 0 : 1;
    Aplicacao aplicação{argc, argv};
    const auto argumentos = lerArgumentos(Aplicacao::arguments());
    if (!argumentos) {
        std::cerr << uso;
        return 2;
    }
    try {
        varenta::larguraEmUso();
    } catch (const varenta::ErroExecucao& erro) {
        std::cerr << erro.what() << '\n';
        return 2;
    }
    Janelas janelas;
    if (!argumentos->roteiro.isEmpty())
        return executarNasJanelas(janelas, argumentos->roteiro, argumentos->imagens);
    if (!argumentos->arquivo.isEmpty())
        return abrirNasJanelas(janelas, argumentos->arquivo) ? Aplicacao::exec() : 0;
    varenta::iniciarSistema();
    janelas.atualizar();
    return Aplicacao::exec();
}
