#include "apoio/ensaios.h"
#include "aspersor/form1.h"
#include "comum/numeros.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/perfil_transversal.h"

namespace varenta::teste {
namespace {

const std::string avisoDoÂngulo = "Ângulo do jato não informado: a simulação usa 0º.";

/// `Form7` on the road of a measured sprinkler.
class SimulaçãoDoMedido : public testing::Test {
  protected:
    void SetUp() override { abrirPerfil(); }

    static void avançar() { clicar(perfil, "Command6"); }
    static std::vector<double> lâminas() {
        std::vector<double> lâminas;
        for (int l = 1; l < form7->flexA.linhas; ++l)
            lâminas.push_back(lerPrefixo(form7->flexA.célula(l, 2)));
        return lâminas;
    }
};

TEST_F(SimulaçãoDoMedido, LevaOsTextosDePerfilAForm7) {
    abrirPerfilForm();
    digitar(perfilForm, "Text7", "Canhão A");
    digitar(perfilForm, "Text9", "20 x 7");
    digitar(perfilForm, "Text2", "45");
    digitar(perfilForm, "Text8", "24");
    digitar(perfilForm, "Text1", "4.2");
    clicar(perfilForm, "Command8");
    avançar();
    const auto& f = *form7.operator->();
    EXPECT_EQ(f.Caption, "Perfil Transversal de Aplicação de Água com Vento - Aspersor Canhão A");
    EXPECT_EQ(f.Label20.texto, "Aspersor: Canhão A");
    EXPECT_EQ(f.Label19.texto, "Bocais: 20 x 7 mm");
    EXPECT_EQ(f.Label18.texto, "Pressão: 45 m.c.a.");
    EXPECT_EQ(f.Label27.texto, "Vazão: 4.2 m³/h");
    EXPECT_EQ(f.Label28.texto, "Raio: 20.00 m");
    EXPECT_TRUE(form7.visivel);
    EXPECT_FALSE(perfil.visivel);
    EXPECT_TRUE(perfil.carregada());
    EXPECT_FALSE(form1.carregada());
}

TEST_F(SimulaçãoDoMedido, SemNomeOTítuloDizNãoEspecificado) {
    avançar();
    EXPECT_EQ(form7.caption(),
              "Perfil Transversal de Aplicação de Água com Vento - Aspersor não Especificado");
    EXPECT_EQ(form7->Label20.texto, "Aspersor: Não especificado");
}

TEST_F(SimulaçãoDoMedido, OEspaçamentoÉOMaisPróximoDe5PorCentoDoAlcance) {
    // 5 % of 20 m is 1 m, nearest to 1.5 m.
    avançar();
    EXPECT_EQ(form7->Combo2.texto, "1.5");
    EXPECT_EQ(form7->HScroll1.valor, 0);
    EXPECT_EQ(form7->HScroll2.valor, 0);
    EXPECT_EQ(form7->HScroll3.valor, 60);
}

TEST_F(SimulaçãoDoMedido, MostraSóOsBotõesDoSeuCaminho) {
    avançar();
    const auto& f = *form7.operator->();
    EXPECT_FALSE(f.Command2.visivel || f.Command3.visivel || f.cmdUniformidade.visivel || f.Command4.visivel);
    EXPECT_TRUE(f.Command8.visivel && f.Command7.visivel && f.Command9.visivel && f.Command6.visivel);
    EXPECT_TRUE(f.Command9.habilitado);
    EXPECT_TRUE(f.Command7.habilitado);
    EXPECT_FALSE(f.Command3.habilitado);
}

TEST_F(SimulaçãoDoMedido, UmaMudançaDesabilitaOAvançoAtéCalcular) {
    avançar();
    digitar(form7, "Text1", "60");
    EXPECT_FALSE(form7->Command9.habilitado);
    EXPECT_FALSE(form7->Command7.habilitado);
    clicar(form7, "Command8");
    EXPECT_TRUE(form7->Command9.habilitado);
    EXPECT_TRUE(form7->Command7.habilitado);
}

TEST_F(SimulaçãoDoMedido, EntradasInválidasSãoRecusadasComoNasDoCatálogo) {
    avançar();
    caderno.clear();
    digitar(form7, "Text1", "0");
    clicar(form7, "Command8");
    EXPECT_EQ(caderno,
              std::vector<std::string>{"mensagem: O valor de velocidade do aspersor deve ser maior que "
                                       "zero e menor que 300 m/h!"});
    EXPECT_FALSE(form7->Command9.habilitado);
}

TEST_F(SimulaçãoDoMedido, SemÂnguloDoJatoAvisaACadaCálculo) {
    avançar();
    EXPECT_EQ(caderno, std::vector{"aviso: " + avisoDoÂngulo});
    EXPECT_EQ(form7->lblAviso.texto, "Aviso: " + avisoDoÂngulo);
    caderno.clear();
    clicar(form7, "Command8");
    EXPECT_EQ(caderno, std::vector{"aviso: " + avisoDoÂngulo});
}

TEST_F(SimulaçãoDoMedido, ComÂnguloDoJatoNãoAvisa) {
    abrirPerfilForm();
    digitar(perfilForm, "Text8", "24");
    digitar(perfilForm, "Text1", "4.2");
    clicar(perfilForm, "Command8");
    avançar();
    EXPECT_EQ(caderno, std::vector<std::string>{});
    EXPECT_EQ(form7->lblAviso.texto, "");
}

TEST_F(SimulaçãoDoMedido, OAvisoDoÂnguloVemDepoisDosDoModelo) {
    ContagemDoModelo contagem;
    contagem.pontos = 10;
    contagem.semConvergência = 2;
    Rotulo lblAviso;
    caderno.clear();
    avisarDoModelo(lblAviso, contagem);
    avisarDoÂngulo(lblAviso, aspersorMedido());
    EXPECT_EQ(lblAviso.texto,
              "Aviso: em 2 de 10 pontos o modelo de vento não convergiu; os valores podem não "
              "ter sentido físico.\nAviso: " +
                  avisoDoÂngulo);
    EXPECT_EQ(caderno.size(), 2U);
}

TEST_F(SimulaçãoDoMedido, OÂnguloDoJatoVemDoEnsaio) {
    EXPECT_EQ(lerSimulação(aspersorMedido()).condições.anguloJato, 0);
    perfilForm->Text8.texto = "30";
    EXPECT_DOUBLE_EQ(lerSimulação(aspersorMedido()).condições.anguloJato, 30 * 3.14159265358979 / 180);
}

TEST_F(SimulaçãoDoMedido, UmPerfilUniformeDáAsLâminasDoCatálogoDeMesmoPerfil) {
    // 3 m of reach and 20 mm/h everywhere, on points 2 m apart, at 40 m/h: two points a side at 1.41 m are
    // wetted, 2 x 20 mm/h x 2 m / 40 m/h.
    avançar();
    perfil->Label17.texto = "3.00";
    for (std::size_t k = 1; k <= 22; ++k) perfil->lblIntensidade[k].texto = "20";
    form7->Combo2.texto = "2.0";
    form7->Text1.texto = "40";
    form7->Label24.texto = form7->Label33.texto = "0";
    calcularPerfilTransversalOu();
    EXPECT_EQ(lâminas(), (std::vector<double>{0, 2, 2, 0}));
}

TEST_F(SimulaçãoDoMedido, UmaLegendaQueNãoÉNúmeroÉUmErro) {
    avançar();
    perfil->lblIntensidade[4].texto = "x";
    EXPECT_EQ(erroDe(calcularPerfilTransversalOu), "Tipos incompatíveis");
}

TEST_F(SimulaçãoDoMedido, VoltarMostraPerfil) {
    avançar();
    clicar(form7, "Command6");
    EXPECT_FALSE(form7.carregada());
    EXPECT_TRUE(perfil.visivel);
    EXPECT_FALSE(form3.visivel);
    EXPECT_FALSE(form3.habilitada);
    avançar();
    EXPECT_TRUE(form7.visivel);
}

TEST_F(SimulaçãoDoMedido, FecharFechaPerfilEDevolveOMenu) {
    avançar();
    clicar(form7, "cmdSair");
    EXPECT_FALSE(form7.carregada());
    EXPECT_FALSE(perfil.carregada());
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

/// A catalogue profile as a radial test: a reading on its first segment and one on its last, so that both
/// ends close where the catalogue's do, and those at its own 20 distances between.
Leituras ensaioDoCatálogo() {
    const double R = lerPrefixo(form1->lblRaioAlcance.texto);
    const auto i = [](std::size_t k) { return lerPrefixo(form1->lblIntensidade[k].texto); };
    const auto leitura = [](double r, double i) {
        return std::pair{Format(r, "0.000000"), Format(i, "0.000000")};
    };
    Leituras leituras{leitura(0.0125 * R, (i(1) + i(2)) / 2)};
    for (std::size_t k = 2; k <= 21; ++k)
        leituras.push_back(leitura((0.025 + 0.05 * static_cast<double>(k - 2)) * R, i(k)));
    leituras.push_back(leitura(0.995 * R, 0.2 * i(21)));
    return leituras;
}

TEST_F(SimulaçãoDoMedido, UmPerfilDoCatálogoDigitadoSimulaAsMesmasLâminas) {
    for (const auto* item : {"TX15B", "TX20B", "TX30B"}) {
        recomeçar();
        clicar(form3, item);
        const auto ensaio = ensaioDoCatálogo();
        const auto raio = lerPrefixo(form1->lblRaioAlcance.texto);
        clicar(form1, "Command3");
        const auto doCatálogo = lâminas();

        abrirPerfilForm(ensaio);
        digitar(perfilForm, "Text8", "24");
        respostas.push_back(false);
        clicar(perfilForm, "Command8");
        // The entry rounds distances to a centimetre and readings to a thousandth of mm/h.
        EXPECT_NEAR(lerPrefixo(perfil->Label17.texto), raio, 0.02);
        avançar();
        const auto doMedido = lâminas();
        ASSERT_EQ(doMedido.size(), doCatálogo.size());
        for (std::size_t k = 0; k < doMedido.size(); ++k)
            EXPECT_NEAR(doMedido[k], doCatálogo[k], 0.02) << item << " at " << k;
    }
}

} // namespace
} // namespace varenta::teste
