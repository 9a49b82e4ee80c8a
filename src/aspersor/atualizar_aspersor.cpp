#include "aspersor/atualizar_aspersor.h"

#include "aspersor/catalogo.h"
#include "aspersor/form1.h"
#include "aspersor/grafico_perfil_radial.h"
#include "aspersor/perfil_radial.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"

#include <algorithm>

namespace varenta {

const ModeloDeAspersor modeloTX15{.caption = "Características Técnicas do Aspersor KELMO-TX 15",
                                  .primeiroBocal = 14,
                                  .últimoBocal = 28,
                                  .temAuxiliar = true,
                                  .bocalPrincipal = "18 mm",
                                  .bocalAuxiliar = "6 mm",
                                  .pressãoMínima = 30,
                                  .nome = "TX15",
                                  .nomeEspaçado = "TX 15"};
const ModeloDeAspersor modeloTX20{.caption = "Características Técnicas do Aspersor KELMO-TX 20",
                                  .primeiroBocal = 22,
                                  .últimoBocal = 38,
                                  .temAuxiliar = true,
                                  .bocalPrincipal = "28 mm",
                                  .bocalAuxiliar = "6 mm",
                                  .pressãoMínima = 30,
                                  .nome = "TX20",
                                  .nomeEspaçado = "TX 20"};
const ModeloDeAspersor modeloTX30{.caption = "Características Técnicas do Aspersor KELMO-TX 30",
                                  .primeiroBocal = 34,
                                  .últimoBocal = 44,
                                  .temAuxiliar = false,
                                  .bocalPrincipal = "38 mm",
                                  .bocalAuxiliar = "",
                                  .pressãoMínima = 40,
                                  .nome = "TX30",
                                  .nomeEspaçado = "TX 30"};

const ModeloDeAspersor* modeloDaCaption(std::string_view caption) {
    for (const auto* modelo : {&modeloTX15, &modeloTX20, &modeloTX30})
        if (caption == modelo->caption) return modelo;
    return nullptr;
}

std::string bocaisDasListas(const ModeloDeAspersor& modelo, const Lista& Combo1, const Lista& Combo2) {
    auto bocais = paraTexto(lerPrefixo(Combo1.texto));
    if (modelo.temAuxiliar) bocais += " x " + paraTexto(lerPrefixo(Combo2.texto));
    return bocais;
}

std::string rótuloDosBocais(const ModeloDeAspersor& modelo, const Lista& Combo1, const Lista& Combo2) {
    return (modelo.temAuxiliar ? "Bocais: " : "Bocal: ") + bocaisDasListas(modelo, Combo1, Combo2) + " mm";
}

void prepararSeleção(const SeleçãoDeAspersor& seleção, const ModeloDeAspersor& modelo) {
    seleção.Combo1.itens.clear();
    for (int bocal = modelo.primeiroBocal; bocal <= modelo.últimoBocal; bocal += 2)
        seleção.Combo1.itens.push_back(std::to_string(bocal) + " mm");
    seleção.Combo2.itens.clear();
    if (modelo.temAuxiliar) seleção.Combo2.itens = {"0 mm", "5 mm", "6 mm", "7 mm"};
    escolherItem(seleção.Combo1, modelo.bocalPrincipal);
    if (modelo.temAuxiliar) escolherItem(seleção.Combo2, modelo.bocalAuxiliar);
    definirFaixa(seleção.hsbPressão, modelo.pressãoMínima, 70, 5, 5);
}

void escreverPressão(const SeleçãoDeAspersor& seleção) {
    const double p = seleção.hsbPressão.valor;
    if (seleção.optMCA.marcada) seleção.lblPressão.texto = paraTexto(p);
    if (seleção.optKG.marcada) seleção.lblPressão.texto = Format(p / 10, "#.0");
    if (seleção.optKPA.marcada) seleção.lblPressão.texto = Format(p * 9.80665, "#");
}

namespace {

/// The nozzle that a list shows, in mm, by comparison with what it may show; 0 for any other text.
int bocalDoTexto(std::string_view texto, int primeiro, int último, int passo) {
    for (int bocal = primeiro; bocal <= último; bocal += passo)
        if (texto == std::to_string(bocal) + " mm") return bocal;
    return 0;
}

/// What the chart needs of an evaluation.
struct Avaliação {
    double R, Imedia;
    PontosDoPerfil x, y;
};

/// The routines and tables that tell the TX15 from the TX20.
struct FamíliaDeDoisJatos {
    double (*vazao)(int, int, double);
    double (*pressaoEfetiva)(int, int, double);
    double (*raio)(int, double);
    std::span<const catalogo::LinhaDePerfil> perfis;
};

/// A sprinkler of two jets that share one supply: the auxiliary jet's intensities are carried over to the
/// main jet's radii and added there.
Avaliação avaliarDoisJatos(const SeleçãoDeAspersor& tela, const ModeloDeAspersor& modelo,
                           const FamíliaDeDoisJatos& família) {
    using namespace catalogo;
    const double pressao = tela.hsbPressão.valor;
    const int principal = bocalDoTexto(tela.Combo1.texto, modelo.primeiroBocal, modelo.últimoBocal, 2);
    const int auxiliar = bocalDoTexto(tela.Combo2.texto, 5, 7, 1);

    const double Q = família.vazao(auxiliar, principal, pressao);
    tela.lblVazão.texto = Format(Q, "##0.00");
    const double Pe = família.pressaoEfetiva(auxiliar, principal, pressao);
    const double Qp = família.vazao(0, principal, Pe);
    const double R = família.raio(principal, Pe);
    tela.lblRaioAlcance.texto = Format(R, "##0.00");
    const double Imedia = intensidadeMedia(Q, R);
    tela.lblInt.texto = Format(Imedia, "##0.00");
    const double Ip = intensidadeMedia(Qp, R);

    const auto rel = distanciasRelativas();
    PontosDoPerfil ra{}, ia{};
    double Ra = 0;
    if (auxiliar != 0) {
        const double Qa = família.vazao(auxiliar, 0, Pe);
        Ra = raioAuxiliar(auxiliar, Pe);
        const double Ia = intensidadeMedia(Qa, Ra);
        const auto razões =
            razõesNaPressão(blocoDoBocal(perfisAuxiliares, auxiliar), faixaDeCincoLinhas(Pe), Pe);
        for (std::size_t k = 0; k < pontosDoPerfil; ++k) {
            ia[k] = razões[k] * Ia;
            ra[k] = rel[k] * Ra;
        }
    }

    const auto razões = razõesNaPressão(blocoDoBocal(família.perfis, principal), faixaDeCincoLinhas(Pe), Pe);
    Avaliação avaliação{R, Imedia, rel, {}};
    for (std::size_t k = 0; k < pontosDoPerfil; ++k) {
        const double r = rel[k] * R;
        tela.lblRaio[k].texto = Format(r, "##0.000");
        double i = razões[k] * Ip;
        if (auxiliar != 0 && r <= Ra) i += intensidadeNoRaio(r, ra, ia);
        tela.lblIntensidade[k].texto = Format(i, "#0.000");
        avaliação.y[k] = dividir(i, Imedia);
    }
    return avaliação;
}

/// The TX30 has one jet, and its radii follow the reach as shown, with two decimals.
Avaliação avaliarTX30(const SeleçãoDeAspersor& tela, const ModeloDeAspersor& modelo) {
    using namespace catalogo;
    const double pressao = tela.hsbPressão.valor;
    const int principal = bocalDoTexto(tela.Combo1.texto, modelo.primeiroBocal, modelo.últimoBocal, 2);

    const double Q = vazaoTX30(principal, pressao);
    tela.lblVazão.texto = Format(Q, "##0.00");
    const double R = raioTX30(principal, pressao);
    tela.lblRaioAlcance.texto = Format(R, "##0.00");
    const double Imedia = intensidadeMedia(Q, R);
    tela.lblInt.texto = Format(Imedia, "##0.00");

    const auto rel = distanciasRelativasAcumuladas();
    const auto razões =
        razõesNaPressão(blocoDoBocal(perfisTX30, principal), faixaDeQuatroLinhas(pressao), pressao);
    const double alcance = lerPrefixo(tela.lblRaioAlcance.texto);
    for (std::size_t k = 0; k < pontosDoPerfil; ++k) {
        tela.lblRaio[k].texto = Format(rel[k] * alcance, "##0.000");
        tela.lblIntensidade[k].texto = Format(razões[k] * Imedia, "#0.000");
    }
    return {R, Imedia, rel, razões};
}

void desenharAvaliação(const SeleçãoDeAspersor& tela, const Avaliação& avaliação) {
    desenharPerfilRadial({.Picture1 = tela.Picture1,
                          .Label6 = tela.Label6,
                          .Label7 = tela.Label7,
                          .malha = malhaDoPerfilRadial,
                          .divisor = 5},
                         {.x = avaliação.x,
                          .y = avaliação.y,
                          .R = avaliação.R,
                          .alcanceMostrado = lerPrefixo(tela.lblRaioAlcance.texto),
                          .Imedia = avaliação.Imedia});
}

} // namespace

void atualizarAspersor(const SeleçãoDeAspersor& seleção) {
    using namespace catalogo;
    const auto* modelo = modeloDaCaption(seleção.Caption);
    if (!modelo) return;
    if (modelo == &modeloTX15)
        desenharAvaliação(seleção, avaliarDoisJatos(seleção, *modelo,
                                                    {vazaoTX15, pressaoEfetivaTX15, raioTX15, perfisTX15}));
    else if (modelo == &modeloTX20)
        desenharAvaliação(seleção, avaliarDoisJatos(seleção, *modelo,
                                                    {vazaoTX20, pressaoEfetivaTX20, raioTX20, perfisTX20}));
    else
        desenharAvaliação(seleção, avaliarTX30(seleção, *modelo));
}

SeleçãoDeAspersor seleçãoDeForm1() {
    auto& f = *form1.operator->();
    return {.Caption = f.Caption,
            .Combo1 = f.Combo1,
            .Combo2 = f.Combo2,
            .hsbPressão = f.hsbPressão,
            .optMCA = f.optMCA,
            .optKG = f.optKG,
            .optKPA = f.optKPA,
            .lblPressão = f.lblPressão,
            .lblVazão = f.lblVazão,
            .lblRaioAlcance = f.lblRaioAlcance,
            .lblInt = f.lblInt,
            .lblRaio = std::span{f.lblRaio}.subspan(1),
            .lblIntensidade = std::span{f.lblIntensidade}.subspan(1),
            .Picture1 = f.Picture1,
            .Label6 = f.Label6,
            .Label7 = f.Label7};
}

void atualizarAspersor() { atualizarAspersor(seleçãoDeForm1()); }

} // namespace varenta
