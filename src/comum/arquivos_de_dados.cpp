#include "comum/arquivos_de_dados.h"

#include "comum/arquivo_texto.h"
#include "comum/erro_execucao.h"
#include "comum/plataforma.h"

namespace varenta {

std::optional<std::string> pedirArquivoDeDados() {
    auto caminho = plataforma::arquivoParaAbrir({.filtro = "Arquivos Texto (*.TXT)|*.TXT"});
    if (caminho && caminho->empty()) caminho.reset();
    return caminho;
}

void salvarArquivoDeDados(std::string_view texto, std::string_view falha, std::string_view fimDaFalha) {
    const auto caminho = plataforma::arquivoParaSalvar(
        {.filtro = "Text files|*.TXT|All files|*.*", .filtroInicial = 2, .extensãoPadrão = "TXT"});
    if (caminho && !caminho->empty()) gravarArquivoDeDados(*caminho, texto, falha, fimDaFalha);
}

void gravarArquivoDeDados(const std::string& caminho, std::string_view texto, std::string_view falha,
                          std::string_view fimDaFalha) {
    try {
        gravarTexto(caminho, texto);
    } catch (const ErroExecucao& e) {
        plataforma::mensagem(std::string{falha}.append(e.what()).append(fimDaFalha));
    }
}

void acrescentarLinha(std::string& texto, std::string_view linha) {
    texto += linha;
    texto += "\r\n";
}

std::string ouSubstituto(const std::string& texto, const char* substituto) {
    return texto.empty() ? substituto : texto;
}

std::vector<std::string> separarColunas(std::string_view linha) {
    std::vector<std::string> colunas;
    for (bool última = false; !última;) {
        const auto tabulação = linha.find('\t');
        última = tabulação == std::string_view::npos;
        colunas.emplace_back(linha.substr(0, tabulação));
        linha = última ? "" : linha.substr(tabulação + 1);
    }
    return colunas;
}

} // namespace varenta
