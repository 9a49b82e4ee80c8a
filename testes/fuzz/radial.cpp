#include "fuzz/formatos.h"

#include "aspersor/perfil_form.h"

#include <array>
#include <cmath>
#include <set>

/// The radial test of `PerfilForm`.
namespace varenta::fuzz {
namespace {

constexpr int linhasDigitadas = 3;
constexpr int maisLinhas = 10'000;

const std::set<std::string> mensagens = {
    "mensagem: O arquivo não pode ser aberto, consulte a ajuda!",
    "mensagem: A arquivo *.TXT apresenta mais de duas colunas!",
    "mensagem: O número de colunas do arquivo não coicide com o número de colunas especificado!",
    "mensagem: Há valores não numéricos nos dados de distância ao aspersor!",
    "mensagem: Há valores não numéricos nos dados de precipitação!",
    "mensagem: Os valores de distância ao aspersor devem estar em ordem crescente!",
    "mensagem: O arquivo é muito grande!"};

/// What a second reader makes of the lines.
struct Leitura {
    std::array<std::string, 5> textos;
    std::string linhas, tempo, diâmetro;
    int unidade = 3;
    std::vector<std::vector<double>> pontos;
    /// Whether the whole header does, and whether the whole file does.
    bool cabeçalho = false, aceito = false;
};

int unidadeDa(const std::string& linha) {
    const auto numeral = numeralNoInício(linha);
    if (numeral && numeral->estoura) throw LinhaRecusada{};
    const double valor = numeral ? numeral->valor : 0;
    return valor == 1 ? 1 : valor == 2 ? 2 : 3;
}

std::string positiva(Cursor& cursor) {
    const auto texto = cursor.preenchida();
    const auto valor = númeroDe(texto);
    if (!valor || *valor <= 0) throw LinhaRecusada{};
    return texto;
}

Leitura ler(const Linhas& linhas) {
    Leitura leitura;
    Cursor cursor{linhas};
    try {
        for (auto& texto : leitura.textos) texto = cursor.preenchida();
        leitura.linhas = positiva(cursor);
        leitura.unidade = unidadeDa(cursor.linha());
        if (leitura.unidade >= 2) leitura.tempo = positiva(cursor);
        if (leitura.unidade == 3) leitura.diâmetro = positiva(cursor);
        const double quantas = std::nearbyint(*númeroDe(leitura.linhas));
        leitura.cabeçalho = quantas >= 1;
        if (quantas < 1 || quantas > maisLinhas) return leitura;
        for (int k = 0; k < quantas; ++k) {
            leitura.pontos.push_back(cursor.leituras(2));
            if (k > 0 && leitura.pontos.back()[0] <= leitura.pontos[leitura.pontos.size() - 2][0])
                return leitura;
        }
        cursor.exigirFim([](const std::string& linha) { return linha.empty(); });
        leitura.aceito = true;
    } catch (const LinhaRecusada&) {
    }
    return leitura;
}

std::array<std::string, 5> textosDaTela() {
    const auto& f = *perfilForm.operator->();
    return {f.Text7.texto, f.Text9.texto, f.Text2.texto, f.Text8.texto, f.Text1.texto};
}

void conferirLido(const Leitura& leitura) {
    const auto& f = *perfilForm.operator->();
    exigir(textosDaTela() == leitura.textos, "the first lines aren't in their boxes");
    exigir(f.Text5.texto == leitura.linhas, "the count isn't in its box");
    exigir(f.Option5.marcada == (leitura.unidade == 1) && f.Option4.marcada == (leitura.unidade == 2) &&
               f.Option3.marcada == (leitura.unidade == 3),
           "the unit isn't the file's");
    exigir(f.Text4.texto == leitura.tempo && f.Text3.texto == leitura.diâmetro, "time or diameter");
    exigir(f.Text4.visivel == (leitura.unidade >= 2) && f.Text3.visivel == (leitura.unidade == 3),
           "what the unit needs doesn't show");
    exigir(!f.Text6.visivel && !f.Label6.visivel && !f.Label7.visivel, "the entry line shows");
    const auto& g = f.flexGrid;
    exigir(g.linhas == static_cast<int>(leitura.pontos.size()) + 1 && g.colunas == 3, "size of the grid");
    for (int l = 1; l < g.linhas; ++l) {
        const auto& ponto = leitura.pontos[static_cast<std::size_t>(l) - 1];
        exigir(g.célula(l, 0) == std::to_string(l), "number of the row");
        exigir(mostra(g.célula(l, 1), ponto[0], 2), "distance of the row");
        exigir(mostra(g.célula(l, 2), ponto[1], 3), "reading of the row");
    }
}

/// Typing, the unit mm/h and its header; nothing of the file's readings, and of its header nothing either
/// unless the whole of it does.
void conferirRecusa(const Leitura& leitura) {
    const auto& f = *perfilForm.operator->();
    exigir(caderno.size() == 3 && mensagens.contains(caderno[2]), "not one of the file's messages");
    exigir(f.Option1.marcada && f.Option5.marcada && !f.Option4.marcada && !f.Option3.marcada,
           "not back at typing in mm/h");
    exigir(f.Text4.texto.empty() && f.Text3.texto.empty() && !f.Text4.visivel && !f.Text3.visivel &&
               !f.Label4.visivel && !f.Label3.visivel,
           "time or diameter left");
    exigir(f.Text6.visivel && f.Label6.visivel && f.Label7.visivel, "no entry line");
    const auto textos = textosDaTela();
    exigir(textos == std::array<std::string, 5>{} || (leitura.cabeçalho && textos == leitura.textos),
           "boxes half filled");
    const auto& g = f.flexGrid;
    exigir(g.célula(0, 1) == "Distância - r (m)" && g.célula(0, 2) == "Intensidade - i (mm/h)", "header");
    const bool comoEra = f.Text5.texto == std::to_string(linhasDigitadas);
    exigir(comoEra || (leitura.cabeçalho && f.Text5.texto == leitura.linhas), "count of rows");
    exigir(g.linhas == std::nearbyint(númeroDe(f.Text5.texto).value_or(-1)) + 1, "size of the grid");
    for (int l = 1; l < g.linhas; ++l)
        for (int c = 1; c <= 2; ++c)
            exigir(g.célula(l, c).empty() || (l <= linhasDigitadas && comoEraOuVazia(g.célula(l, c))),
                   "a reading of a file that is refused");
}

bool conferir(const std::optional<Linhas>& linhas) {
    const auto leitura = linhas ? ler(*linhas) : Leitura{};
    const bool lido = perfilForm->Option2.marcada;
    exigir(lido == leitura.aceito, lido ? "read what doesn't do" : "refused what does");
    if (lido)
        conferirLido(leitura);
    else
        conferirRecusa(leitura);
    return lido;
}

void digitar() {
    auto& f = *perfilForm.operator->();
    definirTexto(f.Text5, std::to_string(linhasDigitadas));
    for (int l = 1; l <= linhasDigitadas; ++l)
        for (int c = 1; c <= 2; ++c) f.flexGrid.escrever(l, c, digitado);
    f.Text6.texto = digitado;
    for (auto* caixa : {&f.Text7, &f.Text9, &f.Text2, &f.Text8, &f.Text1}) caixa->texto = digitado;
    marcar(perfilForm, f.Option4);
    f.Text4.texto = digitado;
}

} // namespace

const Formato& formatoRadial() {
    static const Formato formato{
        .tela = perfilForm,
        .digitar = digitar,
        .abrir = [] { pressionar(perfilForm, "Option2", perfilForm->Option2); },
        .salvar = [] { return salvarComo(perfilForm, "Command4", perfilForm->Command4); },
        .fotografar = [] { return fotografia(*perfilForm.operator->()); },
        .conferir = conferir,
        .bom = "Canh\xC3\xA3o\r\n20 x 6\r\n45\r\n24\r\n4.2\r\n4\r\n3\r\n60\r\n8\r\n"
               "2.00\t9.000\r\n6.00\t7.000\r\n10.00\t5.000\r\n18.00\t1.000\r\n",
        .contagens = {5}};
    return formato;
}

} // namespace varenta::fuzz
