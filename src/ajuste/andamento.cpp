#include "ajuste/andamento.h"

#include "ajuste/form_ajcar.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"
#include "simulacao/grafico_perfil_transversal.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varenta {
namespace {

constexpr std::array etapas = {"Etapa 1 de 3: simplex", "Etapa 2 de 3: descida pelo gradiente",
                               "Etapa 3 de 3: método de Newton"};

/// So many points of the model take some hundredths of a second.
constexpr std::size_t pontosSemRespirar = 20'000;

void relatar() { plataforma::progresso(form_AjCar->ProgressBar1.valor, form_AjCar->Label1.texto); }

} // namespace

Andamento::Andamento(std::string unidade) : unidade_{std::move(unidade)} { form_AjCar.mostrar(); }

Andamento::~Andamento() { form_AjCar.descarregar(); }

OuvinteDaBusca Andamento::ouvinte() {
    return {.desvio = [this](double D) { mostrarDesvio(D); },
            .barra = [this](double valor) { mostrarBarra(valor); },
            .etapa = [this](int etapa) { mostrarEtapa(etapa); }};
}

Objetivo Andamento::vigiar(Objetivo objetivo, std::size_t pontosDoModelo) {
    const std::size_t passo = std::max<std::size_t>(pontosSemRespirar / pontosDoModelo, 1);
    return [this, passo, objetivo = std::move(objetivo)](std::span<const Parametros> pontos) {
        std::vector<Avaliação> avaliações;
        for (std::size_t k = 0; k < pontos.size(); k += passo) {
            const auto parte = objetivo(pontos.subspan(k, std::min(passo, pontos.size() - k)));
            avaliações.insert(avaliações.end(), parte.begin(), parte.end());
            contar(parte.size());
        }
        return avaliações;
    };
}

void Andamento::mostrarEtapa(int etapa) { etapa_ = etapas[static_cast<std::size_t>(etapa - 1)]; }

void Andamento::mostrarDesvio(double D) {
    desvio_ = D;
    const auto texto = "Desvio Médio: " + Format(D, "0.000") + unidade_;
    if (form_AjCar->Label1.texto == texto) return;
    form_AjCar->Label1.texto = texto;
    relatar();
}

void Andamento::mostrarBarra(double valor) {
    if (form_AjCar->ProgressBar1.valor == valor) return;
    form_AjCar->ProgressBar1.valor = valor;
    if (desvio_ > 0) {
        passos_.push_back({valor, desvio_});
        desenhar();
    }
    relatar();
}

void Andamento::contar(std::size_t avaliados) {
    avaliados_ += avaliados;
    form_AjCar->lblEtapa.texto =
        etapa_ + ". Conjuntos de parâmetros avaliados: " + std::to_string(avaliados_);
    plataforma::respirar();
}

void Andamento::desenhar() const {
    auto& f = *form_AjCar.operator->();
    constexpr auto& malha = malhaDoPerfilTransversal;
    // The first deviation, which is the largest, stands at four of the five ticks.
    const double passo = passos_.front().y / 4;
    escreverEscala(f.Label2, 0, passo, "0.000");
    prepararGráfico(f.Picture1, malha);
    f.Picture1.larguraTraco(2);
    desenharCurva(f.Picture1, cores::azul, passos_.size(), [&](std::size_t k) {
        const auto [barra, desvio] = passos_[k];
        return PontoDoDesenho{malha.esquerda + barra * malha.largura() / f.ProgressBar1.máximo,
                              malha.base - desvio * malha.altura() / (5 * passo)};
    });
}

} // namespace varenta
