#include "fuzz/formatos.h"

#include "comum/arquivo_texto.h"

#include <algorithm>
#include <cstdint>
#include <map>

#include <unistd.h>

namespace varenta::fuzz {
namespace {

constexpr std::string_view marca = "\xEF\xBB\xBF";

ArquivoNaMemória& arquivo() {
    static ArquivoNaMemória arquivo;
    return arquivo;
}

/// What of the screen a file has made.
struct Resultado {
    bool lido;
    std::string foto;
    std::vector<std::string> caderno;
};

/// The person is asked and told in this order, and of a refusal once; nothing ends in a run-time error.
void conferirCaderno(bool lido) {
    exigir(caderno.size() >= 2 && caderno[0].starts_with("pergunta: ") && caderno[1].starts_with("abrir: "),
           "the question and the dialog don't come first");
    if (lido) return exigir(caderno.size() == 2, "a file that is read isn't spoken of");
    exigir(caderno.size() == 3 && caderno[2].starts_with("mensagem: "), "a refusal is one message");
}

Resultado abrirSobreATela(const Formato& formato, const std::string& caminho,
                          const std::optional<Linhas>& linhas) {
    caderno.clear();
    caminhoParaAbrir = caminho;
    formato.abrir();
    const bool lido = formato.conferir(linhas);
    conferirCaderno(lido);
    return {lido, formato.fotografar(), caderno};
}

Resultado abrirSobreATela(const Formato& formato, std::string_view bytes) {
    return abrirSobreATela(formato, arquivo().gravar(bytes), linhasDe(decodificar(bytes)));
}

void começar(const Formato& formato) {
    recomeçar();
    formato.tela.mostrar();
    formato.digitar();
}

Resultado abrir(const Formato& formato, std::string_view bytes) {
    começar(formato);
    return abrirSobreATela(formato, bytes);
}

void exigirMesmo(const Resultado& um, const Formato& formato, std::string_view bytes, const char* quando) {
    const auto outro = abrir(formato, bytes);
    exigirIguais(um.foto, outro.foto, quando);
    exigir(um.caderno == outro.caderno, quando);
}

std::string comFinsDeLinha(std::string_view texto, std::string_view fim) {
    std::string outro;
    for (const char c : texto) {
        if (c == '\n')
            outro += fim;
        else
            outro += c;
    }
    return outro;
}

/// LF and CR LF, for a text whose lines hold no CR themselves.
void tentarFinsDeLinha(const Formato& formato, std::string_view bytes) {
    std::string texto{bytes};
    std::erase(texto, '\r');
    exigirMesmo(abrir(formato, texto), formato, comFinsDeLinha(texto, "\r\n"), "with CR LF");
}

/// A byte order mark, and UTF-8 in place of Windows-1252.
void tentarMarca(const Formato& formato, std::string_view bytes) {
    const auto texto = decodificar(bytes);
    if (texto.starts_with(marca)) return;
    const auto semMarca = abrir(formato, bytes);
    exigirMesmo(semMarca, formato, std::string{marca} + texto, "with a byte order mark");
    exigirMesmo(semMarca, formato, texto, "in UTF-8");
}

void tentarSemÚltimoFim(const Formato& formato, std::string_view bytes) {
    std::string texto{bytes};
    while (texto.ends_with('\n') || texto.ends_with('\r')) texto.pop_back();
    if (decodificar(texto).empty()) return;
    exigirMesmo(abrir(formato, texto), formato, texto + '\n', "with a last line end");
}

/// The state that the good file makes of a screen as new.
const Resultado& resultadoDoBom(const Formato& formato) {
    static std::map<const Formato*, Resultado> resultados;
    const auto [lugar, novo] = resultados.try_emplace(&formato);
    if (novo) {
        lugar->second = abrir(formato, formato.bom);
        exigir(lugar->second.lido, "the good file isn't read");
    }
    return lugar->second;
}

/// Saves what was read, where the screen admits it, and reads it back.
void tentarSalvar(const Formato& formato, const Resultado& lido) {
    const auto salvo = formato.salvar();
    if (salvo.empty()) return;
    const auto relido = abrirSobreATela(formato, salvo);
    exigirIguais(lido.foto, relido.foto, "after it was saved and read back");
}

void tentarDepois(const Formato& formato, std::string_view bytes, bool tudo) {
    const auto& bom = resultadoDoBom(formato);
    const auto primeiro = abrir(formato, bytes);
    if (primeiro.lido) tentarSalvar(formato, primeiro);
    if (primeiro.lido && !tudo) return;
    const auto depois = abrirSobreATela(formato, formato.bom);
    exigir(depois.lido, "a good file isn't read afterwards");
    exigirIguais(bom.foto, depois.foto, "after another file");
}

/// Whether the header asks for so large a grid that the trial would take as long as a thousand others.
bool demora(const Formato& formato, std::string_view bytes) {
    constexpr double muitasCélulas = 2000;
    if (formato.contagens.empty()) return false;
    const auto linhas = linhasDe(decodificar(bytes));
    double células = 1;
    for (const auto contagem : formato.contagens)
        if (contagem < linhas.size()) células *= númeroDe(linhas[contagem]).value_or(1);
    return células > muitasCélulas;
}

std::uint32_t soma(std::string_view bytes) {
    std::uint32_t soma = 2'166'136'261u;
    for (const char c : bytes) soma = (soma ^ static_cast<unsigned char>(c)) * 16'777'619u;
    return soma ^ soma >> 16;
}

} // namespace

std::string salvarCom(const std::function<void()>& pressionar) {
    const auto caminho = caminhoParaSalvar();
    ::unlink(caminho.c_str());
    caderno.clear();
    pressionar();
    exigir(caderno.size() == 1, "a save asks for a name, or is refused by one message");
    if (caderno[0].starts_with("mensagem: ")) return {};
    exigir(caderno[0].starts_with("salvar: "), "a save asks for a name");
    auto salvo = bytesDoArquivo(caminho);
    exigir(!salvo.empty(), "nothing was saved");
    return salvo;
}

bool abrirCaminho(const Formato& formato, const std::string& caminho, const std::optional<Linhas>& linhas) {
    começar(formato);
    return abrirSobreATela(formato, caminho, linhas).lido;
}

void experimentarArquivo(const Formato& formato, std::string_view bytes, bool tudo) {
    resultadoDoBom(formato);
    if (!tudo && demora(formato, bytes)) return;
    const auto escolha = soma(bytes) % 8;
    if (!tudo && escolha >= 5) abrir(formato, bytes);
    if (tudo || escolha == 0) tentarFinsDeLinha(formato, bytes);
    if (tudo || escolha == 1) tentarMarca(formato, bytes);
    if (tudo || escolha == 2) tentarSemÚltimoFim(formato, bytes);
    if (tudo || escolha == 3 || escolha == 4) tentarDepois(formato, bytes, tudo);
}

void experimentarRadial(std::string_view bytes, bool tudo) {
    experimentarArquivo(formatoRadial(), bytes, tudo);
}
void experimentarCampo(std::string_view bytes, bool tudo) {
    experimentarArquivo(formatoDeCampo(), bytes, tudo);
}
void experimentarMalha(std::string_view bytes, bool tudo) {
    experimentarArquivo(formatoDeMalha(), bytes, tudo);
}
void experimentarMovel(std::string_view bytes, bool tudo) {
    experimentarArquivo(formatoMóvel(), bytes, tudo);
}
void experimentarParametros(std::string_view bytes, bool tudo) {
    experimentarArquivo(formatoDeParâmetros(), bytes, tudo);
}

} // namespace varenta::fuzz
