#include "ajuste/verificacoes_ensaio.h"

#include "ajuste/arquivo_ensaio.h"
#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "comum/verificacoes.h"

namespace varenta {
namespace {

using Recusa = std::optional<RecusaDeEnsaio>;

std::string doEnsaio(const char* texto, int n) { return texto + (" no Ensaio " + std::to_string(n)) + "!"; }

Recusa recusaSeNãoNumérico(CaixaTexto& caixa, const char* texto, int n) {
    if (éNumérico(caixa.texto)) return std::nullopt;
    return RecusaDeEnsaio{doEnsaio(texto, n), &caixa};
}

/// What is said of a cell without a reading, and of one whose reading is no number.
struct MensagensDasCélulas {
    std::string vazia, nãoNumérica;
};

Recusa recusaDasCélulas(const Grade& grade, int linhas, int colunas, const MensagensDasCélulas& mensagens) {
    for (int l = 1; l <= linhas; ++l)
        for (int c = 1; c <= colunas; ++c) {
            const auto texto = leituraDaCélula(grade, l, c);
            if (texto.empty()) return RecusaDeEnsaio{mensagens.vazia};
            if (!éNumérico(texto)) return RecusaDeEnsaio{mensagens.nãoNumérica};
        }
    return std::nullopt;
}

MensagensDasCélulas aoAjustar(int n) {
    const auto ensaio = "do Ensaio " + std::to_string(n);
    return {"Há alguma célula da planilha " + ensaio + " vazia!",
            "Insira valores numéricos na planilha " + ensaio + "!"};
}

const MensagensDasCélulas aoSalvar = {"Existem células em branco na planilha, verifique!",
                                      "Insira um valores numéricos!"};

/// Before saving: all of these boxes are filled, and hold numbers.
Recusa recusaDasCaixas(std::initializer_list<CaixaTexto*> caixas, const char* ausente, const char* inválido) {
    for (const auto* caixa : caixas)
        if (caixa->texto.empty()) return RecusaDeEnsaio{ausente};
    for (const auto* caixa : caixas)
        if (!éNumérico(caixa->texto)) return RecusaDeEnsaio{inválido};
    return std::nullopt;
}

Recusa recusaDoTempoOuDiâmetro(std::initializer_list<CaixaTexto*> caixas) {
    return recusaDasCaixas(caixas, "Ausência de valor numérico de tempo ou diâmetro do coletor!",
                           "Valor numérico de tempo ou diâmetro do coletor inválido!");
}

/// What a reader of the file would refuse as a number of collectors or lines.
Recusa recusaDasContagens(std::initializer_list<const Lista*> listas) {
    for (const auto* lista : listas) {
        if (!éNumérico(lista->texto)) return RecusaDeEnsaio{valorInválido};
        const double x = lerEstrito(lista->texto);
        if (x < 1 || x > maiorContagem || x != Int(x)) return RecusaDeEnsaio{valorInválido};
    }
    return std::nullopt;
}

/// The spacings of the grid. What the lists offer passes always.
Recusa recusaDosEspaçamentos(std::initializer_list<const Lista*> listas) {
    for (const auto* lista : listas)
        if (!éNumérico(lista->texto) || nãoÉPositivo(lista->texto)) return RecusaDeEnsaio{valorInválido};
    return std::nullopt;
}

constexpr auto diâmetroInválido = "Valor de diâmetro do coletor inválido";
constexpr auto velocidadeInválida = "Valor de velocidade do aspersor inválido";
constexpr auto giroInválido = "Valor de ângulo de giro do aspersor inválido";

Recusa recusaDaVelocidade(CaixaTexto& caixa, int n) {
    if (const auto recusa = recusaSeNãoNumérico(caixa, velocidadeInválida, n)) return recusa;
    const double v = lerEstrito(caixa.texto);
    if (v > 0 && v <= 200) return std::nullopt;
    return RecusaDeEnsaio{
        "Ensaio " + std::to_string(n) + ": a velocidade do aspersor deve estar entre 0 - 200 m/h!", &caixa};
}

Recusa recusaSeGiroNãoNumérico(const Lista& lista, int n) {
    if (éNumérico(lista.texto)) return std::nullopt;
    return RecusaDeEnsaio{doEnsaio(giroInválido, n)};
}

Recusa recusaDoGiro(const Lista& lista, int n) {
    if (const auto recusa = recusaSeGiroNãoNumérico(lista, n)) return recusa;
    const double g = lerEstrito(lista.texto);
    if (g >= 180 && g <= 360) return std::nullopt;
    return RecusaDeEnsaio{"Ensaio " + std::to_string(n) +
                          ": o ângulo de giro do aspersor deve estar entre 180 - 360º!"};
}

} // namespace

Recusa recusaDoAjuste(RegistroFormE& f, int n) {
    if (f.Option4.marcada || f.Option3.marcada)
        if (const auto recusa = recusaSeNãoNumérico(f.Text6, "Valor de tempo inválido", n)) return recusa;
    if (f.Option3.marcada)
        if (const auto recusa = recusaSeNãoNumérico(f.Text7, diâmetroInválido, n)) return recusa;
    if (const auto recusa = recusaDasEstimativas(f, n)) return recusa;
    const int N = inteiroDaLista(f.Combo2);
    return recusaDasCélulas(f.flex_A, N, N, aoAjustar(n));
}

Recusa recusaDoAjuste(RegistroFormMiE& f, int n) {
    if (f.Option3.marcada)
        if (const auto recusa = recusaSeNãoNumérico(f.Text7, diâmetroInválido, n)) return recusa;
    auto recusa = recusaDasContagens({&f.Combo1, &f.Combo3});
    if (!recusa) recusa = recusaDosEspaçamentos({&f.Combo4});
    if (!recusa)
        recusa =
            recusaDasCélulas(f.flex_A, 2 * inteiroDaLista(f.Combo3), inteiroDaLista(f.Combo1), aoAjustar(n));
    if (!recusa) recusa = recusaDaVelocidade(f.Text1, n);
    if (!recusa) recusa = recusaDoGiro(f.Combo6, n);
    return recusa;
}

Recusa recusaDasEstimativas(RegistroFormE& f, int) {
    const auto recusa = recusaDasContagens({&f.Combo2});
    return recusa ? recusa : recusaDosEspaçamentos({&f.Combo1});
}

Recusa recusaDasEstimativas(RegistroFormMiE& f, int n) {
    auto recusa = recusaDasContagens({&f.Combo3});
    if (!recusa) recusa = recusaDosEspaçamentos({&f.Combo4});
    if (!recusa) recusa = recusaDaVelocidade(f.Text1, n);
    if (!recusa) recusa = recusaDoGiro(f.Combo6, n);
    return recusa;
}

Recusa recusaDoSalvamento(RegistroFormE& f, int n) {
    Recusa recusa;
    if (f.Option4.marcada)
        recusa =
            recusaDasCaixas({&f.Text6}, "Insira um valor numérico de tempo!", "Valor numérico inválido!");
    if (f.Option3.marcada) recusa = recusaDoTempoOuDiâmetro({&f.Text6, &f.Text7});
    if (!recusa) recusa = recusaDasEstimativas(f, n);
    if (recusa) return recusa;
    const int N = inteiroDaLista(f.Combo2);
    return recusaDasCélulas(f.flex_A, N, N, aoSalvar);
}

Recusa recusaDoSalvamento(RegistroFormMiE& f, int n) {
    Recusa recusa;
    if (f.Option3.marcada) recusa = recusaDoTempoOuDiâmetro({&f.Text7});
    if (!recusa) recusa = recusaDasContagens({&f.Combo1, &f.Combo3});
    if (!recusa) recusa = recusaDosEspaçamentos({&f.Combo2, &f.Combo4});
    if (!recusa)
        recusa = recusaDasCélulas(f.flex_A, 2 * inteiroDaLista(f.Combo3), inteiroDaLista(f.Combo1), aoSalvar);
    if (!recusa && !éNumérico(f.Text1.texto)) recusa = RecusaDeEnsaio{doEnsaio(velocidadeInválida, n)};
    if (!recusa) recusa = recusaSeGiroNãoNumérico(f.Combo6, n);
    return recusa;
}

bool aceito(const Recusa& recusa, const TelaBase& tela) {
    if (!recusa) return true;
    plataforma::mensagem(recusa->mensagem);
    if (recusa->caixa) {
        definirTexto(*recusa->caixa, "");
        if (tela.visivel) focar(*recusa->caixa);
    }
    return false;
}

std::string leituraDaCélula(const Grade& grade, int linha, int coluna) {
    return linha < grade.linhas && coluna < grade.colunas ? grade.célula(linha, coluna) : std::string{};
}

int inteiroDaLista(const Lista& lista) { return paraInteiro(lerPrefixo(lista.texto)); }

} // namespace varenta
