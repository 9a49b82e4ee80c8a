#include "campo/sobreposicao_movel.h"

#include "aspersor/avancar_perfil_form.h"
#include "campo/form_ec.h"
#include "campo/form_unifo.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "uniformidade/graficos_sobreposicao.h"
#include "uniformidade/relatorios.h"
#include "uniformidade/uniformidade_centro.h"

#include <algorithm>
#include <array>

namespace varenta {
namespace {

/// What stands before and after a value, or that it isn't known.
std::string dado(const char* nome, const std::string& valor, const char* unidade) {
    return nome + (valor.empty() ? std::string{"N/E"} : valor + unidade);
}

void escreverDadosDoEnsaio() {
    auto& f = *formUnifo.operator->();
    const auto& ec = *formEC.operator->();
    f.lblAspersor.texto = dado("Aspersor: ", ouSubstituto(ec.Text6.texto, "Não especificado"), "");
    f.Label2.texto = dado("Bocais: ", ec.Text8.texto, " mm");
    f.Label1.texto = dado("Pressão: ", ec.Text13.texto, " m.c.a.");
    f.Label3.texto = dado("Ângulo: ", ec.Text9.texto, " graus");
    f.Label4.texto = dado("Velocidade: ", ec.Text11.texto, " m/h");
    f.Label8.texto = dado("Vazão: ", ec.Text12.texto, " m³/h");
    f.Label37.texto = dado("Velocidade do Vento: ", ec.Text2.texto, " m/s");
    f.Label38.texto = dado("Direção do Vento: ", ec.Text3.texto, "º");
}

void escreverDetalhe(const SobreposiçãoMedida& soma, double espaço) {
    auto& grade = formUnifo->flexGrid_B;
    const int linhas = static_cast<int>(soma.linhas.size());
    std::string formato = "Distância (m) |";
    for (int k = 1; k <= linhas; ++k)
        formato.append(" Linha  ").append(std::to_string(k)).append(" - I(mm)|");
    grade.dimensionar(static_cast<int>(soma.média.size()) + 1, linhas + 2);
    grade.formato(formato + "Média - I(mm)  ");
    for (std::size_t P = 0; P < soma.média.size(); ++P) {
        const int l = static_cast<int>(P) + 1;
        grade.escrever(l, 0, Format(distânciaDaPosição(P, espaço), "0.00"));
        for (int k = 1; k <= linhas; ++k)
            grade.escrever(l, k, Format(soma.linhas[static_cast<std::size_t>(k - 1)][P], "0.000"));
        grade.escrever(l, linhas + 1, Format(soma.média[P], "0.000"));
    }
}

/// Depths that are all 0, and too few of them for a lowest quarter, have no uniformity.
Estatísticas estatísticasDoEnsaio(const std::vector<double>& lâminas, std::size_t q) {
    return explicarErro("confira as lâminas e o espaçamento: todas são zero, ou são poucas demais",
                        [&] { return calcularEstatísticas(lâminas, q); });
}

/// The lines of collectors in three colours by turns, so that neighbours differ, and their mean over them in
/// blue.
void desenharDetalhe(const SobreposiçãoMedida& soma, double espaço) {
    auto& f = *formUnifo.operator->();
    std::vector<CurvaDaSobreposição> curvas;
    constexpr std::array coresDasLinhas = {cores::verde, cores::vermelho, cores::magenta};
    for (const auto& linha : soma.linhas)
        curvas.push_back({linha, coresDasLinhas[curvas.size() % coresDasLinhas.size()]});
    curvas.push_back({soma.média, cores::azul});
    explicarErro("as lâminas são pequenas ou grandes demais para a escala do gráfico", [&] {
        desenharSobreposição(f.Picture1, f.Label22, f.Label23, espaço,
                             *std::ranges::max_element(soma.valores), curvas);
    });
}

} // namespace

SobreposiçãoMedida sobreporMedida(const LeiturasDoEnsaio& ensaio, double E) {
    const int n = posiçõesEntreCarreadores(E, ensaio.espaço);
    SobreposiçãoMedida soma;
    for (const auto& linha : ensaio.linhas) {
        soma.linhas.push_back(sobrepor(linha.direita, linha.esquerda, n).total);
        soma.valores.insert(soma.valores.end(), soma.linhas.back().begin(), soma.linhas.back().end());
    }
    soma.média.resize(static_cast<std::size_t>(n));
    for (const auto& linha : soma.linhas)
        for (std::size_t P = 0; P < linha.size(); ++P) soma.média[P] += linha[P];
    for (double& média : soma.média) média /= static_cast<double>(soma.linhas.size());
    return soma;
}

std::vector<std::string> espaçamentosParaLargura(double largura) {
    auto textos = espaçamentosParaRaio(largura / 2);
    std::erase(textos, paraTexto(0));
    return textos;
}

double lâminaCalculada(double Q, double E, double V) { return dividir(1000 * Q, E * V); }

void prepararSobreposicao() {
    const auto ensaio = lerEnsaio();
    auto& f = *formUnifo.operator->();
    escreverDadosDoEnsaio();
    f.cmbEspaçamento.itens =
        espaçamentosParaLargura(2 * static_cast<double>(ensaio.coletores) * ensaio.espaço);
    f.flexGrid_A.dimensionar(static_cast<int>(f.cmbEspaçamento.itens.size()) + 1, 4);
    f.flexGrid_A.formato("^    E (m)     |^  CUC (%)   |^  UD (%)  |^ I médio (mm)");

    std::vector<PontoDoEspaçamento> pontos;
    std::string melhor;
    f.Label16.texto = paraTexto(0);
    std::size_t q = 0;
    for (const auto& texto : f.cmbEspaçamento.itens) {
        // Two million readings, at thousands of spacings, take a minute.
        plataforma::respirar();
        const double E = lerPrefixo(texto);
        const auto valores = sobreporMedida(ensaio, E).valores;
        if (valores.size() >= 2) q = menorQuarto(valores.size());
        pontos.push_back({E, estatísticasDoEnsaio(valores, q)});
        const auto& figuras = pontos.back().valores;
        const int linha = static_cast<int>(pontos.size());
        f.flexGrid_A.escrever(linha, 0, Format(E, "0"));
        f.flexGrid_A.escrever(linha, 1, Format(figuras.CUC, "0.00"));
        f.flexGrid_A.escrever(linha, 2, Format(figuras.UD, "0.00"));
        f.flexGrid_A.escrever(linha, 3, Format(figuras.media, "0.00"));
        if (melhor.empty()) melhor = texto;
        if (figuras.CUC > lerPrefixo(f.Label16.texto)) {
            f.Label16.texto = Format(figuras.CUC, "##0.00");
            melhor = texto;
        }
    }
    f.lblE.texto = "E = " + melhor + "  m";
    desenharEspaçamentos(f.Picture2, f.Label26, pontos);
    definirTexto(f.cmbEspaçamento, melhor);
    sobreporMovel();
}

void sobreporMovel() {
    const auto ensaio = lerEnsaio();
    auto& f = *formUnifo.operator->();
    const double E = lerPrefixo(f.cmbEspaçamento.texto);
    const auto soma = sobreporMedida(ensaio, E);
    // All figures before any of them is shown: a report of two spacings would tell of neither.
    const double calculada = explicarErro("confira a velocidade e o espaçamento", [&] {
        return lâminaCalculada(lerPrefixo(formEC->Text12.texto), E, lerPrefixo(formEC->Text11.texto));
    });
    const auto valores = estatísticasDoEnsaio(soma.valores, menorQuarto(soma.valores.size()));
    escreverDetalhe(soma, ensaio.espaço);
    f.lblCalculado.texto = Format(calculada, "0.00");
    f.Label33.texto = Format(valores.UD, "##0.00");
    f.Label16.texto = Format(valores.CUC, "##0.00");
    f.Label17.texto = Format(valores.media, "##0.00");
    desenharDetalhe(soma, ensaio.espaço);
}

std::string relatórioDoMóvel() {
    const auto& f = *formUnifo.operator->();
    std::string texto;
    const auto linha = [&](const std::string& conteúdo) { acrescentarLinha(texto, conteúdo); };
    linha("VARENTA - Versão 4.0");
    linha("");
    linha(f.Caption);
    linha("");
    for (const auto* rótulo : {&f.lblAspersor, &f.Label1, &f.Label2, &f.Label3, &f.Label4, &f.Label8})
        linha(rótulo->texto);
    linha("");
    linha(f.Label37.texto);
    linha(f.Label38.texto);
    linha("");
    linha(f.lblMaiorCUC.texto + "\t" + f.lblE.texto);
    linha("");
    texto += linhasDoRelatório(f.flexGrid_A);
    linha("");
    linha("CUC (%)\t" + f.Label16.texto);
    linha("UD (%)\t" + f.Label33.texto);
    linha("I médio (mm) - Coletado\t" + f.Label17.texto);
    linha("I médio (mm) - Calculado\t" + f.lblCalculado.texto);
    linha("");
    texto += linhasDoRelatório(f.flexGrid_B);
    linha("");
    return texto;
}

} // namespace varenta
