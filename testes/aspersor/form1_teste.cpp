#include "aspersor/form1.h"

#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/atualizar_aspersor.h"
#include "comum/ajuda.h"
#include "comum/numeros.h"
#include "shell/form3.h"

#include <gtest/gtest.h>

#include <vector>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

/// The screen of a catalogue sprinkler, opened from the menu as a person does.
class TelaDoAspersor : public testing::Test {
  protected:
    void SetUp() override { recomeçar(); }

    void abrir(std::string_view item) { atos::clicar(alvo(form3, item)); }
    void escolher(std::string_view lista, std::string_view texto) {
        atos::escolher(alvo(form1, lista), texto);
    }
    void rolar(int pressão) { atos::rolar(alvo(form1, "hsbPressão"), pressão); }
    void clicar(std::string_view nome) { atos::clicar(alvo(form1, nome)); }
    void mouse(double x, double y) { atos::moverMouse(alvo(form1, "Picture1"), x, y); }

    /// TX15 with 18 mm alone at 50 m.c.a., the case that is easily worked by hand: the effective pressure is
    /// a catalogue pressure and both mean intensities are one.
    void abrirCasoSimples() {
        abrir("TX15B");
        escolher("Combo2", "0 mm");
    }

    static Textos números() {
        return {form1->lblVazão.texto, form1->lblRaioAlcance.texto, form1->lblInt.texto};
    }
    static std::string raio(std::size_t k) { return form1->lblRaio[k].texto; }
    static std::string intensidade(std::size_t k) { return form1->lblIntensidade[k].texto; }
    static Textos tudo() {
        Textos tudo = números();
        for (std::size_t k = 1; k <= 22; ++k) tudo.push_back(raio(k) + " " + intensidade(k));
        for (const auto& eixo : {textos(form1->Label6), textos(form1->Label7)})
            tudo.insert(tudo.end(), eixo.begin(), eixo.end());
        return tudo;
    }
    static Linha traço(std::size_t n) { return std::get<Linha>(form1->Picture1.traços.at(n)); }
};

TEST_F(TelaDoAspersor, TX15AbreComAsSuasListasPadrõesEFaixa) {
    abrir("TX15B");
    EXPECT_EQ(form1->Caption, "Características Técnicas do Aspersor KELMO-TX 15");
    EXPECT_EQ(form1->Combo1.itens,
              (Textos{"14 mm", "16 mm", "18 mm", "20 mm", "22 mm", "24 mm", "26 mm", "28 mm"}));
    EXPECT_EQ(form1->Combo2.itens, (Textos{"0 mm", "5 mm", "6 mm", "7 mm"}));
    EXPECT_EQ(form1->Combo1.texto, "18 mm");
    EXPECT_EQ(form1->Combo2.texto, "6 mm");
    EXPECT_EQ(form1->hsbPressão.mínimo, 30);
    EXPECT_EQ(form1->hsbPressão.máximo, 70);
}

TEST_F(TelaDoAspersor, TX20AbreComAsSuasListasPadrõesEFaixa) {
    abrir("TX20B");
    EXPECT_EQ(form1->Caption, "Características Técnicas do Aspersor KELMO-TX 20");
    EXPECT_EQ(form1->Combo1.itens,
              (Textos{"22 mm", "24 mm", "26 mm", "28 mm", "30 mm", "32 mm", "34 mm", "36 mm", "38 mm"}));
    EXPECT_EQ(form1->Combo2.itens, (Textos{"0 mm", "5 mm", "6 mm", "7 mm"}));
    EXPECT_EQ(form1->Combo1.texto, "28 mm");
    EXPECT_EQ(form1->Combo2.texto, "6 mm");
    EXPECT_EQ(form1->hsbPressão.mínimo, 30);
    EXPECT_EQ(form1->hsbPressão.máximo, 70);
}

TEST_F(TelaDoAspersor, TX30AbreComAsSuasListasPadrõesEFaixa) {
    abrir("TX30B");
    EXPECT_EQ(form1->Caption, "Características Técnicas do Aspersor KELMO-TX 30");
    EXPECT_EQ(form1->Combo1.itens, (Textos{"34 mm", "36 mm", "38 mm", "40 mm", "42 mm", "44 mm"}));
    EXPECT_EQ(form1->Combo1.texto, "38 mm");
    EXPECT_EQ(form1->hsbPressão.mínimo, 40);
    EXPECT_EQ(form1->hsbPressão.máximo, 70);
}

TEST_F(TelaDoAspersor, NoTX30OBocalAuxiliarFicaVazioEOSeuTextoNãoConta) {
    abrir("TX30B");
    EXPECT_EQ(form1->Combo2.itens, Textos{});
    EXPECT_EQ(form1->Combo2.texto, "");
    const auto antes = tudo();
    form1->Combo2.texto = "7 mm";
    atualizarAspersor();
    EXPECT_EQ(tudo(), antes);
}

TEST_F(TelaDoAspersor, PressãoAbreEm50ComPassosDe5EmTodosOsModelos) {
    for (const char* item : {"TX15B", "TX20B", "TX30B"}) {
        recomeçar();
        abrir(item);
        EXPECT_EQ(form1->hsbPressão.valor, 50);
        EXPECT_EQ(form1->hsbPressão.passoPequeno, 5);
        EXPECT_EQ(form1->hsbPressão.passoGrande, 5);
        EXPECT_TRUE(form1->optMCA.marcada);
        EXPECT_EQ(form1->lblPressão.texto, "50");
        EXPECT_EQ(form1->Label12.texto, "24");
        EXPECT_EQ(form1->Label15.texto, "r =");
        EXPECT_EQ(form1->Label16.texto, "i =");
    }
}

TEST_F(TelaDoAspersor, APressãoTemOsSeusPassosAindaSemModelo) {
    EXPECT_EQ(form1->hsbPressão.valor, 50);
    EXPECT_EQ(form1->hsbPressão.passoPequeno, 5);
    EXPECT_EQ(form1->hsbPressão.passoGrande, 5);
}

TEST_F(TelaDoAspersor, FaixaDePressãoÉDoModelo) {
    abrir("TX15B");
    EXPECT_EQ(recusaDe([&] { rolar(29); }), "form1.hsbPressão vai de 30 a 70");
    EXPECT_EQ(recusaDe([&] { rolar(71); }), "form1.hsbPressão vai de 30 a 70");
    recomeçar();
    abrir("TX30B");
    EXPECT_EQ(recusaDe([&] { rolar(39); }), "form1.hsbPressão vai de 40 a 70");
}

// The numbers of the next four tests were worked with decimals from the formulas and the printed rows.

TEST_F(TelaDoAspersor, TX15De18mmSemAuxiliarA50UsaALinhaDos50SemMudança) {
    abrirCasoSimples();
    EXPECT_EQ(números(), (Textos{"26.51", "43.11", "4.54"}));
    // Ip = 26.50646 / (43.1058² x pi) x 1000 = 4.540780; x 1.3099 and x 1.4555.
    EXPECT_EQ(intensidade(1), "5.948");
    EXPECT_EQ(intensidade(2), "6.609");
}

TEST_F(TelaDoAspersor, SemAuxiliarAIntensidadeNoAlcanceÉZero) {
    for (const char* item : {"TX15B", "TX20B"}) {
        recomeçar();
        abrir(item);
        escolher("Combo2", "0 mm");
        for (const auto& bocal : Textos{form1->Combo1.itens}) {
            escolher("Combo1", bocal);
            EXPECT_EQ(intensidade(22), "0.000");
        }
    }
}

TEST_F(TelaDoAspersor, ComAuxiliarOsDoisJatosSeSomamNoCentro) {
    abrir("TX15B");
    // Pe = 48.991231, Ip = 4.581352, Ia = 1.880633; rows of 18 mm and of 6 mm between 40 and 50.
    EXPECT_EQ(números(), (Textos{"29.13", "42.70", "5.09"}));
    EXPECT_EQ(intensidade(1), "5.885");
    recomeçar();
    abrir("TX20B");
    EXPECT_EQ(números(), (Textos{"48.14", "49.85", "6.17"}));
    EXPECT_EQ(intensidade(1), "4.156");
}

TEST_F(TelaDoAspersor, ComPressãoEfetivaAbaixo30SóAPrimeiraLinhaValeParaOsDoisJatos) {
    abrir("TX15B");
    escolher("Combo1", "14 mm");
    escolher("Combo2", "7 mm");
    rolar(30);
    // Pe = 29.079435; 2.0919 x 4.277778 + 0.0037 x 2.557760.
    EXPECT_EQ(números(), (Textos{"15.19", "29.89", "5.41"}));
    EXPECT_EQ(intensidade(1), "8.958");
}

TEST_F(TelaDoAspersor, AlémDoAlcanceDoAuxiliarSóOJatoPrincipalConta) {
    abrir("TX15B");
    // The auxiliary jet reaches 22.1158 m. At 42.6964 x 0.525 = 22.4156 m the main jet stands alone with
    // 0.9984 at 50 and 0.9342 at 40, interpolated at Pe = 48.991231 and times Ip = 4.581352.
    EXPECT_EQ(raio(12), "22.416");
    const double só = (0.9342 + (0.9984 - 0.9342) * 0.8991231) * 4.581352;
    EXPECT_NEAR(lerEstrito(intensidade(12)), só, 0.0006);
    // One point earlier, at 20.2808 m, the auxiliary jet still adds its share.
    const double principal = (0.6141 + (0.9137 - 0.6141) * 0.8991231) * 4.581352;
    EXPECT_EQ(raio(11), "20.281");
    EXPECT_GT(lerEstrito(intensidade(11)), principal + 0.5);
}

TEST_F(TelaDoAspersor, OsRaiosDoTX15SeguemOAlcanceSemArredondamento) {
    abrirCasoSimples();
    EXPECT_EQ(raio(1), "0.000");
    EXPECT_EQ(raio(2), "1.078");
    EXPECT_EQ(raio(22), "43.106"); // the caption shows 43.11
}

TEST_F(TelaDoAspersor, OsRaiosDoTX30SeguemOAlcanceComoEstáEscrito) {
    abrir("TX30B");
    EXPECT_EQ(números(), (Textos{"116.71", "60.29", "10.22"}));
    EXPECT_EQ(raio(3), "4.522"); // 60.29 x 0.075 = 4.52175; with 60.2865 it would be 4.521
    EXPECT_EQ(raio(22), "60.290");
    EXPECT_EQ(intensidade(1), "4.814"); // 0.4710 x 10.221404
    rolar(55);
    EXPECT_EQ(números(), (Textos{"122.40", "63.29", "9.73"}));
    EXPECT_EQ(intensidade(1), "4.562"); // between 0.4710 and 0.4671, times 9.727108
}

TEST_F(TelaDoAspersor, TextoDeBocalQueNãoEstáNaListaContaComoNenhum) {
    abrirCasoSimples();
    const auto semAuxiliar = tudo();
    form1->Combo2.texto = "8 mm";
    atualizarAspersor();
    EXPECT_EQ(tudo(), semAuxiliar);
}

TEST_F(TelaDoAspersor, LegendaDeNenhumModeloNãoCalculaNada) {
    abrir("TX15B");
    const auto antes = tudo();
    form1->Caption = "Características Técnicas do Aspersor KELMO-TX 16";
    form1->hsbPressão.valor = 70;
    atualizarAspersor();
    EXPECT_EQ(tudo(), antes);
    EXPECT_EQ(modeloDaCaption("KELMO-TX 15"), nullptr);
    EXPECT_EQ(modeloDaCaption("Características Técnicas do Aspersor KELMO-TX 30"), &modeloTX30);
}

TEST_F(TelaDoAspersor, CadaMudançaDeBocalOuPressãoRecalculaTudo) {
    abrir("TX20B");
    auto antes = tudo();
    const auto mudou = [&] { return tudo() != std::exchange(antes, tudo()); };
    escolher("Combo1", "30 mm");
    EXPECT_TRUE(mudou());
    escolher("Combo2", "7 mm");
    EXPECT_TRUE(mudou());
    rolar(55);
    EXPECT_TRUE(mudou());
    atos::arrastar(alvo(form1, "hsbPressão"), 65);
    EXPECT_TRUE(mudou());
    EXPECT_EQ(form1->lblPressão.texto, "65");
    atos::soltar();
}

TEST_F(TelaDoAspersor, MudarOBocalDeixaAPressãoComoEstá) {
    abrir("TX15B");
    rolar(65);
    escolher("Combo1", "28 mm");
    escolher("Combo2", "5 mm");
    EXPECT_EQ(form1->hsbPressão.valor, 65);
    EXPECT_EQ(form1->lblPressão.texto, "65");
    EXPECT_EQ(form1->Combo1.itens.size(), 8u);
}

TEST_F(TelaDoAspersor, Em50mcaAUnidadeKgfMostra5_0) {
    abrir("TX15B");
    clicar("optKG");
    EXPECT_EQ(form1->lblPressão.texto, "5.0");
    rolar(35);
    EXPECT_EQ(form1->lblPressão.texto, "3.5");
}

TEST_F(TelaDoAspersor, Em70mcaAUnidadeKPaMostra686) {
    abrir("TX15B");
    rolar(70);
    clicar("optKPA");
    EXPECT_EQ(form1->lblPressão.texto, "686"); // 686.4655
    rolar(50);
    EXPECT_EQ(form1->lblPressão.texto, "490"); // 490.3325
    rolar(68);
    EXPECT_EQ(form1->lblPressão.texto, "667"); // 666.8522
    clicar("optMCA");
    EXPECT_EQ(form1->lblPressão.texto, "68");
}

TEST_F(TelaDoAspersor, AUnidadeSóMudaALegendaDaPressão) {
    abrir("TX15B");
    const auto antes = tudo();
    const auto versão = form1->Picture1.versão;
    clicar("optKPA");
    clicar("optKG");
    EXPECT_EQ(tudo(), antes);
    EXPECT_EQ(form1->Picture1.versão, versão);
    EXPECT_EQ(form1->hsbPressão.valor, 50);
}

TEST_F(TelaDoAspersor, OGráficoTemAMalhaEOsSessentaEUmTraçosDaCurva) {
    abrirCasoSimples();
    // 24 + 14 light lines, 9 + 5 heavy ones, 61 segments.
    ASSERT_EQ(form1->Picture1.traços.size(), 113u);
    const auto exigir = [](const Linha& l, double x1, double y1, double x2, double y2, Cor cor, int largura) {
        EXPECT_EQ((std::vector{l.x1, l.y1, l.x2, l.y2}), (std::vector{x1, y1, x2, y2}));
        EXPECT_EQ(l.cor, cor);
        EXPECT_EQ(l.largura, largura);
    };
    exigir(traço(0), 1365, 420, 1365, 3570, cores::branco, 1);
    exigir(traço(23), 1365 + 23 * 210, 420, 1365 + 23 * 210, 3570, cores::branco, 1);
    exigir(traço(24), 1155, 630, 6405, 630, cores::branco, 1);
    exigir(traço(37), 1155, 630 + 13 * 210, 6405, 630 + 13 * 210, cores::branco, 1);
    exigir(traço(38), 1680, 420, 1680, 3570, cores::preto, 1);
    exigir(traço(46), 1680 + 8 * 525, 420, 1680 + 8 * 525, 3570, cores::preto, 1);
    exigir(traço(47), 1155, 945, 6405, 945, cores::preto, 1);
    exigir(traço(51), 1155, 945 + 4 * 525, 6405, 945 + 4 * 525, cores::preto, 1);
    for (std::size_t n = 52; n < 113; ++n) {
        EXPECT_EQ(traço(n).cor, cores::azul);
        EXPECT_EQ(traço(n).largura, 2);
        if (n > 52) {
            EXPECT_EQ(traço(n).x1, traço(n - 1).x2);
            EXPECT_EQ(traço(n).y1, traço(n - 1).y2);
        }
    }
}

TEST_F(TelaDoAspersor, AsEscalasVêmDoAlcanceEscritoEDoMaiorValorDasAmostras) {
    abrirCasoSimples();
    // 43.11 / 9 = 4.79. The largest working value is 1.683808 (the curve solved in exact fractions), well
    // above the table's 1.5820; times 4.540780 and over 5 that is 1.529, where the table's would be 1.437.
    EXPECT_EQ(textos(form1->Label6),
              (Textos{"0.0", "4.8", "9.6", "14.4", "19.2", "24.0", "28.8", "33.6", "38.4", "43.2", "48.0"}));
    EXPECT_EQ(textos(form1->Label7), (Textos{"0.0", "1.5", "3.0", "4.5", "6.0", "7.5", "9.0"}));
}

TEST_F(TelaDoAspersor, ACurvaUsaOAlcanceSemArredondamento) {
    abrirCasoSimples();
    // Axes to 48 m and 9 mm/h; the first sample is 1.3099 x 4.540780 mm/h, the last one 0 at 43.1058 m.
    EXPECT_EQ(traço(52).x1, 1155);
    EXPECT_NEAR(traço(52).y1, 3570 - 3150 * 5.94796798868 / 9, 1e-6);
    EXPECT_NEAR(traço(112).x2, 5869.696875, 1e-9); // 1155 + 5250 x 43.1058 / 48
    EXPECT_EQ(traço(112).y2, 3570);
}

TEST_F(TelaDoAspersor, CadaRecálculoDesenhaOGráficoDeNovoENãoPorCima) {
    abrir("TX15B");
    rolar(55);
    rolar(60);
    EXPECT_EQ(form1->Picture1.traços.size(), 113u);
}

TEST_F(TelaDoAspersor, AsLeiturasDoMouseVêmDasEscalasEscritas) {
    abrirCasoSimples();
    mouse(1155 + 5250 / 2, 420);
    EXPECT_EQ(form1->Label15.texto, "r = 24.000 m");
    EXPECT_EQ(form1->Label16.texto, "i = 9.000 mm/h");
    EXPECT_EQ(form1.ponteiro, Ponteiro::cruz);
    mouse(1155, 3570);
    EXPECT_EQ(form1->Label15.texto, "r = 0.000 m");
    EXPECT_EQ(form1->Label16.texto, "i = 0.000 mm/h");
    form1->Label6[10].texto = "10.0";
    mouse(6405, 3570);
    EXPECT_EQ(form1->Label15.texto, "r = 10.000 m");
}

TEST_F(TelaDoAspersor, AÁreaDeLeituraIncluiAsQuatroBordasEForaDelaOPonteiroVolta) {
    abrirCasoSimples();
    for (const auto& [x, y] : {std::pair{1155, 420}, {6405, 420}, {1155, 3570}, {6405, 3570}}) {
        form1.ponteiro = Ponteiro::padrão;
        mouse(x, y);
        EXPECT_EQ(form1.ponteiro, Ponteiro::cruz) << x << ", " << y;
    }
    const auto lido = form1->Label15.texto;
    for (const auto& [x, y] : {std::pair{1154, 1000}, {6406, 1000}, {2000, 419}, {2000, 3571}}) {
        form1.ponteiro = Ponteiro::cruz;
        mouse(x, y);
        EXPECT_EQ(form1.ponteiro, Ponteiro::padrão) << x << ", " << y;
        EXPECT_EQ(form1->Label15.texto, lido);
    }
}

TEST_F(TelaDoAspersor, OMouseForaDoGráficoDevolveOPonteiro) {
    abrir("TX15B");
    mouse(2000, 1000);
    atos::moverMouse(form1);
    EXPECT_EQ(form1.ponteiro, Ponteiro::padrão);
}

TEST_F(TelaDoAspersor, FecharPeloBotãoOuPelaCaixaDevolveATelaPrincipal) {
    for (const bool peloBotão : {true, false}) {
        recomeçar();
        abrir("TX15B");
        EXPECT_FALSE(form3.visivel);
        EXPECT_FALSE(form3.habilitada);
        if (peloBotão)
            clicar("Command1");
        else
            atos::fechar(form1);
        EXPECT_FALSE(form1.carregada());
        EXPECT_TRUE(form3.visivel);
        EXPECT_TRUE(form3.habilitada);
    }
}

TEST_F(TelaDoAspersor, OMesmoAspersorEscolhidoDuasVezesRecomeçaDosPadrões) {
    abrir("TX15B");
    const auto padrões = tudo();
    escolher("Combo1", "28 mm");
    escolher("Combo2", "0 mm");
    rolar(70);
    clicar("optKPA");
    mouse(3000, 1000);
    clicar("Command1");
    abrir("TX15B");
    EXPECT_EQ(tudo(), padrões);
    EXPECT_EQ(form1->Combo1.texto, "18 mm");
    EXPECT_EQ(form1->Combo2.texto, "6 mm");
    EXPECT_EQ(form1->hsbPressão.valor, 50);
    EXPECT_TRUE(form1->optMCA.marcada);
    EXPECT_EQ(form1->lblPressão.texto, "50");
    EXPECT_EQ(form1->Label15.texto, "r =");
}

TEST_F(TelaDoAspersor, DeixadaEscondidaTambémRecomeçaDosPadrões) {
    abrir("TX20B");
    rolar(70);
    form1.esconder();
    voltarAoMenu();
    abrir("TX30B");
    EXPECT_EQ(form1->hsbPressão.valor, 50);
    EXPECT_EQ(form1->Combo2.texto, "");
}

TEST_F(TelaDoAspersor, CarregarNomeiaOArquivoDeAjuda) {
    arquivoDeAjuda.clear();
    form1.carregar();
    EXPECT_EQ(arquivoDeAjuda, "C:\\Arquivos de programas\\Varenta\\VARENTA VERSÃO 5.0.hlp");
}

TEST_F(TelaDoAspersor, OsTextosFixosDosBotõesEUnidades) {
    abrir("TX15B");
    EXPECT_EQ(form1->Command1.texto, "&Fechar");
    EXPECT_EQ(form1->Command2.texto, "Ajuda");
    EXPECT_EQ(form1->Command3.texto, "&Avançar >>");
    EXPECT_EQ(form1->optMCA.texto, "m.c.a.");
    EXPECT_EQ(form1->optKG.texto, "kgf/cm²");
    EXPECT_EQ(form1->optKPA.texto, "kPa");
    EXPECT_EQ(form1->Frame3.texto, "Perfil Radial");
}

} // namespace
} // namespace varenta::teste
