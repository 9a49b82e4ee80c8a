#include "roteiro/linha_de_comando.h"

#include "comum/erro_execucao.h"
#include "roteiro/interprete.h"
#include "simulacao/nucleo/largura.h"

#include <algorithm>
#include <ostream>

namespace varenta {
namespace {

constexpr int usoErrado = 2;

bool éOpção(const std::string& argumento) { return argumento.starts_with('-') && argumento != "-"; }

} // namespace

int executarLinhaDeComando(const std::vector<std::string>& argumentos, std::istream& entrada,
                           std::ostream& saída, std::ostream& erros) {
    static constexpr std::string_view opçãoDeProgresso = "--progresso";
    std::vector<std::string> arquivos;
    std::ranges::remove_copy_if(argumentos, std::back_inserter(arquivos), éOpção);
    const bool opçõesConhecidas = std::ranges::all_of(
        argumentos, [](const std::string& a) { return !éOpção(a) || a == opçãoDeProgresso; });
    if (arquivos.empty() || !opçõesConhecidas) {
        erros << "uso: varenta-roteiro [--progresso] ARQUIVO…\n"
                 "Executa cada roteiro contra o sistema recém-iniciado; - é a entrada padrão.\n";
        return usoErrado;
    }

    try {
        larguraEmUso();
    } catch (const ErroExecucao& erro) {
        erros << erro.what() << '\n';
        return usoErrado;
    }
    Interprete interprete{saída, erros};
    interprete.mostrarProgresso = std::ranges::count(argumentos, opçãoDeProgresso) > 0;
    int pior = Interprete::concluído;
    for (const auto& arquivo : arquivos)
        pior = std::max<int>(pior, arquivo == "-" ? interprete.executarFluxo(entrada)
                                                  : interprete.executarArquivo(arquivo));
    return pior;
}

} // namespace varenta
