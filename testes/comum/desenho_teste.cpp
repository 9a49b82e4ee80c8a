#include "comum/desenho.h"

#include <gtest/gtest.h>

#include <cmath>

namespace varenta {
namespace {

TEST(Desenho, CorTemOVermelhoNoByteMaisBaixo) {
    EXPECT_EQ(corDe(1, 2, 3), 0x030201u);
    EXPECT_EQ(cores::vermelho, 0x0000FFu);
    EXPECT_EQ(cores::verde, 0x00FF00u);
    EXPECT_EQ(cores::azul, 0xFF0000u);
    EXPECT_EQ(cores::amarelo, 0x00FFFFu);
    EXPECT_EQ(cores::branco, 0xFFFFFFu);
    EXPECT_EQ(cores::preto, 0u);
}

TEST(Desenho, PonteirosTêmOsSeusNúmeros) {
    EXPECT_EQ(static_cast<int>(Ponteiro::padrão), 0);
    EXPECT_EQ(static_cast<int>(Ponteiro::cruz), 2);
    EXPECT_EQ(static_cast<int>(Ponteiro::ampulheta), 11);
}

TEST(Desenho, GuardaOsTraçosNaOrdemEmQueForamDesenhados) {
    Desenho desenho;
    desenho.linha(1, 2, 3, 4, cores::azul);
    desenho.caixaCheia(5, 6, 7, 8, cores::verde);
    desenho.arco(9, 10, 11, cores::preto, -1, -2);
    ASSERT_EQ(desenho.traços.size(), 3u);
    const auto& linha = std::get<Linha>(desenho.traços[0]);
    EXPECT_EQ(linha.x1, 1);
    EXPECT_EQ(linha.y1, 2);
    EXPECT_EQ(linha.x2, 3);
    EXPECT_EQ(linha.y2, 4);
    EXPECT_EQ(linha.cor, cores::azul);
    const auto& caixa = std::get<CaixaCheia>(desenho.traços[1]);
    EXPECT_EQ(caixa.x2, 7);
    EXPECT_EQ(caixa.y2, 8);
    const auto& arco = std::get<Arco>(desenho.traços[2]);
    EXPECT_EQ(arco.início, -1);
    EXPECT_EQ(arco.fim, -2);
}

TEST(Desenho, CaixaDeTamanhoVaiDoCantoÀLarguraEAltura) {
    Desenho desenho;
    desenho.caixaCheiaDeTamanho(10, 20, 3, 4, cores::azul);
    const auto& caixa = std::get<CaixaCheia>(desenho.traços.at(0));
    EXPECT_EQ(caixa.x1, 10);
    EXPECT_EQ(caixa.y1, 20);
    EXPECT_EQ(caixa.x2, 13);
    EXPECT_EQ(caixa.y2, 24);
}

TEST(Desenho, LarguraEPreenchimentoValemParaOQueVemDepoisEAtravessamOLimpar) {
    Desenho desenho;
    desenho.linha(0, 0, 1, 1, cores::preto);
    desenho.arco(0, 0, 1, cores::preto);
    desenho.larguraTraco(2);
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.linha(0, 0, 1, 1, cores::preto);
    desenho.arco(0, 0, 1, cores::preto);
    EXPECT_EQ(std::get<Linha>(desenho.traços[0]).largura, 1);
    EXPECT_FALSE(std::get<Arco>(desenho.traços[1]).preenchido);
    EXPECT_EQ(std::get<Linha>(desenho.traços[2]).largura, 2);
    EXPECT_TRUE(std::get<Arco>(desenho.traços[3]).preenchido);
    desenho.limpar();
    EXPECT_TRUE(desenho.traços.empty());
    desenho.arco(0, 0, 1, cores::preto);
    EXPECT_EQ(std::get<Arco>(desenho.traços[0]).largura, 2);
    EXPECT_TRUE(std::get<Arco>(desenho.traços[0]).preenchido);
}

TEST(Desenho, CírculoÉUmArcoDeUmaVoltaInteira) {
    Desenho desenho;
    desenho.arco(3, 4, 5, cores::preto);
    const auto& arco = std::get<Arco>(desenho.traços.at(0));
    EXPECT_EQ(arco.início, 0);
    EXPECT_DOUBLE_EQ(arco.fim, 2 * std::acos(-1.0));
}

TEST(Desenho, VersãoCresceACadaTraçoEACadaLimpar) {
    Desenho desenho;
    auto antes = desenho.versão;
    const auto cresceu = [&] { return desenho.versão > std::exchange(antes, desenho.versão); };
    desenho.linha(0, 0, 1, 1, cores::preto);
    EXPECT_TRUE(cresceu());
    desenho.caixaCheia(0, 0, 1, 1, cores::preto);
    EXPECT_TRUE(cresceu());
    desenho.arco(0, 0, 1, cores::preto);
    EXPECT_TRUE(cresceu());
    desenho.limpar();
    EXPECT_TRUE(cresceu());
}

TEST(Mosaico, PõeAsCaixasLadoALadoLinhaPorLinha) {
    const Mosaico mosaico{10, 20, 3, 4, 2, {1, 2, 3, 4, 5, 6}};
    EXPECT_EQ(mosaico.linhas(), 3u);
    const auto exigir = [&](std::size_t n, double x1, double y1, double x2, double y2, Cor cor) {
        const auto caixa = mosaico.caixa(n);
        EXPECT_EQ(caixa.x1, x1) << n;
        EXPECT_EQ(caixa.y1, y1) << n;
        EXPECT_EQ(caixa.x2, x2) << n;
        EXPECT_EQ(caixa.y2, y2) << n;
        EXPECT_EQ(caixa.cor, cor) << n;
    };
    exigir(0, 10, 20, 13, 24, 1);
    exigir(1, 13, 20, 16, 24, 2);
    exigir(2, 10, 24, 13, 28, 3);
    exigir(5, 13, 28, 16, 32, 6);
}

TEST(Mosaico, ÉUmSóTraçoDoDesenho) {
    Desenho desenho;
    const auto antes = desenho.versão;
    desenho.mosaico({0, 0, 1, 1, 2, {cores::azul, cores::branco}});
    ASSERT_EQ(desenho.traços.size(), 1u);
    EXPECT_EQ(std::get<Mosaico>(desenho.traços[0]).caixa(1).cor, cores::branco);
    EXPECT_GT(desenho.versão, antes);
}

} // namespace
} // namespace varenta
