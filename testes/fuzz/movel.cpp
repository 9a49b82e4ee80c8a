#include "fuzz/formatos.h"

#include "ajuste/form_mie.h"

#include <array>
#include <cmath>
#include <set>

/// The travelling test under wind of `Form_MiE1`.
namespace varenta::fuzz {
namespace {

/// Saving takes the sprinkler's lines from the screen of the fit: what a file told of it isn't kept.
constexpr std::array<std::string_view, 3> doAspersor = {"Label18", "Label19", "Label20"};
constexpr int maiorContagem = 1000;

const std::string igual = "mensagem: O número de dados de entrada deve ser igual: ";
const std::set<std::string> mensagens = {
    "mensagem: O arquivo não pode ser aberto, consulte a ajuda!",
    "mensagem: O número de coletores em cada linha excede aos valores de dados do arquivo!",
    "mensagem: O número de linhas de coletores do arquivo não coicide com o número de linhas especificado!",
    "mensagem: O arquivo é muito grande!"};

struct Leitura {
    std::string modelo, bocais, pressão, velocidade, diâmetro;
    int L = 0, cadaLado = 0, modo = 1;
    double giro = 0, eL = 0, eC = 0, W = 0, direção = 0;
    std::vector<std::vector<double>> leituras;
    bool aceito = false;
};

void lerTudo(Cursor& cursor, Leitura& leitura) {
    leitura.modelo = cursor.linha();
    leitura.bocais = cursor.linha();
    leitura.pressão = cursor.linha();
    cursor.linha();
    cursor.linha();
    leitura.velocidade = cursor.linha();
    if (númeroDe(leitura.velocidade).value_or(0) == 0) throw LinhaRecusada{};
    leitura.giro = cursor.númeroEntre(180, 360);
    leitura.L = cursor.contagem(maiorContagem);
    leitura.eL = cursor.espaçamento();
    leitura.cadaLado = cursor.contagem(maiorContagem);
    leitura.eC = cursor.espaçamento();
    leitura.W = cursor.númeroEntre(0, 10);
    leitura.direção = cursor.númeroEntre(0, 360);
    leitura.modo = cursor.contagem(2);
    if (leitura.modo == 2) leitura.diâmetro = cursor.preenchida();
    for (int l = 0; l < 2 * leitura.cadaLado; ++l)
        leitura.leituras.push_back(cursor.leituras(static_cast<std::size_t>(leitura.L)));
    cursor.exigirFim(emBranco);
    leitura.aceito = true;
}

Leitura ler(const Linhas& linhas) {
    Leitura leitura;
    Cursor cursor{linhas};
    try {
        lerTudo(cursor, leitura);
    } catch (const LinhaRecusada&) {
    }
    return leitura;
}

void conferirCondições(const Leitura& leitura) {
    const auto& f = *form_MiE1.operator->();
    exigir(f.Label20.texto == "ASPERSOR: " + leitura.modelo &&
               f.Label19.texto == "Bocais: " + leitura.bocais + " mm" &&
               f.Label18.texto == "Pressão: " + leitura.pressão + " m.c.a.",
           "the sprinkler isn't the file's");
    exigir(f.Text1.texto == leitura.velocidade, "speed");
    const auto giro = númeroDe(f.Combo6.texto);
    exigir(giro && std::abs(*giro - leitura.giro) <= 1e-14 * leitura.giro, "turn angle");
    exigir(f.Combo1.texto == std::to_string(leitura.L) && mostra(f.Combo2.texto, leitura.eL, 1) &&
               f.Combo3.texto == std::to_string(leitura.cadaLado) && mostra(f.Combo4.texto, leitura.eC, 1),
           "lists");
    exigir(f.HScroll2.valor == std::nearbyint(leitura.W * 10) &&
               mostra(f.Label17.texto, f.HScroll2.valor / 10.0, 1),
           "wind speed");
    exigir(f.HScroll1.valor == std::nearbyint(leitura.direção) &&
               f.Label2.texto == std::to_string(f.HScroll1.valor),
           "wind direction");
    exigir(f.Option4.marcada == (leitura.modo == 1) && f.Option3.marcada == (leitura.modo == 2), "mode");
    exigir(f.Text7.texto == leitura.diâmetro && f.Text7.visivel == (leitura.modo == 2), "diameter");
    exigir(!f.Text5.visivel, "the entry line shows");
}

void conferirLido(const Leitura& leitura) {
    conferirCondições(leitura);
    const auto& g = form_MiE1->flex_A;
    exigir(g.linhas == 2 * leitura.cadaLado + 1 && g.colunas == leitura.L + 1, "size of the grid");
    for (int l = 1; l < g.linhas; ++l)
        for (int c = 1; c < g.colunas; ++c)
            exigir(mostra(g.célula(l, c),
                          leitura.leituras[static_cast<std::size_t>(l) - 1][static_cast<std::size_t>(c) - 1],
                          3),
                   "a cell isn't the file's");
}

/// Everything at its defaults; the sprinkler as it was, and nothing of the file's readings.
void conferirRecusa() {
    const auto& f = *form_MiE1.operator->();
    exigir(caderno.size() == 3 && (mensagens.contains(caderno[2]) || caderno[2].starts_with(igual)),
           "not one of the file's messages");
    exigir(f.Combo1.texto == "3" && f.Combo2.texto == "6.0" && f.Combo3.texto == "20" &&
               f.Combo4.texto == "2.0",
           "lists");
    exigir(f.HScroll2.valor == 30 && f.Label17.texto == "3.0" && f.HScroll1.valor == 45 &&
               f.Label2.texto == "45",
           "wind");
    exigir(f.Option4.marcada && !f.Option3.marcada && f.Option2.marcada, "options");
    exigir(f.Text7.texto.empty() && !f.Text7.visivel, "diameter left");
    exigir(f.Label20.texto == digitado, "the sprinkler isn't as it was");
    exigir(f.Text5.visivel, "no entry line");
    exigir(f.flex_A.linhas == 41 && f.flex_A.colunas == 4, "size of the grid");
    exigir(f.flex_A.célula(0, 1) == "Linha 1 - I(mm)" && f.flex_A.célula(1, 0) == "Ce20 = -39.0 m",
           "headers");
    for (int l = 1; l < f.flex_A.linhas; ++l)
        for (int c = 1; c < f.flex_A.colunas; ++c)
            exigir(comoEraOuVazia(f.flex_A.célula(l, c)), "a reading of a file that is refused");
}

bool conferir(const std::optional<Linhas>& linhas) {
    const auto leitura = linhas ? ler(*linhas) : Leitura{};
    const bool lido = form_MiE1->Option5.marcada;
    exigir(lido == leitura.aceito, lido ? "read what doesn't do" : "refused what does");
    if (lido)
        conferirLido(leitura);
    else
        conferirRecusa();
    return lido;
}

void digitar() {
    auto& f = *form_MiE1.operator->();
    f.Combo3.texto.assign(1, '3');
    MIErro_plan(1);
    definirValor(f.HScroll1, 10);
    definirValor(f.HScroll2, 10);
    f.Label20.texto = digitado;
    for (int k = 1; k <= 3; ++k) f.flex_A.escrever(k, k, digitado);
    f.Text5.texto = digitado;
}

} // namespace

const Formato& formatoMóvel() {
    static const Formato formato{
        .tela = form_MiE1,
        .digitar = digitar,
        .abrir = [] { pressionar(form_MiE1, "Option5", form_MiE1->Option5); },
        .salvar = [] { return salvarComo(form_MiE1, "Command1", form_MiE1->Command1); },
        .fotografar = [] { return fotografia(*form_MiE1.operator->(), doAspersor); },
        .conferir = conferir,
        .bom = "KELMO-TX20\r\n28 x "
               "6\r\n50\r\n24\r\n48.14\r\n30\r\n210\r\n2\r\n6.0\r\n2\r\n6.0\r\n2.5\r\n30\r\n2\r\n"
               "8\r\n0.050\t0.060\r\n53.130\t51.740\r\n111.890\t105.890\r\n0.000\t0.100"};
    return formato;
}

} // namespace varenta::fuzz
