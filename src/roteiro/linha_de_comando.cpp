#include "roteiro/linha_de_comando.h"

#include "comum/erro_execucao.h"
#include "roteiro/interprete.h"
#include "simulacao/nucleo/largura.h"

#include <algorithm>
#include <ostream>

namespace varenta {
namespace {

constexpr int usoErrado = 2;
constexpr std::string_view opçãoDeProgresso = "--progresso";

constexpr const char* uso = "uso: varenta-roteiro [--progresso] ARQUIVO…\n"
                            "Executa cada roteiro contra o sistema recém-iniciado; - é a entrada padrão.\n"
                            "\n"
                            "  --progresso  imprime também os passos dos ajustes\n"
                            "  --help       mostra esta ajuda e termina\n"
                            "  --version    mostra a versão e termina\n";

bool éOpção(const std::string& argumento) { return argumento.starts_with('-') && argumento != "-"; }

} // namespace

int executarLinhaDeComando(const std::vector<std::string>& argumentos, std::istream& entrada,
                           std::ostream& saída, std::ostream& erros) {
    const auto tem = [&](std::string_view opção) { return std::ranges::count(argumentos, opção) > 0; };
    if (tem("--help")) {
        saída << uso;
        return saída.flush() ? Interprete::concluído : Interprete::falha;
    }
    if (tem("--version")) {
        saída << "varenta-roteiro " VARENTA_VERSAO "\n";
        return saída.flush() ? Interprete::concluído : Interprete::falha;
    }
    std::vector<std::string> arquivos;
    std::ranges::remove_copy_if(argumentos, std::back_inserter(arquivos), éOpção);
    const bool opçõesConhecidas = std::ranges::all_of(
        argumentos, [](const std::string& a) { return !éOpção(a) || a == opçãoDeProgresso; });
    if (arquivos.empty() || !opçõesConhecidas) {
        erros << uso;
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
