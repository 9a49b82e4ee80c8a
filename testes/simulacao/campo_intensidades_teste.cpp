#include "simulacao/campo_intensidades.h"

#include "apoio/aspersores_de_teste.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace varenta::teste {
namespace {

std::vector<double> valores(const CampoDeIntensidades& campo) {
    const auto todos = campo.intensidades.valores();
    return {todos.begin(), todos.end()};
}

/// The field with its first row behind the sprinkler, as the strip carries it.
std::vector<double> pegadaDoCampo(const DadosDaSimulação& dados, std::size_t lado) {
    const auto& campo = campoDeIntensidades(dados, lado);
    std::vector<double> pegada;
    for (std::size_t i = 0; i < lado; ++i)
        std::ranges::copy(campo.intensidades.linha(lado - 1 - i), std::back_inserter(pegada));
    return pegada;
}

std::vector<double> pegadaLiteral(const DadosDaSimulação& dados, std::size_t lado) {
    const auto pegada = pegadaCélulaPorCélula(dados, lado);
    return {pegada.valores().begin(), pegada.valores().end()};
}

TEST(CampoDeIntensidades, APegadaDoCarroÉOCampoComAsLinhasViradasBitPorBit) {
    for (const float S : {1.5F, 2.0F, 3.0F, 6.0F}) {
        const auto dados = aoVento(típico(43.1, S));
        const auto lado = static_cast<std::size_t>(ladoDoCampo(dados));
        EXPECT_EQ(pegadaDoCampo(dados, lado), pegadaLiteral(dados, lado)) << S;
    }
}

TEST(CampoDeIntensidades, AsLinhasVãoDaFrenteParaTrásEAsColunasDaEsquerdaParaADireita) {
    const auto campo = campoDeIntensidades(plano(3, 2, 40), 4);
    EXPECT_EQ(campo.limite(), 3);
    EXPECT_EQ(campo.x(0), 3);
    EXPECT_EQ(campo.x(3), -3);
    EXPECT_EQ(campo.y(0), -3);
    EXPECT_EQ(campo.y(3), 3);
    // The four points around the sprinkler, at 1.41 m, are wetted, those at 3.16 m are not.
    EXPECT_EQ(valores(campo), (std::vector<double>{0, 0, 0, 0, 0, 10, 10, 0, 0, 10, 10, 0, 0, 0, 0, 0}));
}

TEST(CampoDeIntensidades, MudarQualquerDadoDáUmCampoNovo) {
    using Mudança = std::function<void(DadosDaSimulação&)>;
    std::vector<std::pair<std::string, Mudança>> mudanças = {
        {"R", [](auto& d) { d.condições.R += 0.5; }},
        {"A", [](auto& d) { d.condições.A += 0.1; }},
        {"B", [](auto& d) { d.condições.B += 0.1; }},
        {"C", [](auto& d) { d.condições.C += 0.1; }},
        {"D", [](auto& d) { d.condições.D += 0.1; }},
        {"E", [](auto& d) { d.condições.E += 0.1; }},
        {"F", [](auto& d) { d.condições.F += 0.1; }},
        {"W", [](auto& d) { d.condições.W += 0.1; }},
        {"anguloJato", [](auto& d) { d.condições.anguloJato += 0.1; }},
        {"rotVento", [](auto& d) { d.condições.rotVento += 0.1; }},
        {"anguloSecoI", [](auto& d) { d.condições.anguloSecoI += 20; }},
        {"anguloSecoII", [](auto& d) { d.condições.anguloSecoII += 20; }},
        {"rotacao", [](auto& d) { d.condições.rotacao += 20; }},
        {"anguloGiro", [](auto& d) { d.condições.anguloGiro += 20; }},
        {"S", [](auto& d) { d.S = 2; }},
    };
    for (std::size_t k = 0; k < 22; ++k)
        mudanças.emplace_back("intensidade " + std::to_string(k + 1),
                              [k](auto& d) { d.condições.intensidades[k] += 0.1; });

    // Fine enough for a point in every ring of the profile.
    constexpr std::size_t lado = 68;
    const auto base = aoVento(típico(50, 1.5F));
    const auto antes = pegadaLiteral(base, lado);
    for (const auto& [nome, mudar] : mudanças) {
        EXPECT_EQ(pegadaDoCampo(base, lado), antes) << nome;
        auto mudado = base;
        mudar(mudado);
        const auto depois = pegadaDoCampo(mudado, lado);
        EXPECT_NE(depois, antes) << nome;
        EXPECT_EQ(depois, pegadaLiteral(mudado, lado)) << nome;
    }
}

TEST(CampoDeIntensidades, MudarOLadoDáUmCampoNovo) {
    const auto dados = aoVento(típico(12.3, 1.5F));
    EXPECT_EQ(pegadaDoCampo(dados, 16), pegadaLiteral(dados, 16));
    EXPECT_EQ(pegadaDoCampo(dados, 18), pegadaLiteral(dados, 18));
}

TEST(CampoDeIntensidades, AVelocidadeNãoMudaOCampo) {
    auto dados = aoVento(típico(12.3, 1.5F));
    const auto antes = pegadaDoCampo(dados, 16);
    dados.V *= 2;
    EXPECT_EQ(pegadaDoCampo(dados, 16), antes);
}

} // namespace
} // namespace varenta::teste
