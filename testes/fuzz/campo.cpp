#include "fuzz/formatos.h"

#include "campo/form_ec.h"

#include <array>
#include <cmath>
#include <set>
#include <utility>

/// The travelling test of `Form_EC`.
namespace varenta::fuzz {
namespace {

/// More rows or columns, and more cells, than any grid of a test has.
constexpr double maiorLado = 10'000;
constexpr double maisCélulas = 2'000'000;

const std::set<std::string> mensagens = {
    "mensagem: O arquivo não pode ser aberto, consulte a ajuda!",
    "mensagem: O número de coletores em cada linha deve ser maior que 4!",
    "mensagem: O número de coletores em cada linha deve ser maior que 3!",
    "mensagem: O número de coletores em cada linha deve ser maior que 2",
    "mensagem: O número de coletores em cada linha deve ser maior que 1!",
    "mensagem: O arquivo é muito grande!"};

/// The boxes by the lines 1 to 7, 12, 13 and 15 of the file.
std::array<CaixaTexto*, 10> caixas() {
    auto& f = *formEC.operator->();
    return {&f.Text6,  &f.Text8, &f.Text13, &f.Text1, &f.Text12,
            &f.Text11, &f.Text9, &f.Text2,  &f.Text3, &f.Text7};
}

std::array<Lista*, 4> listas() {
    auto& f = *formEC.operator->();
    return {&f.Combo1, &f.Combo2, &f.Combo3, &f.Combo4};
}

struct Leitura {
    /// As far as the file goes.
    std::array<std::optional<std::string>, 10> caixas;
    std::array<double, 4> listas{};
    int unidade = 1;
    int linhas = 0, coletores = 0;
    /// All numbers in the places where they stand, as far as they do.
    std::vector<double> leituras;
    /// `grande`: a header that does, of a grid that a program may refuse to make before it looks for its
    /// rows.
    bool cabeçalho = false, grande = false, aceito = false;
};

/// Whether the count on each side is below what the spacing asks for.
bool poucos(double espaço, double coletores) {
    constexpr std::array<std::pair<double, double>, 5> pisos{{{1, 4}, {1.5, 3}, {2, 3}, {3, 2}, {6, 1}}};
    for (const auto& [e, piso] : pisos)
        if (espaço == e) return coletores < piso;
    return false;
}

/// A row as far as its numbers go; whether the whole of it does.
bool lerLinha(const std::string& linha, std::size_t quantas, std::vector<double>& leituras) {
    const auto colunas = colunasDe(linha);
    if (colunas.size() != quantas) return false;
    for (const auto& coluna : colunas) {
        const auto valor = númeroDe(coluna);
        if (!valor) return false;
        leituras.push_back(*valor);
    }
    return true;
}

void lerCabeçalho(Cursor& cursor, Leitura& leitura) {
    for (std::size_t k = 0; k < 7; ++k) leitura.caixas[k] = cursor.linha();
    for (auto& valor : leitura.listas) valor = cursor.número();
    leitura.caixas[7] = cursor.linha();
    leitura.caixas[8] = cursor.linha();
    const double unidade = cursor.número();
    if (unidade != 1 && unidade != 2) throw LinhaRecusada{};
    leitura.unidade = static_cast<int>(unidade);
    leitura.caixas[9] = unidade == 2 ? cursor.linha() : "";
    const auto [linhas, distância, coletores, espaço] = leitura.listas;
    if (poucos(espaço, coletores)) throw LinhaRecusada{};
    if (std::nearbyint(linhas) < 1 || std::nearbyint(coletores) < 1 || distância <= 0 || espaço <= 0)
        throw LinhaRecusada{};
    // Positions that no double holds can't be shown.
    if (!std::isfinite((coletores - 0.5) * espaço)) throw LinhaRecusada{};
    leitura.grande = linhas > maiorLado || 2 * coletores > maiorLado || 2 * linhas * coletores > maisCélulas;
    leitura.cabeçalho = true;
    if (linhas > 1e7 || coletores > 1e7) throw LinhaRecusada{};
    leitura.linhas = static_cast<int>(std::nearbyint(linhas));
    leitura.coletores = static_cast<int>(std::nearbyint(coletores));
}

Leitura ler(const Linhas& linhas) {
    Leitura leitura;
    Cursor cursor{linhas};
    try {
        lerCabeçalho(cursor, leitura);
        for (int l = 0; l < 2 * leitura.coletores; ++l)
            if (!lerLinha(cursor.linha(), static_cast<std::size_t>(leitura.linhas), leitura.leituras))
                return leitura;
        cursor.exigirFim([](const std::string& linha) { return linha.empty(); });
        leitura.aceito = true;
    } catch (const LinhaRecusada&) {
    }
    return leitura;
}

/// The lists and the grid as the file's header tells them.
void conferirCabeçalho(const Leitura& leitura) {
    const auto& f = *formEC.operator->();
    for (std::size_t k = 0; k < leitura.caixas.size(); ++k)
        exigir(caixas()[k]->texto == leitura.caixas[k].value_or(""), "a line isn't in its box");
    for (std::size_t k = 0; k < leitura.listas.size(); ++k)
        exigir(númeroDe(listas()[k]->texto) == leitura.listas[k], "a list doesn't show the file's number");
    exigir(f.Option4.marcada == (leitura.unidade == 1) && f.Option3.marcada == (leitura.unidade == 2),
           "the unit isn't the file's");
    exigir(f.flex_A.linhas == 2 * leitura.coletores + 1 && f.flex_A.colunas == leitura.linhas + 1,
           "size of the grid");
}

/// The cells hold the file's readings as far as they go, row by row; the others are empty.
void conferirCélulas(const Leitura& leitura) {
    const auto& g = formEC->flex_A;
    std::size_t k = 0;
    for (int l = 1; l < g.linhas; ++l)
        for (int c = 1; c < g.colunas; ++c, ++k)
            exigir(k < leitura.leituras.size() ? mostra(g.célula(l, c), leitura.leituras[k], 3)
                                               : g.célula(l, c).empty(),
                   "a cell isn't as far as the file's readings go");
}

/// The lists' defaults, mm, and nothing of the file's readings.
void conferirPadrões(const Leitura& leitura) {
    const auto& f = *formEC.operator->();
    exigir(f.Combo1.texto == "3" && f.Combo2.texto == "6.0" && f.Combo3.texto == "20" &&
               f.Combo4.texto == "2.0",
           "the lists aren't at their defaults");
    exigir(f.Option4.marcada && !f.Option3.marcada, "the unit isn't mm");
    exigir(f.flex_A.linhas == 41 && f.flex_A.colunas == 4, "size of the grid");
    exigir(f.flex_A.célula(0, 1) == "Linha 1 - I(mm)" && f.flex_A.célula(20, 0) == "Ce1 = 1 m", "headers");
    for (std::size_t k = 0; k < leitura.caixas.size(); ++k)
        exigir(caixas()[k]->texto.empty() || caixas()[k]->texto == leitura.caixas[k], "a box of its own");
    for (int l = 1; l < f.flex_A.linhas; ++l)
        for (int c = 1; c < f.flex_A.colunas; ++c)
            exigir(comoEraOuVazia(f.flex_A.célula(l, c)), "a reading of a file whose header doesn't do");
}

bool conferir(const std::optional<Linhas>& linhas) {
    const auto& f = *formEC.operator->();
    const auto leitura = linhas ? ler(*linhas) : Leitura{};
    const bool lido = f.Option2.marcada;
    exigir(lido == leitura.aceito, lido ? "read what doesn't do" : "refused what does");
    exigir(lido == !f.Text5.visivel, "entry line");
    const bool comPadrões = f.flex_A.linhas == 41 && f.flex_A.colunas == 4;
    if (lido || (leitura.cabeçalho && !(leitura.grande && comPadrões))) {
        conferirCabeçalho(leitura);
        conferirCélulas(leitura);
    } else {
        conferirPadrões(leitura);
    }
    exigir(lido || (caderno.size() == 3 && mensagens.contains(caderno[2])), "not one of the file's messages");
    exigir(lido || f.Option1.marcada, "not back at typing");
    return lido;
}

void digitar() {
    auto& f = *formEC.operator->();
    for (auto* caixa : caixas()) caixa->texto = digitado;
    escolherItem(f.Combo3, "4");
    marcar(formEC, f.Option3);
    for (int l = 1; l < f.flex_A.linhas; ++l) f.flex_A.escrever(l, 1, digitado);
    f.Text5.texto = digitado;
}

} // namespace

const Formato& formatoDeCampo() {
    static const Formato formato{
        .tela = formEC,
        .digitar = digitar,
        .abrir = [] { pressionar(formEC, "Option2", formEC->Option2); },
        .salvar = [] { return salvarComo(formEC, "Command1", formEC->Command1); },
        .fotografar = [] { return fotografia(*formEC.operator->()); },
        .conferir = conferir,
        .bom = "Canh\xC3\xA3o\r\n22 x "
               "6\r\n45\r\n24\r\n20.5\r\n50\r\n300\r\n2\r\n4.5\r\n2\r\n3.0\r\n0.8\r\n120\r\n"
               "2\r\n8\r\n0.100\t0.200\r\n3.400\t3.300\r\n8.900\t9.100\r\n0.000\t0.300",
        .contagens = {7, 9}};
    return formato;
}

} // namespace varenta::fuzz
