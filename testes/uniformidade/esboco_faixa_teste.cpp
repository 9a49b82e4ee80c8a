#include "uniformidade/esboco_faixa.h"

#include "apoio/faixa_feita_a_mao.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

class Esboço : public FaixaFeitaÀMão {
  protected:
    template <class Tipo>
    static std::vector<Tipo> traços() {
        std::vector<Tipo> achados;
        for (const auto& traço : form5->Picture3.traços)
            if (const auto* achado = std::get_if<Tipo>(&traço)) achados.push_back(*achado);
        return achados;
    }
    /// The upright lines of a colour and width, as lengths, from left to right.
    static std::vector<double> verticais(Cor cor) {
        auto linhas = traços<Linha>();
        std::erase_if(linhas, [&](const Linha& l) { return l.cor != cor || l.x1 != l.x2; });
        std::ranges::stable_sort(linhas, {}, &Linha::x1);
        std::vector<double> comprimentos;
        for (const auto& l : linhas) comprimentos.push_back(std::fabs(l.y2 - l.y1));
        return comprimentos;
    }
    static Textos legendas() { return {form5->lblCi.texto, form5->lblCc.texto, form5->lblCf.texto}; }
};

TEST_F(Esboço, AsLegendasSeguemCadaMudança) {
    abrirForm5();
    EXPECT_EQ(legendas(), (Textos{"Ci = 0 m", "Cc = 300 m", "Cf = 0 m"}));
    digitar("txtMan", "250");
    escolher("Combo1", "Outro Valor");
    EXPECT_EQ(legendas(), (Textos{"Ci =  m", "Cc = 250 m", "Cf = 0 m"}));
    digitar("txtOutro", "12.5");
    escolher("Combo2", "Igual ao Raio");
    EXPECT_EQ(legendas(), (Textos{"Ci = 12.5 m", "Cc = 250 m", "Cf = 43 m"})); // reach 42.70
}

TEST_F(Esboço, TemDoisCarreadoresUmSetorEmCadaPontaEAsTrêsCotasEmEscala) {
    pararNasPontas();
    // Two lanes and the mark of the lane between them; 2 m at the start, 3 m at the end.
    const auto carreadores = verticais(cores::preto), cotas = verticais(cores::vermelho),
               centro = verticais(cores::azul);
    ASSERT_EQ(carreadores.size(), 2u);
    ASSERT_EQ(cotas.size(), 2u);
    ASSERT_EQ(centro.size(), 1u);
    const double metro = carreadores[0] / 10;
    EXPECT_GT(metro, 0);
    EXPECT_DOUBLE_EQ(carreadores[1], 10 * metro);
    EXPECT_DOUBLE_EQ(centro[0], 10 * metro);
    EXPECT_NEAR(cotas[0], 2 * metro, 1e-9);
    EXPECT_NEAR(cotas[1], 3 * metro, 1e-9);
    const auto arcos = traços<Arco>();
    ASSERT_EQ(arcos.size(), 4u);
    for (const auto& arco : arcos) {
        EXPECT_NEAR(arco.raio, 3 * metro, 1e-9);
        EXPECT_EQ(arco.largura, 1); // thinner than lanes and dimensions
    }
    for (const auto& linha : traços<Linha>()) {
        if (linha.x1 == linha.x2) {
            EXPECT_EQ(linha.largura, 2);
        }
    }
    EXPECT_NEAR(std::fabs(arcos[2].cx - arcos[0].cx), 4 * metro, 1e-9);
    EXPECT_NEAR(std::fabs(arcos[1].cy - arcos[0].cy), 10 * metro, 1e-9);
}

TEST_F(Esboço, OsSetoresTêmOsÂngulosSecosEARotação) {
    form7->Label24.texto = "60";
    form7->Label33.texto = "90";
    form7->Label36.texto = "10";
    desenharEsboço();
    // Ahead is up: 90 + 60 + 10 degrees to the left side, and 90 - 90 + 10, a whole turn more, to the right.
    constexpr double grau = std::numbers::pi / 180;
    for (const auto& arco : traços<Arco>()) {
        EXPECT_NEAR(-arco.início / grau, 160, 1e-9);
        EXPECT_NEAR(std::remainder(-arco.fim / grau - 10, 360), 0, 1e-9);
    }
}

TEST_F(Esboço, ComprimentoSemSentidoContaComoZero) {
    for (const char* texto : {"", "abc", "-5", "1e999"}) {
        digitar("txtMan", texto);
        for (const double comprimento : verticais(cores::preto)) EXPECT_EQ(comprimento, 0) << texto;
        EXPECT_EQ(form5->lblCc.texto, std::string{"Cc = "} + texto + " m");
    }
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(Esboço, ComprimentoAlémDoRaioÉDesenhadoComoORaio) {
    escolher("Combo1", "Outro Valor");
    digitar("txtOutro", "50");
    const double metro = verticais(cores::preto)[0] / 10;
    // The other end's mark has no length.
    EXPECT_NEAR(std::ranges::max(verticais(cores::vermelho)), 3 * metro, 1e-9);
    EXPECT_EQ(form5->lblCi.texto, "Ci = 50 m");
}

TEST_F(Esboço, CadaMudançaRefazODesenhoInteiro) {
    const auto quantos = form5->Picture3.traços.size();
    auto versão = form5->Picture3.versão;
    for (const auto& mudar :
         std::initializer_list<std::pair<const char*, const char*>>{{"txtMan", "12"}, {"txtMan", "14"}}) {
        digitar(mudar.first, mudar.second);
        EXPECT_GT(form5->Picture3.versão, versão);
        versão = form5->Picture3.versão;
        EXPECT_EQ(form5->Picture3.traços.size(), quantos);
    }
    escolher("Combo1", "Igual ao Raio");
    EXPECT_GT(form5->Picture3.versão, versão);
    EXPECT_EQ(form5->Picture3.traços.size(), quantos);
}

} // namespace
} // namespace varenta::teste
