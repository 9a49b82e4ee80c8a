#pragma once

#include "aspersor/grafico_perfil_radial.h"
#include "aspersor/perfil_medido.h"
#include "comum/verificacoes.h"

#include <optional>
#include <string>

/// From the radial test of `PerfilForm` to the screen of the measured sprinkler.
namespace varenta {

/// The questions about a flow that was not given, and about one that the profile does not bear out.
inline constexpr const char* perguntaDaVazão = "Insira um valor de vazão. Caso você não o faça, o programa "
                                               "estimará a vazão a partir do perfil radial!";
inline constexpr const char* perguntaDaDivergência =
    "A vazão estimada diferiu em 10% a vazão aplicada, recomenda-se repetir o ensaio. Caso continue, os "
    "valores de intensidade de precipitação sofrerão alterações!";

/// The first cell of the grid that the test can't take, row by row, the distance before the reading.
RecusaDeCélula recusaDoEnsaio(const Grade& flexGrid);

/// Checks the test of `PerfilForm`, asks about its flow, and makes the radial profile of it. Nothing after
/// the message of a refusal, whose box is emptied and takes the focus, or after an answer that ends it.
/// Raises "Índice fora dos limites" for a test of one reading, "Divisão por zero" for one whose end is level.
std::optional<PerfilMedido> avançarPerfilForm();

/// What a screen says of a measured sprinkler: texts as typed, empty where not known.
struct DadosDoAspersor {
    std::string nome, bocais, pressão;
    /// "Pressão", by the name that the screen gives it.
    std::string nomeDaPressão;
    std::string vazão, anguloJato;
    /// The format of the 22 distances.
    std::string padrãoDoRaio;
    /// The tick step of the chart's intensities is the largest one divided by this.
    double divisor;
};

std::string captionDoAspersor(const std::string& nome);
/// "Aspersor: ...", "Bocais: ... mm" and "Pressão: ... m.c.a.", or what tells that they aren't known.
std::string textoDoNome(const DadosDoAspersor& dados);
std::string textoDosBocais(const DadosDoAspersor& dados);
std::string textoDaPressão(const DadosDoAspersor& dados);

/// Writes the 22 points of a profile to a screen and draws its chart. Raises as `desenharPerfilRadial`.
void escreverPontos(const PerfilMedido& medido, std::string_view padrãoDoRaio, std::span<Rotulo> lblRaio,
                    std::span<Rotulo> lblIntensidade, const GráficoDoPerfilRadial& gráfico);

/// Fills `Perfil`, which it loads. Raises as `desenharPerfilRadial`.
void mostrarNoPerfil(const PerfilMedido& medido, const DadosDoAspersor& dados);

} // namespace varenta
