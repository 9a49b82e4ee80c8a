#include "fuzz/formatos.h"

#include "ajuste/form_e.h"

#include <array>
#include <cmath>
#include <set>

/// The grid test under wind of `Form_E1`.
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
    std::string modelo, bocais, pressão, tempo, diâmetro;
    int N = 0, modo = 1;
    double e = 0, W = 0, direção = 0;
    std::vector<std::vector<double>> leituras;
    bool aceito = false;
};

void lerTudo(Cursor& cursor, Leitura& leitura) {
    leitura.modelo = cursor.linha();
    leitura.bocais = cursor.linha();
    leitura.pressão = cursor.linha();
    cursor.linha();
    cursor.linha();
    leitura.N = cursor.contagem(maiorContagem);
    leitura.e = cursor.espaçamento();
    leitura.W = cursor.númeroEntre(0, 10);
    leitura.direção = cursor.númeroEntre(0, 360);
    leitura.modo = cursor.contagem(3);
    if (leitura.modo >= 2) leitura.tempo = cursor.preenchida();
    if (leitura.modo == 3) leitura.diâmetro = cursor.preenchida();
    for (int l = 0; l < leitura.N; ++l)
        leitura.leituras.push_back(cursor.leituras(static_cast<std::size_t>(leitura.N)));
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

void conferirLido(const Leitura& leitura) {
    const auto& f = *form_E1.operator->();
    exigir(f.Label20.texto == "ASPERSOR: " + leitura.modelo &&
               f.Label19.texto == "Bocais: " + leitura.bocais + " mm" &&
               f.Label18.texto == "Pressão: " + leitura.pressão + " m.c.a.",
           "the sprinkler isn't the file's");
    exigir(f.Combo2.texto == std::to_string(leitura.N) && mostra(f.Combo1.texto, leitura.e, 1), "lists");
    exigir(f.HScroll2.valor == std::nearbyint(leitura.W * 10) &&
               mostra(f.Label17.texto, f.HScroll2.valor / 10.0, 1),
           "wind speed");
    exigir(f.HScroll1.valor == std::nearbyint(leitura.direção) &&
               f.Label2.texto == std::to_string(f.HScroll1.valor),
           "wind direction");
    exigir(f.Option1.marcada == (leitura.modo == 1) && f.Option4.marcada == (leitura.modo == 2) &&
               f.Option3.marcada == (leitura.modo == 3),
           "mode");
    exigir(f.Text6.texto == leitura.tempo && f.Text7.texto == leitura.diâmetro, "time or diameter");
    exigir(f.Text6.visivel == (leitura.modo >= 2) && f.Text7.visivel == (leitura.modo == 3),
           "what the mode needs doesn't show");
    exigir(!f.Text5.visivel, "the entry line shows");
    exigir(f.flex_A.linhas == leitura.N + 1 && f.flex_A.colunas == leitura.N + 1, "size of the grid");
    for (int l = 1; l <= leitura.N; ++l)
        for (int c = 1; c <= leitura.N; ++c)
            exigir(mostra(f.flex_A.célula(l, c),
                          leitura.leituras[static_cast<std::size_t>(l) - 1][static_cast<std::size_t>(c) - 1],
                          3),
                   "a cell isn't the file's");
}

/// Everything at its defaults; the sprinkler as it was, and nothing of the file's readings.
void conferirRecusa() {
    const auto& f = *form_E1.operator->();
    exigir(caderno.size() == 3 && (mensagens.contains(caderno[2]) || caderno[2].starts_with(igual)),
           "not one of the file's messages");
    exigir(f.Combo1.texto == "6.0" && f.Combo2.texto == "14", "lists");
    exigir(f.HScroll2.valor == 30 && f.Label17.texto == "3.0" && f.HScroll1.valor == 45 &&
               f.Label2.texto == "45",
           "wind");
    exigir(f.Option1.marcada && !f.Option4.marcada && !f.Option3.marcada && f.Option2.marcada, "options");
    exigir(f.Text6.texto.empty() && f.Text7.texto.empty() && !f.Text6.visivel && !f.Text7.visivel,
           "time or diameter left");
    exigir(f.Label20.texto == digitado, "the sprinkler isn't as it was");
    exigir(f.Text5.visivel, "no entry line");
    exigir(f.flex_A.linhas == 15 && f.flex_A.colunas == 15, "size of the grid");
    exigir(f.flex_A.célula(0, 1) == "Co1 = -39.0 m " && f.flex_A.célula(14, 0) == "Li14 = -39.0 m",
           "headers");
    for (int l = 1; l < 15; ++l)
        for (int c = 1; c < 15; ++c)
            exigir(comoEraOuVazia(f.flex_A.célula(l, c)), "a reading of a file that is refused");
}

bool conferir(const std::optional<Linhas>& linhas) {
    const auto leitura = linhas ? ler(*linhas) : Leitura{};
    const bool lido = form_E1->Option5.marcada;
    exigir(lido == leitura.aceito, lido ? "read what doesn't do" : "refused what does");
    if (lido)
        conferirLido(leitura);
    else
        conferirRecusa();
    return lido;
}

void digitar() {
    auto& f = *form_E1.operator->();
    f.Combo2.texto.assign(1, '4');
    Erro_plan(1);
    definirValor(f.HScroll1, 10);
    definirValor(f.HScroll2, 10);
    f.Label20.texto = digitado;
    for (int k = 1; k <= 4; ++k) f.flex_A.escrever(k, k, digitado);
    f.Text5.texto = digitado;
}

} // namespace

const Formato& formatoDeMalha() {
    static const Formato formato{
        .tela = form_E1,
        .digitar = digitar,
        .abrir = [] { pressionar(form_E1, "Option5", form_E1->Option5); },
        .salvar = [] { return salvarComo(form_E1, "Command1", form_E1->Command1); },
        .fotografar = [] { return fotografia(*form_E1.operator->(), doAspersor); },
        .conferir = conferir,
        .bom = "KELMO-TX20\r\n28 x 6\r\n50\r\n24\r\n48.14\r\n2\r\n3.0\r\n4.0\r\n300\r\n3\r\n60\r\n8\r\n"
               "1.350\t3.400\r\n3.050\t1.390\r\n"};
    return formato;
}

} // namespace varenta::fuzz
