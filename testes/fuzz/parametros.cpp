#include "fuzz/formatos.h"

#include "simulacao/form7.h"

#include <array>

/// The sprinkler with its wind parameters of `Form7`.
namespace varenta::fuzz {
namespace {

std::array<CaixaTexto*, 6> caixas() {
    auto& f = *form7.operator->();
    return {&f.Text2, &f.Text3, &f.Text4, &f.Text5, &f.Text6, &f.Text7};
}

std::string_view entre(std::string_view texto, std::string_view começo, std::string_view fim) {
    exigir(texto.starts_with(começo) && texto.ends_with(fim) && texto.size() >= começo.size() + fim.size(),
           "a caption without its frame");
    return texto.substr(começo.size(), texto.size() - começo.size() - fim.size());
}

/// Follows the lines as the reader must, and holds each control against its line: written up to the first
/// line that doesn't do, as it was from there on.
class Conferência {
  public:
    explicit Conferência(const Linhas& linhas) : linhas_{linhas} {}

    /// The message that the file must be answered with; empty where it is read whole.
    std::string conferir() {
        auto& f = *form7.operator->();
        exato(f.Label20, "ASPERSOR: ", "");
        exato(f.Label19, "Bocais: ", " mm");
        pressão(f.Label18);
        positivo(f.Label27, "Vazão: ", " m³/h", "Valor de vazão inválido!");
        positivo(f.Label28, "Raio: ", " m", "Valor de raio de alcance inválido!");
        char letra = 'A';
        for (auto* caixa : caixas()) parâmetro(*caixa, letra++);
        return mensagem_;
    }

  private:
    /// The next line; null, with the message of a file that ends early, where there is none.
    const std::string* próxima() {
        if (!mensagem_.empty()) return nullptr;
        if (lida_ < linhas_.size()) return &linhas_[lida_++];
        mensagem_ = "O arquivo é muito grande!";
        return nullptr;
    }
    void exato(const Rotulo& rótulo, const std::string& começo, const std::string& fim) {
        const auto* linha = próxima();
        exigir(rótulo.texto == (linha ? começo + *linha + fim : digitado), "caption of a line");
    }
    void pressão(const Rotulo& rótulo) {
        const auto* linha = próxima();
        const auto valor = linha ? númeroDe(*linha) : std::nullopt;
        if (linha && !valor) mensagem_ = "Valor de pressão inválido!";
        if (valor && (*valor < 30 || *valor > 70))
            mensagem_ = "O valor de pressão deve estar entre 30 - 70 m.c.a.!";
        exigir(rótulo.texto == (mensagem_.empty() ? "Pressão: " + *linha + " m.c.a." : digitado), "pressure");
    }
    void positivo(const Rotulo& rótulo, std::string_view começo, std::string_view fim, const char* recusa) {
        const auto* linha = próxima();
        const auto valor = linha ? númeroDe(*linha) : std::nullopt;
        if (linha && (!valor || *valor <= 0)) mensagem_ = recusa;
        if (!mensagem_.empty()) return exigir(rótulo.texto == digitado, "a caption that should stay");
        exigir(mostra(entre(rótulo.texto, começo, fim), valor.value_or(0), 2), "flow or reach");
    }
    void parâmetro(const CaixaTexto& caixa, char letra) {
        const auto* linha = próxima();
        const auto valor = linha ? númeroDe(*linha) : std::nullopt;
        if (linha && !valor) mensagem_ = std::string{"Parâmetro "} + letra + " inválido!";
        exigir(mensagem_.empty() ? mostra(caixa.texto, valor.value_or(0), 4) : caixa.texto.empty(),
               "parameter");
    }

    const Linhas& linhas_;
    std::size_t lida_ = 0;
    std::string mensagem_;
};

bool conferir(const std::optional<Linhas>& linhas) {
    if (!linhas) {
        for (const auto* caixa : caixas()) exigir(caixa->texto.empty(), "a parameter left");
        exigir(form7->Label20.texto == digitado, "a caption that should stay");
        exigir(caderno.size() == 3 && caderno[2].starts_with("mensagem: O arquivo não pôde ser aberto: "),
               "message of a file that can't be opened");
        return false;
    }
    const auto mensagem = Conferência{*linhas}.conferir();
    exigir(mensagem.empty() || (caderno.size() == 3 && caderno[2] == "mensagem: " + mensagem), mensagem);
    return mensagem.empty();
}

void digitar() {
    auto& f = *form7.operator->();
    for (auto* rótulo : {&f.Label20, &f.Label19, &f.Label18, &f.Label27, &f.Label28})
        rótulo->texto = digitado;
    for (auto* caixa : caixas()) caixa->texto = digitado;
}

/// The file that would make the captions as they stand. None where a flow or a reach shows as 0, which no
/// file may have.
std::string arquivoDaTela() {
    auto& f = *form7.operator->();
    if (f.Label27.texto == "Vazão: 0.00 m³/h" || f.Label28.texto == "Raio: 0.00 m") return {};
    std::string texto;
    const auto linha = [&](std::string_view conteúdo) { texto.append(conteúdo).append("\r\n"); };
    linha(entre(f.Label20.texto, "ASPERSOR: ", ""));
    linha(entre(f.Label19.texto, "Bocais: ", " mm"));
    linha(entre(f.Label18.texto, "Pressão: ", " m.c.a."));
    linha(entre(f.Label27.texto, "Vazão: ", " m³/h"));
    linha(entre(f.Label28.texto, "Raio: ", " m"));
    for (const auto* caixa : caixas()) linha(caixa->texto);
    return texto;
}

} // namespace

const Formato& formatoDeParâmetros() {
    static const Formato formato{
        .tela = form7,
        .digitar = digitar,
        .abrir = [] { pressionar(form7, "Command1", form7->Command1); },
        .salvar = arquivoDaTela,
        .fotografar = [] { return fotografia(*form7.operator->()); },
        .conferir = conferir,
        .bom = "KELMO-TX20\r\n28 x "
               "6\r\n50\r\n48.14\r\n49.85\r\n0.0381\r\n0.0124\r\n-0.0102\r\n0.0027\r\n0.4198\r\n"
               "-0.3520\r\n"};
    return formato;
}

} // namespace varenta::fuzz
