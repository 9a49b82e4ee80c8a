#include "shell/sistema.h"

#include "apoio/tela_de_teste.h"
#include "aspersor/form1.h"
#include "comum/ajuda.h"
#include "shell/form3.h"
#include "simulacao/form7.h"

#include <algorithm>
#include <set>

namespace varenta::teste {
namespace {

TEST(Sistema, TodaTelaDoProgramaEstáNaOrdemDeFechamento) {
    std::multiset<std::string> registradas, ordenadas;
    for (const auto* tela : TelaBase::todas())
        if (tela->nome() != nomeDaTelaDeTeste) registradas.insert(tela->nome());
    for (const auto* tela : telasEmOrdem()) ordenadas.insert(tela->nome());
    EXPECT_EQ(registradas, ordenadas);
    EXPECT_GE(registradas.size(), 3u);
}

TEST(Sistema, AOrdemComeçaPelaTelaPrincipalESegueADeFechamento) {
    const auto telas = telasEmOrdem();
    ASSERT_FALSE(telas.empty());
    EXPECT_EQ(telas.front(), &form3);
    const auto lugar = [&](const TelaBase& tela) { return std::ranges::find(telas, &tela) - telas.begin(); };
    EXPECT_LT(lugar(form1), lugar(form7));
}

TEST(Sistema, CadaTelaNomeiaOArquivoDeAjudaAoCarregar) {
    recomeçar();
    for (auto* tela : telasEmOrdem()) {
        if (!tela->eventos().aoCarregar) continue; // the progress of a fit
        tela->descarregar();
        arquivoDeAjuda.clear();
        tela->carregar();
        EXPECT_EQ(arquivoDeAjuda, "C:\\Arquivos de programas\\Varenta\\VARENTA VERSÃO 5.0.hlp")
            << tela->nome();
    }
}

TEST(Sistema, AchaATelaPeloSeuNomeExato) {
    EXPECT_EQ(telaDeNome("form1"), &form1);
    EXPECT_EQ(telaDeNome("Form7"), &form7);
    EXPECT_EQ(telaDeNome("Form1"), nullptr);
    EXPECT_EQ(telaDeNome(""), nullptr);
}

TEST(Sistema, FecharTelasDescarregaTodasMenosAPrincipal) {
    recomeçar();
    form1.mostrar();
    form7.carregar();
    fecharTelas();
    EXPECT_FALSE(form1.carregada());
    EXPECT_FALSE(form7.carregada());
    EXPECT_TRUE(form3.carregada());
    EXPECT_TRUE(form3.visivel);
}

TEST(Sistema, IniciarDeNovoRecomeçaDoZero) {
    recomeçar();
    form1.mostrar();
    form3.esconder();
    form3.habilitada = false;
    form3->Caption = "mudada";
    focar(form1->Command1);
    iniciarSistema();
    EXPECT_FALSE(form1.carregada());
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
    EXPECT_EQ(form3.caption(), "VARENTA 5.0");
    EXPECT_EQ(controleComFoco, nullptr);
    EXPECT_EQ(telaPrincipal, &form3);
}

} // namespace
} // namespace varenta::teste
