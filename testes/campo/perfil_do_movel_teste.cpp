#include "campo/perfil_do_movel.h"

#include "apoio/ensaios.h"
#include "comum/numeros.h"
#include "simulacao/form7.h"

#include <cmath>
#include <numbers>

namespace varenta::teste {
namespace {

constexpr double pi = std::numbers::pi;

PerfilMóvel perfilMóvel(std::vector<double> D, double espaço) {
    PerfilMóvel perfil{{}, std::move(D), espaço};
    for (std::size_t j = 0; j < perfil.D.size(); ++j)
        perfil.x.push_back(espaço * (static_cast<double>(j) + 0.5));
    return perfil;
}

TEST(Cordas, ACheiaÉMeiaCordaEZeroForaDoCírculo) {
    EXPECT_EQ(cordaCheia(3, 5), 4);
    EXPECT_EQ(cordaCheia(5, 5), 0);
    EXPECT_EQ(cordaCheia(6, 5), 0);
}

TEST(Cordas, ADoSetorTerminaNaBordaDoSetorSeco) {
    const double trintaGraus = pi / 6;
    // sin 30º = 0.5: at 2 of 5 the sector cuts the chord at 2 / tan 30º = 2 x 1.7320508.
    EXPECT_NEAR(cordaSetor(2, 5, trintaGraus), 3.4641016151, 1e-9);
    EXPECT_EQ(cordaSetor(3, 5, trintaGraus), 4);
    EXPECT_EQ(cordaSetor(5, 5, trintaGraus), 0);
}

TEST(Cordas, ComOCírculoInteiroAsDuasMetadesSãoIguais) {
    for (const double x : {0.5, 1.0, 2.5, 4.9, 5.0, 7.0}) EXPECT_EQ(cordaSetor(x, 5, 0), cordaCheia(x, 5));
}

TEST(CentroSegmento, ÉOCentroideDoSegmento) {
    // r = 5, x = 3: 2 x 64 / (3 x (25 x atan(4/3) - 12)) = 128 / 33.54714.
    EXPECT_NEAR(centroSegmento(5, 3), 3.81552, 1e-5);
    // A half circle's centroid is at 4 r / (3 pi).
    EXPECT_NEAR(centroSegmento(2, 1e-9), 8 / (3 * pi), 1e-8);
}

TEST(InverterPerfilMóvel, DoisAnéisFeitosÀMão) {
    // Collectors at 1 and 3 m, depths 4 and 2 mm: the line reaches 0 at 5 m. At 10 m/h the outer ring is
    // under water for 8 m / 10 m/h at 3 m: 2.5 mm/h. At 1 m it is for 2 (sqrt 24 - sqrt 8) / 10 h, so it
    // gives 1.035276 mm there; the rest falls in 2 sqrt 8 / 10 h: 5.240941 mm/h.
    const auto [R, anéis] = inverterPerfilMóvel(perfilMóvel({4, 2}, 2), 10, 0);
    EXPECT_DOUBLE_EQ(R, 5);
    ASSERT_EQ(anéis.size(), 3U);
    EXPECT_NEAR(anéis[1].i, 2.5, 1e-12);
    EXPECT_NEAR(anéis[1].r, 3.81552, 1e-5);
    EXPECT_NEAR(anéis[0].i, 5.240941, 1e-6);
    EXPECT_NEAR(anéis[0].r, 1.828432, 1e-6);
    EXPECT_EQ(anéis[2].r, 5);
    EXPECT_EQ(anéis[2].i, 0);
}

TEST(InverterPerfilMóvel, OAlcancePassaUmQuartoDeEspaçoDaÚltimaMolhada) {
    // From 10 to 1 mm the line reaches 0 at 3 + 2/9 m; 3.5 m is farther.
    EXPECT_EQ(inverterPerfilMóvel(perfilMóvel({10, 1}, 2), 10, 0).R, 3.5);
}

TEST(InverterPerfilMóvel, PosiçõesSecasAlémDaÚltimaMolhadaNãoContam) {
    const auto com = inverterPerfilMóvel(perfilMóvel({4, 2, 0, 0}, 2), 10, 0);
    const auto sem = inverterPerfilMóvel(perfilMóvel({4, 2}, 2), 10, 0);
    EXPECT_EQ(com.R, sem.R);
    EXPECT_EQ(com.anéis.size(), sem.anéis.size());
}

/// The depth at x under rings of constant intensity, by walking along the sprinkler's path in small steps:
/// ahead of the sprinkler the circle is whole, behind it the sector of half angle `alfa` is dry.
double lâminaPassoAPasso(double x, const std::vector<double>& limites, const std::vector<double>& anéis,
                         double alfa, double V) {
    constexpr double passo = 1e-4;
    double soma = 0;
    for (double y = passo / 2; y < limites.back(); y += passo) {
        const double r = std::hypot(x, y);
        for (std::size_t k = 0; k < anéis.size(); ++k) {
            if (r < limites[k] || r >= limites[k + 1]) continue;
            soma += anéis[k] * passo / V;
            if (std::atan2(x, y) >= alfa) soma += anéis[k] * passo / V;
        }
    }
    return soma;
}

TEST(InverterPerfilMóvel, DevolveOsAnéisDeUmCampoPercorridoPassoAPasso) {
    // Collectors at 1, 3, 5, 7 m; the last two depths meet 0 at the rim, at 8 m.
    const double R = 8, V = 20;
    const std::vector<double> limites{1, 3, 5, 7, R};
    for (const double graus : {0.0, 20.0, 60.0}) {
        const double alfa = graus * pi / 180;
        std::vector<double> anéis{9, 4, 0, 6};
        const auto lâmina = [&](double x) { return lâminaPassoAPasso(x, limites, anéis, alfa, V); };
        // The third ring is what makes the line of the last two depths end at 8 m: D(5) = 3 D(7).
        const double semEle = lâmina(5);
        anéis[2] = 1;
        anéis[2] = (3 * lâmina(7) - semEle) / (lâmina(5) - semEle);
        std::vector<double> D;
        for (const double x : {1.0, 3.0, 5.0, 7.0}) D.push_back(lâmina(x));
        const auto invertido = inverterPerfilMóvel(perfilMóvel(D, 2), V, alfa);
        EXPECT_NEAR(invertido.R, R, 1e-3);
        for (std::size_t k = 0; k < 4; ++k) EXPECT_NEAR(invertido.anéis[k].i, anéis[k], 0.01) << graus;
    }
}

TEST(InverterPerfilMóvel, UmCírculoUniformeDáOPerfilUniforme) {
    // 10 mm/h within 31.5 m: the chord at x is 2 sqrt(31.5² - x²). The line of the last depths overshoots the
    // rim, so the outermost rings take the error; it dies out inward.
    const double V = 50;
    std::vector<double> D;
    for (int j = 1; j <= 20; ++j) {
        const double x = 2 * (j - 0.5);
        D.push_back(x < 31.5 ? 10 * 2 * std::sqrt(31.5 * 31.5 - x * x) / V : 0);
    }
    const auto invertido = inverterPerfilMóvel(perfilMóvel(D, 2), V, 0);
    ASSERT_EQ(invertido.anéis.size(), 17U);
    for (std::size_t k = 0; k < 10; ++k) EXPECT_NEAR(invertido.anéis[k].i, 10, 0.1);
    for (std::size_t k = 10; k < 14; ++k) EXPECT_NEAR(invertido.anéis[k].i, 10, 0.4);
}

TEST(InverterPerfilMóvel, UmAnelNegativoSegueComoVem) {
    // A dip that the outer ring alone more than fills.
    EXPECT_LT(inverterPerfilMóvel(perfilMóvel({0.5, 2, 1}, 2), 10, 0).anéis[0].i, 0);
}

TEST(InverterPerfilMóvel, UmaSóPosiçãoMolhadaNãoTemPenúltima) {
    EXPECT_EQ(erroDe([] { inverterPerfilMóvel(perfilMóvel({4, 0}, 2), 10, 0); }), "Índice fora dos limites");
    EXPECT_EQ(erroDe([] { recusaDoPerfilMóvel(perfilMóvel({4, 0}, 2)); }), "Índice fora dos limites");
    EXPECT_EQ(erroDe([] { recusaDoPerfilMóvel(perfilMóvel({0, 0}, 2)); }), "Índice fora dos limites");
}

TEST(InverterPerfilMóvel, DuasÚltimasLâminasIguaisSãoDivisãoPorZero) {
    EXPECT_EQ(erroDe([] { inverterPerfilMóvel(perfilMóvel({2, 2}, 2), 10, 0); }), "Divisão por zero");
    EXPECT_EQ(recusaDoPerfilMóvel(perfilMóvel({2, 2}, 2)), nullptr);
}

TEST(InverterPerfilMóvel, VelocidadeZeroÉDivisãoPorZero) {
    EXPECT_EQ(erroDe([] { inverterPerfilMóvel(perfilMóvel({4, 2}, 2), 0, 0); }), "Divisão por zero");
}

TEST(RecusaDoPerfilMóvel, UmaLâminaNegativaÉRecusada) {
    EXPECT_STREQ(recusaDoPerfilMóvel(perfilMóvel({4, -0.001, 2}, 2)),
                 "Os valores de lâmina devem ser positivos!");
}

TEST(RecusaDoPerfilMóvel, SóOÚltimoParÉConferido) {
    EXPECT_STREQ(recusaDoPerfilMóvel(perfilMóvel({4, 1, 2}, 2)),
                 "A média do penúltimo valor deve ser maior que o último valor em cada lado da linha!");
    // It rises from 1 to 3 further in.
    EXPECT_EQ(recusaDoPerfilMóvel(perfilMóvel({4, 1, 3, 2}, 2)), nullptr);
}

// The whole road, from the screen to `Perfil`.

class PerfilDoMóvel : public testing::Test {
  protected:
    void SetUp() override { abrirFormEC("PerfRad", {{"2"}, {"4"}, {"4"}, {"2"}}); }

    static void gerar() { clicar(formEC, "Command6"); }
};

/// Litres an hour of the rings of the hand-made case at 50 m/h, where they are five times as strong:
/// (1.828432 m, 26.204704 mm/h), (3.815526, 12.5), (5, 0). The central disc counts for nothing.
double vazãoFeitaÀMão() {
    const auto trecho = [](double r1, double i1, double r2, double i2) {
        // Simpson's rule, exact for i r.
        const double meio = (r1 + r2) / 2 * ((i1 + i2) / 2);
        return 2 * pi * (r2 - r1) / 6 * (i1 * r1 + 4 * meio + i2 * r2);
    };
    return trecho(1.828432124, 26.204703964, 3.815526297, 12.5) + trecho(3.815526297, 12.5, 5, 0);
}

TEST_F(PerfilDoMóvel, SemVazãoQualquerRespostaEscreveASomaEAPerguntaSegue) {
    for (const bool resposta : {true, false}) {
        abrirFormEC("PerfRad", {{"2"}, {"4"}, {"4"}, {"2"}});
        respostas = {resposta, true};
        gerar();
        EXPECT_EQ(caderno.size(), 2U);
        EXPECT_TRUE(caderno[0].starts_with("pergunta: Insira um valor de vazão.")) << caderno[0];
        EXPECT_TRUE(caderno[1].starts_with("pergunta: A vazão estimada diferiu em 10%")) << caderno[1];
        EXPECT_NEAR(lerPrefixo(formEC->Text12.texto), vazãoFeitaÀMão(), 0.001);
        EXPECT_TRUE(perfil.visivel);
    }
}

TEST_F(PerfilDoMóvel, NãoÀDiferençaVoltaADigitarETermina) {
    formEC->Option1.marcada = false;
    formEC->Option2.marcada = true;
    formEC->Text12.texto = "99";
    respostas = {false};
    gerar();
    EXPECT_EQ(caderno.size(), 1U);
    EXPECT_TRUE(formEC->Option1.marcada);
    EXPECT_FALSE(formEC->Option2.marcada);
    EXPECT_FALSE(perfil.carregada());
    EXPECT_TRUE(formEC.visivel);
}

TEST_F(PerfilDoMóvel, UmaVazãoQueNãoÉPositivaÉRecusada) {
    for (const auto* vazão : {"0", "-1"}) {
        caderno.clear();
        digitar(formEC, "Text12", vazão);
        gerar();
        EXPECT_EQ(caderno, std::vector<std::string>{"mensagem: Valor numérico de vazão inválido!"});
        EXPECT_EQ(formEC->Text12.texto, vazão);
        EXPECT_EQ(controleComFoco, &formEC->Text12);
    }
}

TEST_F(PerfilDoMóvel, MostraOPerfilNaEscalaDaVazão) {
    digitar(formEC, "Text6", "Canhão B");
    digitar(formEC, "Text8", "22");
    digitar(formEC, "Text13", "50");
    digitar(formEC, "Text1", "24");
    const double Q = vazãoFeitaÀMão() / 1000;
    digitar(formEC, "Text12", Format(Q, "0.000000"));
    gerar();
    EXPECT_EQ(caderno, std::vector<std::string>{});
    const auto& p = *perfil.operator->();
    EXPECT_EQ(p.Caption, "Características Técnicas do Aspersor Canhão B");
    EXPECT_EQ(p.Label11.texto, "Aspersor: Canhão B");
    EXPECT_EQ(p.Label13.texto, "Bocais: 22 mm");
    EXPECT_EQ(p.Label1.texto, "Pressão de Serviço: 50 m.c.a.");
    EXPECT_EQ(p.Label2.texto, "0.849");
    EXPECT_EQ(p.Label17.texto, "5.00");
    // Radii of 5 m x 0.025, 0.075, ... in one decimal: 0.125, 0.375, 0.625.
    EXPECT_EQ(p.lblRaio[1].texto, "0.0");
    EXPECT_EQ(p.lblRaio[3].texto, "0.4");
    EXPECT_EQ(p.lblRaio[22].texto, "5.0");
    // Inside the first ring, up to 1.83 m, its own 26.205 mm/h; 0 at the reach.
    for (std::size_t k = 1; k <= 8; ++k)
        EXPECT_NEAR(lerPrefixo(p.lblIntensidade[k].texto), 26.205, 0.02) << k;
    EXPECT_LT(lerPrefixo(p.lblIntensidade[9].texto), 26.1);
    EXPECT_EQ(p.lblIntensidade[22].texto, "0.000");
    EXPECT_FALSE(formEC.visivel);
}

TEST_F(PerfilDoMóvel, SemDadosOsTextosDizemOQueNãoSeSabe) {
    digitar(formEC, "Text12", "0.849");
    gerar();
    const auto& p = *perfil.operator->();
    EXPECT_EQ(p.Label11.texto, "Aspersor: Não especificado");
    EXPECT_EQ(p.Label13.texto, "Bocais: N/E");
    EXPECT_EQ(p.Label1.texto, "Pressão de Serviço: N/E");
}

TEST_F(PerfilDoMóvel, OGráficoTemPassoDeUmQuintoDoMaiorValor) {
    digitar(formEC, "Text12", "0.849");
    gerar();
    // 26.2 / 5 = 5.24, a curve's overshoot of 1 % included; 5 / 9 = 0.56.
    EXPECT_EQ(perfil->Label7[1].texto, "5.2");
    EXPECT_EQ(perfil->Label6[1].texto, "0.6");
}

TEST_F(PerfilDoMóvel, VoltarMostraOEnsaioESalvarEstáLá) {
    digitar(formEC, "Text12", "0.849");
    gerar();
    EXPECT_TRUE(perfil->Command5.visivel);
    EXPECT_TRUE(perfil->Command4.visivel);
    EXPECT_FALSE(perfil->Command2.visivel);
    clicar(perfil, "Command5");
    EXPECT_FALSE(perfil.carregada());
    EXPECT_TRUE(formEC.visivel);
    EXPECT_FALSE(form3.visivel);
    EXPECT_EQ(formEC->flex_A.célula(2, 1), "4.000");
}

TEST_F(PerfilDoMóvel, AMédiaDosDoisLadosEDasLinhasÉOPerfil) {
    // Sides of 5 and 3, 1 and 3 mm, each line 1 mm off: means of 4 and 2.
    abrirFormEC("PerfRad", {{"0", "2"}, {"4", "6"}, {"2", "4"}, {"2", "4"}});
    respostas = {true, true};
    gerar();
    EXPECT_NEAR(lerPrefixo(formEC->Text12.texto), vazãoFeitaÀMão(), 0.001);
}

TEST_F(PerfilDoMóvel, VolumesDãoAsMesmasLâminas) {
    // A collector of 20 m has pi x 10^6 cm²: 4 mm are 4 x 10^5 pi ml. So large a one, since the cells keep
    // only three decimals.
    clicar(formEC, "Option3");
    for (int l = 1; l <= 4; ++l)
        atos::preencherCélula(alvo(formEC, "flex_A"), l, 1, l == 1 || l == 4 ? "628318.531" : "1256637.061");
    digitar(formEC, "Text7", "2000");
    respostas = {true, true};
    gerar();
    EXPECT_NEAR(lerPrefixo(formEC->Text12.texto), vazãoFeitaÀMão(), 0.001);
}

TEST_F(PerfilDoMóvel, LâminasQueNãoDãoPerfilSãoRecusadasETudoFica) {
    abrirFormEC("PerfRad", {{"2"}, {"4"}, {"-5"}, {"2"}});
    gerar();
    EXPECT_EQ(caderno, std::vector<std::string>{"mensagem: Os valores de lâmina devem ser positivos!"});
    abrirFormEC("PerfRad", {{"4"}, {"2"}, {"2"}, {"4"}});
    gerar();
    EXPECT_EQ(caderno,
              std::vector<std::string>{"mensagem: A média do penúltimo valor deve ser maior que o último "
                                       "valor em cada lado da linha!"});
    EXPECT_FALSE(perfil.carregada());
    EXPECT_EQ(formEC->Text12.texto, "");
}

TEST_F(PerfilDoMóvel, UmaPosiçãoMolhadaOuDuasIguaisTerminamComErroDeExecução) {
    abrirFormEC("PerfRad", {{"0"}, {"4"}, {"4"}, {"0"}});
    gerar();
    EXPECT_EQ(caderno,
              std::vector<std::string>{"erro: Índice fora dos limites: "
                                       "confira a velocidade e as lâminas: é preciso ter água em duas "
                                       "posições de cada lado, com lâminas diferentes nas duas últimas"});
    abrirFormEC("PerfRad", {{"4"}, {"4"}, {"4"}, {"4"}});
    gerar();
    EXPECT_EQ(caderno,
              std::vector<std::string>{"erro: Divisão por zero: "
                                       "confira a velocidade e as lâminas: é preciso ter água em duas "
                                       "posições de cada lado, com lâminas diferentes nas duas últimas"});
}

TEST_F(PerfilDoMóvel, UmÂnguloDeGiroQueNãoÉÂnguloÉRecusado) {
    for (const auto* ângulo : {"abc", "-1", "361"}) {
        abrirFormEC("PerfRad", {{"1"}, {"4"}, {"4"}, {"1"}});
        digitar(formEC, "Text9", ângulo);
        gerar();
        EXPECT_EQ(caderno,
                  std::vector<std::string>{"mensagem: O valor de ângulo de giro deve estar entre 0 - 360º!"})
            << ângulo;
        EXPECT_EQ(controleComFoco, &formEC->Text9);
    }
}

TEST_F(PerfilDoMóvel, UmEspaçamentoQueSóComeçaPorUmNúmeroÉRecusado) {
    abrirFormEC("PerfRad", {{"1"}, {"4"}, {"4"}, {"1"}});
    digitar(formEC, "Combo4", "2,5");
    gerar();
    EXPECT_EQ(caderno, std::vector<std::string>{
                           "mensagem: O espaçamento entre coletores deve ser 1, 1.5, 2, 3 ou 6 m!"});
}

TEST_F(PerfilDoMóvel, SegueParaASimulaçãoComÂnguloZero) {
    abrirFormEC("PerfRad", {{"1"},
                            {"2"},
                            {"3"},
                            {"4"},
                            {"5"},
                            {"6"},
                            {"7"},
                            {"8"},
                            {"8"},
                            {"7"},
                            {"6"},
                            {"5"},
                            {"4"},
                            {"3"},
                            {"2"},
                            {"1"}});
    digitar(formEC, "Text6", "Canhão B");
    digitar(formEC, "Text1", "24");
    respostas = {true, true};
    gerar();
    ASSERT_TRUE(perfil.visivel);
    caderno.clear();
    clicar(perfil, "Command6");
    EXPECT_TRUE(form7.visivel);
    EXPECT_EQ(caderno, std::vector<std::string>{"aviso: Ângulo do jato não informado: a simulação usa 0º."});
    EXPECT_EQ(form7->Label20.texto, "Aspersor: Canhão B");
    EXPECT_EQ(form7->Label18.texto, "Pressão de Serviço: N/E");
}

} // namespace
} // namespace varenta::teste
