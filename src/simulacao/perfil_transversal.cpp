#include "simulacao/perfil_transversal.h"

#include "aspersor/form1.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"
#include "simulacao/form7.h"
#include "simulacao/grafico_perfil_transversal.h"
#include "simulacao/perfil_em.h"

#include <algorithm>
#include <cmath>

namespace varenta {

int ladoDoCampo(const DadosDaSimulação& dados) {
    const double S = dados.S;
    auto sonda = dados.condições;
    sonda.anguloGiro = 360;
    double n = Int(dividir(sonda.R, S));
    double intensidade = 0;
    do {
        n += 1;
        if (2 * n > maiorLadoDoCampo) throw ErroExecucao{memóriaInsuficiente};
        const double p = S * (n - 0.5);
        intensidade = intensidadeEmPonto(-p, S / 2, sonda).valor;
    } while (intensidade > 0);
    return 2 * static_cast<int>(n);
}

PerfilTransversal perfilTransversal(const DadosDaSimulação& dados) {
    const auto& c = dados.condições;
    const double S = dados.S;
    const int lado = ladoDoCampo(dados);
    const auto N = static_cast<std::size_t>(lado);
    const double meio = static_cast<double>(lado) / 2;
    const double cosseno = std::cos(c.rotVento), seno = std::sin(c.rotVento);

    PerfilTransversal perfil;
    perfil.Dist.resize(N);
    std::vector<double> y(N), X(N), Y(N), M(N), totais(N);
    for (std::size_t j = 0; j < N; ++j)
        y[j] = S * (-meio + 0.5) + static_cast<double>(static_cast<float>(j) * dados.S);

    // One row of the field at a time, across the lane. The totals run along the lane, from ahead to behind.
    for (std::size_t i = 0; i < N; ++i) {
        const double x = S * (meio - 0.5) - static_cast<double>(i) * S;
        perfil.Dist[i] = -x;
        for (std::size_t j = 0; j < N; ++j) {
            X[j] = x * cosseno - y[j] * seno;
            Y[j] = y[j] * cosseno + x * seno;
        }
        intensidadesEmPontos(X, Y, c, M, perfil.contagem);
        for (std::size_t j = 0; j < N; ++j) totais[j] = finito(totais[j] + M[j]);
    }

    perfil.Lam.reserve(N);
    for (const double total : totais) {
        perfil.Lam.push_back(dividir(total * S, dados.V));
        perfil.maior = std::max(perfil.maior, perfil.Lam.back());
    }
    return perfil;
}

namespace {

/// What tells a catalogue sprinkler from any other: the texts of its screen.
struct FonteDoAspersor {
    const Rotulo& raio;
    const std::string& anguloJato; // degrees
    std::span<const Rotulo> lblIntensidade;
};

DadosDaSimulação ler(const FonteDoAspersor& fonte) {
    DadosDaSimulação dados{};
    auto& c = dados.condições;
    auto& f = *form7.operator->();
    c.R = lerPrefixo(fonte.raio.texto);
    c.A = lerPrefixo(f.Text2.texto) * c.R;
    c.B = lerPrefixo(f.Text3.texto) * c.R;
    c.C = lerPrefixo(f.Text4.texto) * c.R;
    c.D = lerPrefixo(f.Text5.texto) * c.R;
    c.E = lerPrefixo(f.Text6.texto) * c.R;
    c.F = lerPrefixo(f.Text7.texto) * c.R;
    dados.S = simples(lerPrefixo(f.Combo2.texto));
    c.anguloSecoI = lerPrefixo(f.Label24.texto);
    c.anguloSecoII = lerPrefixo(f.Label33.texto);
    c.anguloGiro = 360 - (c.anguloSecoI + c.anguloSecoII);
    c.rotacao = lerPrefixo(f.Label36.texto);
    dados.V = lerPrefixo(f.Text1.texto);
    c.anguloJato = radianos(lerPrefixo(fonte.anguloJato));
    c.rotVento = rotaçãoDoVento(lerPrefixo(f.Label2.texto));
    c.W = simples(lerPrefixo(f.Label17.texto));
    c.intensidades = intensidadesDosRótulos(fonte.lblIntensidade);
    return dados;
}

void escreverTabela(Grade& flexA, const PerfilTransversal& perfil) {
    const int N = static_cast<int>(perfil.Lam.size());
    flexA.dimensionar(N + 1, 3);
    flexA.formato("^  No   |^ Distância (m) |^ Lâmina (mm) ");
    for (int i = 1; i <= N; ++i) {
        const auto k = static_cast<std::size_t>(i - 1);
        flexA.escrever(i, 0, std::to_string(i));
        flexA.escrever(i, 1, Format(perfil.Dist[k], "0.00"));
        flexA.escrever(i, 2, Format(perfil.Lam[k], "0.000"));
    }
}

/// Tells at how many points the model's values may make no physical sense.
void avisarDoModelo(Rotulo& lblAviso, const ContagemDoModelo& contagem) {
    lblAviso.texto.clear();
    const auto avisar = [&](std::size_t quantos, const char* motivo) {
        if (quantos == 0) return;
        const auto aviso = "em " + std::to_string(quantos) + " de " + std::to_string(contagem.pontos) +
                           " pontos " + motivo + "; os valores podem não ter sentido físico.";
        if (!lblAviso.texto.empty()) lblAviso.texto += "\n";
        lblAviso.texto += "Aviso: " + aviso;
        plataforma::avisar(aviso);
    };
    avisar(contagem.semConvergência, "o modelo de vento não convergiu");
    avisar(contagem.fatorNãoPositivo, "o fator de área do modelo não é positivo");
}

void desenharGráfico(const PerfilTransversal& perfil, double S) {
    constexpr auto& malha = malhaDoPerfilTransversal;
    const auto N = perfil.Lam.size();
    const double metade = static_cast<double>(N) / 2 - 0.5;
    const double passo = lerPrefixo(Format(perfil.maior / 4, "0.0"));
    escreverEscala(form7->Label4, 0, passo, "0.0");
    escreverEscala(form7->Label3, -metade * S, 2 * metade * S / 8, "0.0");

    auto& desenho = form7->Picture2;
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    const double largura = 2 * S * metade, topo = 5 * passo;
    desenharCurva(desenho, cores::azul, N, [&](std::size_t i) {
        const double t = perfil.Dist[i] - perfil.Dist[0];
        const double x = malha.esquerda + dividir(malha.largura() * t, largura);
        const double y = malha.base - dividir(perfil.Lam[i] * malha.altura(), topo);
        return PontoDoDesenho{x, y};
    });
}

void calcular(const FonteDoAspersor& fonte) {
    const auto dados = ler(fonte);
    const auto perfil = perfilTransversal(dados);
    escreverTabela(form7->flexA, perfil);
    avisarDoModelo(form7->lblAviso, perfil.contagem);
    desenharGráfico(perfil, dados.S);
    form7->Command3.habilitado = true;
}

FonteDoAspersor aspersorDoCatálogo() {
    auto& f = *form1.operator->();
    return {f.lblRaioAlcance, f.Label12.texto, std::span{f.lblIntensidade}.subspan(1)};
}

} // namespace

DadosDaSimulação lerSimulação() { return ler(aspersorDoCatálogo()); }

void calcularPerfilTransversal() { calcular(aspersorDoCatálogo()); }

} // namespace varenta
