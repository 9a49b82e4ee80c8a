#include "aspersor/avancar_perfil_form.h"

#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"

#include <array>

namespace varenta {
namespace {

bool éInválido(const CaixaTexto& caixa) { return nãoÉNumérico(caixa.texto) || nãoÉPositivo(caixa.texto); }

bool camposDaUnidadeVálidos() {
    auto& f = *perfilForm.operator->();
    if (f.Option4.marcada && éInválido(f.Text4))
        return recusar(f.Text4, "Tempo de ensaio com valor numérico inválido!");
    if (!f.Option3.marcada) return true;
    for (auto* caixa : {&f.Text3, &f.Text4}) {
        if (!éInválido(*caixa)) continue;
        recusar(*caixa, "Área do coletor ou tempo de ensaio com valor numérico inválido!");
        definirTexto(f.Text3, "");
        definirTexto(f.Text4, "");
        return false;
    }
    return true;
}

bool ânguloForaDaFaixa(const std::string& texto) {
    const double graus = lerEstrito(texto);
    return graus < 10 || graus > 60;
}

constexpr std::array verificaçõesDoÂngulo = {
    VerificaçãoDeTexto{nãoÉNumérico, "Ângulo do jato com valor numérico inválido!"},
    VerificaçãoDeTexto{ânguloForaDaFaixa, "O valor de ângulo do jato deve estar entre 10 - 60º!"}};

bool ânguloVálido() {
    auto& caixa = perfilForm->Text8;
    if (caixa.texto.empty()) return true;
    const char* recusa = primeiraRecusa(verificaçõesDoÂngulo, caixa.texto);
    return !recusa || recusar(caixa, recusa);
}

constexpr std::array verificaçõesDaVazão = {
    VerificaçãoDeTexto{nãoÉNumérico, "Insira valores numéricos!"},
    VerificaçãoDeTexto{nãoÉPositivo, "Valor numérico de vazão inválido!"}};

/// Settles the flow in `Text1`: typed, or the one that the profile gives if the person leaves it to that.
bool vazãoAceita(double qest) {
    auto& caixa = perfilForm->Text1;
    if (caixa.texto.empty()) {
        if (plataforma::perguntar(perguntaDaVazão)) {
            focar(caixa);
            return false;
        }
        definirTexto(caixa, Format(qest, "0.000"));
    }
    if (const char* recusa = primeiraRecusa(verificaçõesDaVazão, caixa.texto)) return recusar(caixa, recusa);
    return !vazãoDiverge(qest, lerEstrito(caixa.texto)) || plataforma::perguntar(perguntaDaDivergência);
}

double leituraDeUmMetroPorHoraDaTela() {
    const auto& f = *perfilForm.operator->();
    if (f.Option3.marcada)
        return leituraDeUmMetroPorHora(lerEstrito(f.Text4.texto), lerEstrito(f.Text3.texto));
    return f.Option4.marcada ? leituraDeUmMetroPorHora(lerEstrito(f.Text4.texto)) : leituraDeUmMetroPorHora();
}

/// The readings of the grid, in m/h.
std::vector<PontoMedido> leituras() {
    const auto& grade = perfilForm->flexGrid;
    const double unidade = leituraDeUmMetroPorHoraDaTela();
    std::vector<PontoMedido> pontos;
    for (int l = 1; l < grade.linhas; ++l)
        pontos.push_back({lerEstrito(grade.célula(l, 1)), dividir(lerEstrito(grade.célula(l, 2)), unidade)});
    return pontos;
}

} // namespace

RecusaDeCélula recusaDoEnsaio(const Grade& flexGrid) {
    constexpr std::array verificações = {VerificaçãoDeTexto{éVazio, "Há alguma célula da planilha vazia!"},
                                         VerificaçãoDeTexto{nãoÉNumérico, "Insira valores numéricos!"}};
    const auto número = [&](int linha, int coluna) { return lerEstrito(flexGrid.célula(linha, coluna)); };
    const int última = flexGrid.linhas - 1;
    for (int linha = 1; linha <= última; ++linha)
        for (int coluna = 1; coluna <= 2; ++coluna) {
            if (const char* mensagem = primeiraRecusa(verificações, flexGrid.célula(linha, coluna)))
                return {mensagem, linha, coluna};
            if (coluna == 1 && linha > 1 && número(linha, 1) <= número(linha - 1, 1))
                return {"O valores de distância ao aspersor devem ser crescentes!", linha, 1};
        }
    if (número(1, 1) == 0)
        return {"O primeiro valor de distância ao aspersor deve ser diferente de zero!", 1, 1};
    if (número(última, 2) == 0)
        return {"O último valor de intensidade de precipitação deve ser diferente de zero!", última, 2};
    return {};
}

std::optional<PerfilMedido> avançarPerfilForm() {
    sairDaCélula(perfilForm_planilha());
    if (!camposDaUnidadeVálidos() || !ânguloVálido()) return std::nullopt;
    if (const auto recusa = recusaDoEnsaio(perfilForm->flexGrid); recusa.mensagem) {
        recusar(perfilForm_planilha(), recusa);
        return std::nullopt;
    }
    const auto fechado = explicarErro("são precisas duas leituras ao menos, e diferentes as duas últimas",
                                      [] { return fecharPerfil(leituras()); });
    if (fechado.R < 12) {
        plataforma::mensagem("Para as simulações, o raio de alcance deve ser superior a 12 m!");
        return std::nullopt;
    }
    const double qest = volumeSobOPerfil(fechado.pontos, piDoEnsaioRadial);
    if (!vazãoAceita(qest)) return std::nullopt;
    return perfilMedido(fechado.pontos, fechado.R, qest, lerEstrito(perfilForm->Text1.texto),
                        piDoEnsaioRadial);
}

std::string captionDoAspersor(const std::string& nome) {
    return "Características Técnicas do Aspersor " + ouSubstituto(nome, "não Especificado");
}

std::string textoDoNome(const DadosDoAspersor& dados) {
    return "Aspersor: " + ouSubstituto(dados.nome, "Não especificado");
}

std::string textoDosBocais(const DadosDoAspersor& dados) {
    return dados.bocais.empty() ? "Bocais: N/E" : "Bocais: " + dados.bocais + " mm";
}

std::string textoDaPressão(const DadosDoAspersor& dados) {
    return dados.nomeDaPressão + ": " + (dados.pressão.empty() ? "N/E" : dados.pressão + " m.c.a.");
}

void escreverPontos(const PerfilMedido& medido, std::string_view padrãoDoRaio, std::span<Rotulo> lblRaio,
                    std::span<Rotulo> lblIntensidade, const GráficoDoPerfilRadial& gráfico) {
    for (std::size_t k = 0; k < pontosDoPerfil; ++k) {
        lblRaio[k].texto = Format(medido.R * medido.distâncias[k], padrãoDoRaio);
        lblIntensidade[k].texto = Format(medido.Imedia * medido.razões[k], "##0.000");
    }
    explicarErro("as intensidades são pequenas ou grandes demais para a escala do gráfico", [&] {
        desenharPerfilRadial(gráfico, {.x = medido.distâncias,
                                       .y = medido.razões,
                                       .R = medido.R,
                                       .alcanceMostrado = lerPrefixo(Format(medido.R, "##0.00")),
                                       .Imedia = medido.Imedia});
    });
}

void mostrarNoPerfil(const PerfilMedido& medido, const DadosDoAspersor& dados) {
    auto& p = *perfil.operator->();
    p.Caption = captionDoAspersor(dados.nome);
    p.Label11.texto = textoDoNome(dados);
    p.Label13.texto = textoDosBocais(dados);
    p.Label1.texto = textoDaPressão(dados);
    p.Label2.texto = dados.vazão;
    p.Label17.texto = Format(medido.R, "##0.00");
    p.Label12.texto = "Ângulo do Jato: " + (dados.anguloJato.empty() ? "N/E" : dados.anguloJato + "º");
    p.lblInt.texto = "Intensidade: " + Format(medido.Imedia, "0.00") + " mm/h";
    escreverPontos(medido, dados.padrãoDoRaio, std::span{p.lblRaio}.subspan(1),
                   std::span{p.lblIntensidade}.subspan(1),
                   {.Picture1 = p.Picture1,
                    .Label6 = p.Label6,
                    .Label7 = p.Label7,
                    .malha = malhaDoPerfilMedido,
                    .divisor = dados.divisor});
}

} // namespace varenta
