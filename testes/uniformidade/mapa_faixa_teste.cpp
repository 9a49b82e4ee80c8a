#include "uniformidade/mapa_faixa.h"

#include "apoio/faixa_feita_a_mao.h"

#include <algorithm>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

class MapaDaFaixa : public FaixaFeitaÀMão {
  protected:
    void abrir() {
        calcular();
        clicar("Command15");
    }
    static const Mosaico& mapa() { return std::get<Mosaico>(form_grafFinal->Picture1.traços.at(0)); }
    /// The grey part of a cell's colour: 255 for no water, 0 for the top of the scale.
    static unsigned claro(std::size_t linha, std::size_t coluna) {
        return mapa().cores.at(linha * mapa().colunas + coluna) & 255;
    }
};

TEST_F(MapaDaFaixa, AsLegendasVêmDoCampoEDeForm5) {
    abrir();
    EXPECT_EQ(form_grafFinal->Caption, "Distribuição de Água na Faixa Irrigada");
    // 3 mm on nine rows, twice each: a third over all cells, not only over the strip's.
    EXPECT_EQ(form_grafFinal->Label7.texto, "0.333 mm");
    EXPECT_EQ(form_grafFinal->Label16.texto, "CUC - Toda: 46.67%");
    EXPECT_EQ(form_grafFinal->Label2.texto, "UD - Toda: 27.78%");
    EXPECT_EQ(form_grafFinal->Label17.texto, "Imédio - Toda: 0.60 mm");
    EXPECT_EQ(form_grafFinal->Label1.texto, "Espaçamento do Carreador: 4 m");
    EXPECT_EQ(form_grafFinal->Label15.texto, "Maior Precipitação: 1.0 mm/h");
    EXPECT_EQ(form_grafFinal->Label4.texto, "2.0");
    EXPECT_EQ(form_grafFinal->Label3.texto, "0.0");
    EXPECT_TRUE(form_grafFinal.visivel);
    EXPECT_TRUE(form5.visivel);
}

TEST_F(MapaDaFaixa, SãoQuinhentasLinhasDeTrezentasCaixasCentradasNoSeuLugar) {
    abrir();
    ASSERT_EQ(form_grafFinal->Picture1.traços.size(), 1u);
    EXPECT_EQ(mapa().linhas(), 500u);
    EXPECT_EQ(mapa().colunas, 300u);
    EXPECT_EQ(mapa().largura, 14.71571906);
    EXPECT_EQ(mapa().altura, 15.43086172);
    EXPECT_EQ(mapa().x, 960 - 14.71571906 / 2);
    EXPECT_EQ(mapa().y, 525 - 15.43086172 / 2);
    EXPECT_EQ(form_grafFinal->Picture2.traços.size(), 20u);
}

TEST_F(MapaDaFaixa, OInícioFicaEmCimaEACorSegueALâmina) {
    pararNasPontas();
    abrir();
    // Depths 0 0 2 2.5 1 1 5.5 5 0 under a top of 6: nine rows over 500 lines, 62.375 lines from one to the
    // next.
    EXPECT_EQ(form_grafFinal->Label15.texto, "Maior Precipitação: 5.5 mm/h");
    EXPECT_EQ(form_grafFinal->Label4.texto, "6.0");
    for (const std::size_t coluna : std::vector<std::size_t>{0, 150, 299}) {
        EXPECT_EQ(claro(0, coluna), 255u);
        EXPECT_NEAR(claro(125, coluna), 255 - 2 * 42.5, 1);   // the start's stop
        EXPECT_NEAR(claro(374, coluna), 255 - 5.5 * 42.5, 2); // the end's
        EXPECT_EQ(claro(499, coluna), 255u);
    }
}

TEST_F(MapaDaFaixa, CampoSóDeZerosTemTopo1EUmaSóCor) {
    calcular();
    secarAspersor();
    clicar("Command15");
    EXPECT_EQ(caderno, Textos{});
    EXPECT_EQ(form_grafFinal->Label4.texto, "1.0");
    EXPECT_EQ(form_grafFinal->Label3.texto, "0.0");
    EXPECT_EQ(form_grafFinal->Label7.texto, "0.000 mm");
    EXPECT_EQ(form_grafFinal->Label15.texto, "Maior Precipitação: 0.0 mm/h");
    EXPECT_EQ(std::ranges::count(mapa().cores, cores::branco), 150000);
}

TEST_F(MapaDaFaixa, OutroValorRecusadoNãoAbreOMapa) {
    calcular();
    form5->Combo2.texto = "Outro Valor";
    for (const auto& [comprimento, mensagem] :
         {std::pair{"", "mensagem: Valor Inválido!"},
          {"3.01", "mensagem: Valor deve estar: entre zero e o raio de alcance!"}}) {
        caderno.clear();
        form5->Text3.texto = comprimento;
        clicar("Command15");
        EXPECT_EQ(caderno, Textos{mensagem});
        EXPECT_FALSE(form_grafFinal.carregada());
    }
}

TEST_F(MapaDaFaixa, RepetirRefazOMapaEFecharOPerde) {
    abrir();
    clicar("Command15");
    EXPECT_EQ(form_grafFinal->Picture1.traços.size(), 1u);
    EXPECT_EQ(form_grafFinal->Picture2.traços.size(), 20u);
    atos::clicar(alvo(form_grafFinal, "Command1"));
    EXPECT_FALSE(form_grafFinal.carregada());
    EXPECT_TRUE(form5.visivel);
    clicar("Command15");
    atos::fechar(form_grafFinal);
    EXPECT_FALSE(form_grafFinal.carregada());
    EXPECT_TRUE(form5.visivel);
}

TEST_F(MapaDaFaixa, UmErroTiraAAmpulhetaENãoMostraOMapa) {
    calcular();
    form1->lblIntensidade[9].texto = std::string("N/E");
    ampulhetas.clear();
    clicar("Command15");
    EXPECT_EQ(caderno, Textos{"erro: Tipos incompatíveis"});
    EXPECT_FALSE(form_grafFinal.visivel);
    EXPECT_EQ(std::ranges::count(ampulhetas, true), std::ranges::count(ampulhetas, false));
    EXPECT_EQ(form5.ponteiro, Ponteiro::padrão);
}

} // namespace
} // namespace varenta::teste
