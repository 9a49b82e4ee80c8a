#include "simulacao/preparar_form7.h"

#include "apoio/simulacao_feita_a_mao.h"

namespace varenta::teste {
namespace {

TEST(EspaçamentoMaisPróximo, NoEmpateValeOMaior) {
    EXPECT_EQ(espaçamentoMaisPróximo(35), 2); // 1.75, between 1.5 and 2
    EXPECT_EQ(espaçamentoMaisPróximo(50), 3); // 2.5, between 2 and 3
    EXPECT_EQ(espaçamentoMaisPróximo(90), 6); // 4.5, between 3 and 6
}

TEST(EspaçamentoMaisPróximo, ÉOMaisPertoDe5PorCentoDoAlcance) {
    EXPECT_EQ(espaçamentoMaisPróximo(0), 1.5);
    EXPECT_EQ(espaçamentoMaisPróximo(34.9), 1.5);
    EXPECT_EQ(espaçamentoMaisPróximo(35.1), 2);
    EXPECT_EQ(espaçamentoMaisPróximo(49.9), 2);
    EXPECT_EQ(espaçamentoMaisPróximo(60.29), 3);
    EXPECT_EQ(espaçamentoMaisPróximo(90.1), 6);
    EXPECT_EQ(espaçamentoMaisPróximo(500), 6);
}

TEST(PrepararCondições, CarregaATelaSemVentoComOsEspaçamentos) {
    recomeçar();
    prepararCondições("43.11");
    EXPECT_TRUE(form7.carregada());
    EXPECT_FALSE(form7.visivel);
    EXPECT_EQ(form7->Combo2.itens, (std::vector<std::string>{"1.5", "2.0", "3.0", "6.0"}));
    EXPECT_EQ(form7->Combo2.texto, "2.0");
    EXPECT_EQ(form7->HScroll1.valor, 0);
    EXPECT_EQ(form7->HScroll2.valor, 0);
}

TEST(PrepararCondições, TiraOVentoQueATelaTinha) {
    abrirForm7();
    atos::rolar(alvo(form7, "HScroll1"), 90);
    atos::rolar(alvo(form7, "HScroll2"), 40);
    prepararCondições("30");
    EXPECT_EQ(form7->Label2.texto, "0");
    EXPECT_EQ(form7->Label17.texto, "0.0");
    EXPECT_EQ(form7->Combo2.texto, "1.5");
}

} // namespace
} // namespace varenta::teste
