#include "ajuste/resultados.h"

#include "ajuste/form_ajuste.h"
#include "ajuste/form_ajven.h"
#include "ajuste/form_graf.h"
#include "apoio/ajuste_feito_a_mao.h"
#include "shell/form3.h"

#include <string>
#include <tuple>
#include <vector>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

constexpr auto semÂngulo = "Ângulo do jato não informado: o ajuste usa 0º.";
constexpr auto outroBocal = "Os parâmetros foram ajustados com outro bocal ou pressão.";

/// What was told, but for the plain messages.
Textos avisosDoCaderno() {
    Textos avisos;
    for (const auto& linha : caderno)
        if (!linha.starts_with("mensagem: ")) avisos.push_back(linha);
    return avisos;
}

TEST(ResultadosDoAjuste, UmNovoAjusteEscondeOsResultadosDoAnterior) {
    abrirComUmaMalhaQueSeAjusta();
    atos::clicar(alvo(form_AjvenOu, "Command5"));
    EXPECT_EQ(avisosDoCaderno(), Textos{});
    const auto primeiro = form_graf1->Label16.texto;
    atos::clicar(alvo(form_AjvenOu, "Command8"));
    const auto doEnsaio = form_graf1->Label17.texto;
    atos::clicar(alvo(form_graf1, "Command3"));
    ASSERT_TRUE(form_graf1.visivel);
    ASSERT_TRUE(form_ajuste1.visivel);

    definirValor(form_E1->HScroll1, 60);
    atos::clicar(alvo(form_AjvenOu, "Command5"));
    EXPECT_NE(form_graf1->Label16.texto, primeiro);
    EXPECT_FALSE(form_graf1.visivel);
    EXPECT_FALSE(form_ajuste1.visivel);
    atos::clicar(alvo(form_AjvenOu, "Command8"));
    EXPECT_TRUE(form_graf1.visivel);
    EXPECT_NE(form_graf1->Label17.texto, doEnsaio);
}

TEST(ResultadosDoAjuste, UmAjusteQueParaDeixaOsResultadosÀVista) {
    abrirComUmaMalhaQueSeAjusta();
    atos::clicar(alvo(form_AjvenOu, "Command5"));
    atos::clicar(alvo(form_AjvenOu, "Command8"));
    const auto geral = form_graf1->Label16.texto;
    definirValor(form_E1->HScroll2, 0);
    atos::clicar(alvo(form_AjvenOu, "Command5"));
    ASSERT_TRUE(caderno.back().starts_with("erro: ")) << caderno.back();
    EXPECT_TRUE(form_graf1.visivel);
    EXPECT_EQ(form_graf1->Label16.texto, geral);
}

TEST(ResultadosDoAjuste, OMesmoNúmeroDeEnsaiosOutraVezNãoDesfazNada) {
    abrirFormAjvenOu(Método::malha);
    auto& f = *form_AjvenOu.operator->();
    for (const auto& [opção, mesma, outra] : {std::tuple{"Option5", "Option5", "Option6"},
                                              {"Option6", "Option6", "Option7"},
                                              {"Option7", "Option7", "Option5"}}) {
        atos::clicar(alvo(form_AjvenOu, opção));
        for (auto* rótulo : f.resultados()) rótulo->texto = "0.1000";
        f.Command7.habilitado = f.Command8.habilitado = true;
        form_graf1.mostrar();
        atos::clicar(alvo(form_AjvenOu, mesma));
        EXPECT_EQ(f.Label27.texto, "0.1000") << mesma;
        EXPECT_TRUE(f.Command7.habilitado && f.Command8.habilitado && form_graf1.visivel) << mesma;
        atos::clicar(alvo(form_AjvenOu, outra));
        EXPECT_EQ(f.Label27.texto, "") << outra;
        EXPECT_FALSE(f.Command7.habilitado || f.Command8.habilitado || form_graf1.visivel) << outra;
    }
}

TEST(ResultadosDoAjuste, SemOÂnguloDoJatoOAjusteOAvisa) {
    abrirComUmaMalhaQueSeAjusta();
    form_AjvenOu->Label11.texto.clear();
    EXPECT_EQ(form_AjvenOu->lblAviso.texto, "");
    for (int vez = 1; vez <= 2; ++vez) {
        caderno.clear();
        atos::clicar(alvo(form_AjvenOu, "Command5"));
        EXPECT_EQ(avisosDoCaderno(), Textos{std::string{"aviso: "} + semÂngulo}) << vez;
        EXPECT_EQ(form_AjvenOu->lblAviso.texto, std::string{"Aviso: "} + semÂngulo) << vez;
    }
    atos::clicar(alvo(form_AjvenOu, "Option6"));
    EXPECT_EQ(form_AjvenOu->lblAviso.texto, "");
}

TEST(ResultadosDoAjuste, ComOutroBocalOuPressãoATelaDizDeQueSãoOsParâmetros) {
    recomeçar();
    atos::clicar(alvo(form3, "TX15c"));
    atos::escolher(alvo(form_AjVen, "Combo1"), "16 mm");
    EXPECT_EQ(form_AjVen->lblAviso.texto, "") << "no fit yet";
    anotarAjuste(Aspersor::doCatálogo);
    atos::escolher(alvo(form_AjVen, "Combo2"), "7 mm");
    EXPECT_EQ(form_AjVen->lblAviso.texto, std::string{"Aviso: "} + outroBocal);
    atos::rolar(alvo(form_AjVen, "hsbPressão"), 60);
    EXPECT_EQ(caderno, Textos{std::string{"aviso: "} + outroBocal}) << "told once";
    atos::escolher(alvo(form_AjVen, "Combo2"), "6 mm");
    EXPECT_EQ(form_AjVen->lblAviso.texto, std::string{"Aviso: "} + outroBocal) << "the pressure is another";
    atos::rolar(alvo(form_AjVen, "hsbPressão"), 50);
    EXPECT_EQ(form_AjVen->lblAviso.texto, "");
    atos::arrastar(alvo(form_AjVen, "hsbPressão"), 51);
    EXPECT_EQ(form_AjVen->lblAviso.texto, std::string{"Aviso: "} + outroBocal);
    anotarAjuste(Aspersor::doCatálogo);
    EXPECT_EQ(form_AjVen->lblAviso.texto, "") << "fitted anew";
}

} // namespace
} // namespace varenta::teste
