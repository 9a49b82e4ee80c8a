#include "ajuste/verificacoes_ensaio.h"

#include "ajuste/cabecalhos.h"
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
            if (texto.empty()) return RecusaDeEnsaio{mensagens.vazia, CélulaDoEnsaio{l, c}};
            if (!éNumérico(texto)) return RecusaDeEnsaio{mensagens.nãoNumérica, CélulaDoEnsaio{l, c}};
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
    for (auto* caixa : caixas)
        if (caixa->texto.empty()) return RecusaDeEnsaio{ausente, caixa};
    for (auto* caixa : caixas)
        if (!éNumérico(caixa->texto)) return RecusaDeEnsaio{inválido, caixa};
    return std::nullopt;
}

Recusa recusaDoTempoOuDiâmetro(std::initializer_list<CaixaTexto*> caixas) {
    return recusaDasCaixas(caixas, "Ausência de valor numérico de tempo ou diâmetro do coletor!",
                           "Valor numérico de tempo ou diâmetro do coletor inválido!");
}

/// A list with the name that messages give it.
struct ListaDoEnsaio {
    const Lista& lista;
    const char* nome;
};

RecusaDeEnsaio recusaDaLista(const ListaDoEnsaio& lista, int n, const std::string& exigência) {
    return {lista.nome + (" do Ensaio " + std::to_string(n)) + " deve ser " + exigência + "!", &lista.lista};
}

/// What a reader of the file would refuse as a number of collectors or lines.
Recusa recusaDaContagem(const ListaDoEnsaio& lista, int n) {
    const auto& texto = lista.lista.texto;
    if (éContagem(lista.lista) && lerEstrito(texto) == Int(lerEstrito(texto))) return std::nullopt;
    return recusaDaLista(lista, n, "um número inteiro de 1 a " + std::to_string(maiorContagem));
}

/// What the lists of spacings offer passes always.
Recusa recusaDoEspaçamento(const ListaDoEnsaio& lista, int n) {
    const auto& texto = lista.lista.texto;
    if (éNumérico(texto) && !nãoÉPositivo(texto) && cabeNosCabeçalhos(lista.lista)) return std::nullopt;
    return recusaDaLista(lista, n, "um número maior que 0 e até " + std::to_string(maiorEspaçamento) + " m");
}

Recusa recusaDosColetores(const RegistroFormMiE& f, int n) {
    return recusaDaContagem({f.Combo3, "O número de coletores em cada lado"}, n);
}

Recusa recusaDasLinhasEDosColetores(const RegistroFormMiE& f, int n) {
    const auto recusa = recusaDaContagem({f.Combo1, "O número de linhas (L)"}, n);
    return recusa ? recusa : recusaDosColetores(f, n);
}

Recusa recusaDoEspaçoEntreColetores(const RegistroFormMiE& f, int n) {
    return recusaDoEspaçamento({f.Combo4, "O espaço entre coletores (eC)"}, n);
}

constexpr auto diâmetroInválido = "Valor de diâmetro do coletor inválido";
constexpr auto velocidadeInválida = "Valor de velocidade do aspersor inválido";
constexpr auto giroInválido = "Valor de ângulo de giro do aspersor inválido";

Recusa recusaDaVelocidade(CaixaTexto& caixa, int n) {
    if (auto recusa = recusaSeNãoNumérico(caixa, velocidadeInválida, n)) return recusa;
    const double v = lerEstrito(caixa.texto);
    if (v > 0 && v <= 200) return std::nullopt;
    return RecusaDeEnsaio{
        "Ensaio " + std::to_string(n) + ": a velocidade do aspersor deve estar entre 0 - 200 m/h!", &caixa};
}

Recusa recusaDoGiro(const Lista& lista, int n) {
    if (!éNumérico(lista.texto)) return RecusaDeEnsaio{doEnsaio(giroInválido, n), &lista};
    const double g = lerEstrito(lista.texto);
    if (g >= 180 && g <= 360) return std::nullopt;
    return RecusaDeEnsaio{"Ensaio " + std::to_string(n) +
                              ": o ângulo de giro do aspersor deve estar entre 180 - 360º!",
                          &lista};
}

/// The cell becomes the current one. A number typed may ask for cells that the grid lacks.
void irParaRecusada(const TelaDeEnsaio& ensaio, const CélulaDoEnsaio& célula) {
    const auto planilha = planilhaDoEnsaio(ensaio.controles);
    const auto& grade = planilha.grade;
    if (célula.linha >= grade.linhas || célula.coluna >= grade.colunas) return;
    irParaCélula(planilha, célula.linha, célula.coluna);
    if (!ensaio.tela.visivel) return;
    if (planilha.digitação)
        receberFoco(planilha);
    else
        focar(grade);
}

} // namespace

Recusa recusaDoAjuste(RegistroFormE& f, int n) {
    if (f.Option4.marcada || f.Option3.marcada)
        if (auto recusa = recusaSeNãoNumérico(f.Text6, "Valor de tempo inválido", n)) return recusa;
    if (f.Option3.marcada)
        if (auto recusa = recusaSeNãoNumérico(f.Text7, diâmetroInválido, n)) return recusa;
    if (auto recusa = recusaDasEstimativas(f, n)) return recusa;
    const int N = inteiroDaLista(f.Combo2);
    return recusaDasCélulas(f.flex_A, N, N, aoAjustar(n));
}

Recusa recusaDoAjuste(RegistroFormMiE& f, int n) {
    if (f.Option3.marcada)
        if (auto recusa = recusaSeNãoNumérico(f.Text7, diâmetroInválido, n)) return recusa;
    auto recusa = recusaDasLinhasEDosColetores(f, n);
    if (!recusa) recusa = recusaDoEspaçoEntreColetores(f, n);
    if (!recusa)
        recusa =
            recusaDasCélulas(f.flex_A, 2 * inteiroDaLista(f.Combo3), inteiroDaLista(f.Combo1), aoAjustar(n));
    if (!recusa) recusa = recusaDaVelocidade(f.Text1, n);
    if (!recusa) recusa = recusaDoGiro(f.Combo6, n);
    return recusa;
}

Recusa recusaDasEstimativas(RegistroFormE& f, int n) {
    const auto recusa = recusaDaContagem({f.Combo2, "O número de coletores"}, n);
    return recusa ? recusa : recusaDoEspaçamento({f.Combo1, "O espaçamento"}, n);
}

Recusa recusaDasEstimativas(RegistroFormMiE& f, int n) {
    auto recusa = recusaDosColetores(f, n);
    if (!recusa) recusa = recusaDoEspaçoEntreColetores(f, n);
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
    if (!recusa) recusa = recusaDasLinhasEDosColetores(f, n);
    if (!recusa) recusa = recusaDoEspaçamento({f.Combo2, "A distância entre linhas (eL)"}, n);
    if (!recusa) recusa = recusaDoEspaçoEntreColetores(f, n);
    if (!recusa)
        recusa = recusaDasCélulas(f.flex_A, 2 * inteiroDaLista(f.Combo3), inteiroDaLista(f.Combo1), aoSalvar);
    // Any other speed can be read back.
    if (!recusa && (!éNumérico(f.Text1.texto) || lerEstrito(f.Text1.texto) == 0))
        recusa = recusaDaVelocidade(f.Text1, n);
    if (!recusa) recusa = recusaDoGiro(f.Combo6, n);
    return recusa;
}

bool aceito(const Recusa& recusa, const TelaDeEnsaio& ensaio, TextoRecusado texto) {
    if (!recusa) return true;
    plataforma::mensagem(recusa->mensagem);
    if (const auto* célula = std::get_if<CélulaDoEnsaio>(&recusa->lugar)) {
        irParaRecusada(ensaio, *célula);
        return false;
    }
    if (auto* const* caixa = std::get_if<CaixaTexto*>(&recusa->lugar)) {
        if (texto == TextoRecusado::sai) definirTexto(**caixa, "");
        if (ensaio.tela.visivel) focar(**caixa);
    } else if (ensaio.tela.visivel) {
        focar(*std::get<const Lista*>(recusa->lugar));
    }
    return false;
}

std::string leituraDaCélula(const Grade& grade, int linha, int coluna) {
    return linha < grade.linhas && coluna < grade.colunas ? grade.célula(linha, coluna) : std::string{};
}

int inteiroDaLista(const Lista& lista) { return paraInteiro(lerPrefixo(lista.texto)); }

} // namespace varenta
