#include "fuzz/formatos.h"

#include "comum/arquivo_texto.h"
#include "roteiro/interprete.h"
#include "roteiro/palavras.h"

#include <algorithm>
#include <fstream>
#include <sstream>

/// Scripts: what can't be read or is refused is told with its line, and nothing else happens.
namespace varenta::fuzz {
namespace {

/// More commands than these tell nothing new of the reader.
constexpr int maisComandos = 40;

struct Execução {
    int desfecho;
    std::string saída, erros;
    bool operator==(const Execução&) const = default;
};

/// The files that a script finds under these names, each time as new.
void guardarArquivos() {
    const auto guardar = [](const char* nome, const Formato& formato) {
        std::ofstream{pastaDeRascunho() + '/' + nome, std::ios::binary} << formato.bom;
    };
    guardar("radial.txt", formatoRadial());
    guardar("campo.txt", formatoDeCampo());
    guardar("malha.txt", formatoDeMalha());
    guardar("movel.txt", formatoMóvel());
    guardar("parametros.txt", formatoDeParâmetros());
}

Execução executar(const std::string& bytes) {
    std::istringstream entrada{bytes};
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    int comandos = 0;
    interprete.depoisDeCadaComando = [&] {
        if (++comandos == maisComandos) throw ErroDeRoteiro{"comandos demais"};
    };
    const int desfecho = interprete.executarFluxo(entrada);
    return {desfecho, saída.str(), erros.str()};
}

/// "-:LINE: reason", of a line that the script has.
void conferirQueixa(std::string_view queixa, std::size_t linhas) {
    exigir(queixa.starts_with("-:"), "a complaint without its file");
    queixa.remove_prefix(2);
    const auto fim = queixa.find(": ");
    exigir(fim != std::string_view::npos && fim + 2 < queixa.size(), "a complaint without a reason");
    const auto linha = númeroDe(queixa.substr(0, fim));
    exigir(linha && *linha >= 1 && *linha <= static_cast<double>(linhas), "a complaint of no line");
}

void conferir(const Execução& execução, const std::string& texto) {
    const auto queixas = linhasDe(execução.erros);
    const auto linhas = linhasDe(texto).size();
    exigir(execução.desfecho == Interprete::concluído || execução.desfecho == Interprete::erroNoRoteiro,
           "no such outcome");
    exigir(execução.desfecho == Interprete::concluído || queixas.size() == 1, "a stop is one complaint");
    for (const auto& queixa : queixas) conferirQueixa(queixa, linhas);
    exigir(execução.saída.empty() || execução.saída.ends_with('\n'), "an output line without its end");
}

std::string entreAspasDobradas(const std::string& palavra) {
    std::string texto{'"'};
    for (const char c : palavra) texto += c == '"' ? std::string{"\"\""} : std::string{c};
    return texto + '"';
}

/// Words written with quotes are the same words.
void conferirPalavras(std::string_view linha) {
    try {
        const auto palavras = separarPalavras(linha);
        std::string outra;
        for (const auto& palavra : palavras) outra += "\t " + entreAspasDobradas(palavra);
        exigir(separarPalavras(outra) == palavras, "words between quotes are other words");
    } catch (const ErroDeRoteiro&) {
    }
}

} // namespace

void experimentarRoteiro(std::string_view bytes, bool tudo) {
    static const bool guardados = (guardarArquivos(), true);
    exigir(guardados, "");
    recomeçar();
    std::string texto = decodificar(bytes);
    std::erase(texto, '\r');
    if (texto.starts_with("\xEF\xBB\xBF")) return;
    for (const auto& linha : linhasDe(texto)) conferirPalavras(linha);

    const auto execução = executar(texto);
    conferir(execução, texto);
    if (!tudo && bytes.size() % 4 != 0) return;
    std::string comCrLf = "\xEF\xBB\xBF";
    for (const char c : texto) comCrLf += c == '\n' ? std::string{"\r\n"} : std::string{c};
    exigir(execução == executar(comCrLf), "another run with a byte order mark and CR LF");
    while (texto.ends_with('\n')) texto.pop_back();
    if (texto.empty()) return;
    const auto semFim = executar(texto);
    exigir(semFim == executar(texto + '\n'), "another run without the last line end");
}

} // namespace varenta::fuzz
