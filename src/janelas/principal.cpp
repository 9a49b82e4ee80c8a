#include "comum/erro_execucao.h"
#include "janelas/aplicacao.h"
#include "janelas/janelas.h"
#include "janelas/roteiro_janelas.h"
#include "shell/sistema.h"
#include "simulacao/nucleo/largura.h"

#include <QStringList>

#include <iostream>
#include <optional>

namespace {

struct Argumentos {
    QString roteiro, imagens;
};

/// Nothing where the command line can't be understood.
std::optional<Argumentos> lerArgumentos(const QStringList& palavras) {
    Argumentos lidos;
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
    Aplicacao aplicação{argc, argv};
    const auto argumentos = lerArgumentos(Aplicacao::arguments());
    if (!argumentos) {
        std::cerr << "Uso: varenta [--roteiro ARQUIVO [--imagens PASTA]]\n";
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
    varenta::iniciarSistema();
    janelas.atualizar();
    return Aplicacao::exec();
}
