#include "ajuste/comparar.h"

#include "ajuste/cabecalhos.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_e.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_mie.h"
#include "ajuste/form_migraf.h"
#include "ajuste/ler_ensaio.h"
#include "ajuste/mapa.h"
#include "ajuste/tela_de_ajuste.h"
#include "ajuste/verificacoes_ensaio.h"
#include "comum/numeros.h"
#include "simulacao/grafico_perfil_transversal.h"

#include <algorithm>
#include <string>

namespace varenta {
namespace {

/// A test and the intensities that the parameters shown give at its points.
template <class Ensaio>
struct Estimativa {
    Ensaio ensaio;
    std::vector<double> intensidades;
};

template <class Ensaio>
Estimativa<Ensaio> estimarComOMostrado(Aspersor aspersor, Ensaio ensaio, double R) {
    ContagemDoModelo contagem;
    auto intensidades = intensidadesEstimadas(
        ensaio, sozinho(parametrosMostrados(telaDeAjuste(aspersor).controles, R)), contagem);
    return {std::move(ensaio), std::move(intensidades)};
}

/// The estimates beside the observations, which are made up to the sprinkler's flow.
template <class Ensaio>
Estimativa<Ensaio> compararComOMostrado(Aspersor aspersor, int n,
                                        Ensaio (*ler)(int, const AspersorDoAjuste&)) {
    const auto dados = lerAspersor(telaDeAjuste(aspersor));
    auto ensaio = ler(n, dados);
    igualarEnsaioÀVazão(n, ensaio, dados.Q);
    return estimarComOMostrado(aspersor, std::move(ensaio), dados.R);
}

/// The estimates alone: the test's readings may be gone.
template <class Ensaio>
Estimativa<Ensaio> estimarSemLeituras(Aspersor aspersor, int n, Ensaio (*ler)(int, const AspersorDoAjuste&)) {
    const auto dados = lerAspersor(telaDeAjuste(aspersor));
    return estimarComOMostrado(aspersor, ler(n, dados), dados.R);
}

template <class Registro>
bool estimativasAceitas(Tela<Registro>& tela, int n) {
    auto& f = *tela.operator->();
    return aceito(recusaDasEstimativas(f, n), {tela, f, n}, TextoRecusado::sai);
}

/// At least 0.
double maiorDe(std::span<const double> valores) {
    double maior = 0;
    for (const double valor : valores) maior = std::max(maior, valor);
    return maior;
}

std::string comTrêsCasas(const char* texto, double valor, const char* unidade) {
    return texto + Format(valor, "0.000") + unidade;
}

std::string textoDoDesvio(int n, std::span<const double> observados, std::span<const double> estimados,
                          const char* unidade) {
    Avaliação avaliação;
    somarDesvios({&avaliação, 1}, observados, estimados);
    return "Desvio Médio no Ensaio " + std::to_string(n) +
           comTrêsCasas(": ", desvioMédio(avaliação), unidade);
}

void escreverVento(ControlesDeGraf& graf, const ControlesDeEnsaio& ensaio) {
    graf.Label11.texto = "Velocidade do Vento: " + ensaio.Label17.texto + " m/s";
    graf.Label12.texto = "Direção do Vento: " + ensaio.Label2.texto;
}

std::string espaçamentoDosColetores(const Lista& espaçamento) {
    return "Espaçamento entre Coletores: " + espaçamento.texto + " m";
}

/// Leaves the set of buttons for a sprinkler.
void deixarBotões(ControlesDeGraf& graf, Aspersor aspersor) {
    const bool doCatálogo = aspersor == Aspersor::doCatálogo;
    graf.Command2.visivel = graf.Command1.visivel = doCatálogo;
    graf.Command3.visivel = graf.Command4.visivel = !doCatálogo;
}

/// Tick captions of the square map of a test, from its first point to its last.
void escreverCoordenadas(std::span<Rotulo> rótulos, const EnsaioDoAjuste& ensaio) {
    const double borda = lugarDescendente(ensaio.e, ensaio.N, 0);
    escreverEscala(rótulos, -borda, 2 * borda / 6, "0.0");
}

constexpr double topoDosMapas = 525, esquerdaDoPrimeiro = 960, esquerdaDoSegundo = 5470;

void desenharProfundidades(RegistroFormMIgraf& f, const EnsaioMóvel& ensaio,
                           const std::vector<double>& lâminas, double maior) {
    const auto N = lâminas.size();
    const auto eixos = prepararPerfil(f.Picture1, f.Label3, f.Label4, N, ensaio.e, maior);
    const auto lugar = [&](const std::vector<double>& valores, std::size_t j) {
        return eixos.lugar(lugarAscendente(ensaio.e, ensaio.N, static_cast<int>(j)), valores[j]);
    };
    desenharCurva(f.Picture1, cores::azul, N, [&](std::size_t j) { return lugar(lâminas, j); });
    for (std::size_t j = 0; j < N; ++j) marcarPonto(f.Picture1, lugar(ensaio.observados, j));
}

/// The field of intensities row by row from ahead to behind, where the points of a test come position by
/// position.
std::vector<double> porLinhas(const std::vector<double>& intensidades, int N) {
    const auto n = static_cast<std::size_t>(N);
    std::vector<double> campo;
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t j = 0; j < n; ++j) campo.push_back(intensidades[j * n + k]);
    return campo;
}

/// What a list of estimates takes from the test's screen.
void copiarDoEnsaio(RegistroFormAjuste& lista, const ControlesDeEnsaio& ensaio, int n) {
    lista.Label20.texto = ensaio.Label20.texto;
    lista.Label19.texto = ensaio.Label19.texto;
    lista.Label18.texto = ensaio.Label18.texto;
    lista.Label17.texto = ensaio.Label17.texto;
    lista.Label2.texto = ensaio.Label2.texto;
    lista.Frame4.texto = "Dados Estimados - Ensaio " + std::to_string(n);
}

} // namespace

void preencherGraf(Aspersor aspersor, int n) {
    const auto [ensaio, estimados] = compararComOMostrado(aspersor, n, lerEnsaioDeMalha);
    auto& f = *form_graf(n).operator->();
    const double maiorObservado = maiorDe(ensaio.observados), maiorEstimado = maiorDe(estimados);
    f.Label17.texto = textoDoDesvio(n, ensaio.observados, estimados, " mm/h");
    f.Label13.texto = comTrêsCasas("Maior Precipitação: ", maiorObservado, " mm/h");
    f.Label15.texto = comTrêsCasas("Maior Precipitação: ", maiorEstimado, " mm/h");
    const auto& tela = *form_E(n).operator->();
    escreverVento(f, tela);
    f.ensaioComparado = {espaçamentoDosColetores(tela.Combo1),
                         "Coletores: " + std::to_string(ensaio.N) + " x " + std::to_string(ensaio.N)};

    const EscalaDeCores escala{std::max(maiorObservado, maiorEstimado)};
    f.Label14.texto = Format(escala.topo(), "0.0") + " mm/h";
    for (auto* rótulos : {&f.Label3, &f.Label4, &f.Label5, &f.Label6}) escreverCoordenadas(*rótulos, ensaio);
    pintarMapa(f.Picture1, esquerdaDoPrimeiro, topoDosMapas, ensaio.observados, ensaio.N, ensaio.e, escala);
    pintarMapa(f.Picture2, esquerdaDoSegundo, topoDosMapas, estimados, ensaio.N, ensaio.e, escala);
    deixarBotões(f, aspersor);
    form_graf(n).mostrar();
}

void preencherMIgraf(Aspersor aspersor, int n) {
    const auto [ensaio, intensidades] = compararComOMostrado(aspersor, n, lerEnsaioMóvel);
    auto& f = *form_MIgraf(n).operator->();
    const auto lâminas = lâminasEstimadas(ensaio, intensidades);
    const double maiorLâmina = maiorDe(lâminas), maiorObservada = maiorDe(ensaio.observados);
    f.Label17.texto = textoDoDesvio(n, ensaio.observados, lâminas, " mm");
    const double maiorIntensidade = maiorDe(intensidades);
    f.Label13.texto = comTrêsCasas("Maior Precipitação: ", maiorIntensidade, " mm/h");
    f.Label20.texto = comTrêsCasas("Maior Lâmina Estimada: ", maiorLâmina, " mm");
    f.Label15.texto = comTrêsCasas("Maior Lâmina Observada: ", maiorObservada, " mm");
    const auto& tela = *form_MiE(n).operator->();
    escreverVento(f, tela);
    f.ensaioComparado = {
        espaçamentoDosColetores(tela.Combo4), "Coletores de Cada Lado: " + std::to_string(ensaio.N / 2),
        "Velocidade: " + tela.Text1.texto + " m/h", "Ângulo de Giro: " + tela.Combo6.texto + "º"};

    const EscalaDeCores escala{maiorIntensidade};
    f.Label14.texto = Format(escala.topo(), "0.0") + " mm/h";
    for (auto* rótulos : {&f.Label5, &f.Label6}) escreverCoordenadas(*rótulos, ensaio);
    deixarBotões(f, aspersor);
    // Depths too small for their axis end the drawing: no picture of before stands by the new figures then.
    f.Picture1.limpar();
    f.Picture2.limpar();
    desenharProfundidades(f, ensaio, lâminas, std::max(maiorLâmina, maiorObservada));
    pintarMapa(f.Picture2, esquerdaDoSegundo, topoDosMapas, porLinhas(intensidades, ensaio.N), ensaio.N,
               ensaio.e, escala);
    form_MIgraf(n).mostrar();
}

void visualizarValores(Aspersor aspersor, int n) {
    if (!estimativasAceitas(form_E(n), n)) return;
    const auto [ensaio, estimados] = estimarSemLeituras(aspersor, n, lerMalhaSemLeituras);
    auto& f = *form_ajuste1.operator->();
    f.Caption = "Dados de Precipitação Estimados no Ensaio " + std::to_string(n);
    copiarDoEnsaio(f, *form_E(n).operator->(), n);
    carPlan(n);
    for (int i = 1; i <= ensaio.N; ++i)
        for (int j = 1; j <= ensaio.N; ++j)
            f.flex_A.escrever(
                i, j, Format(estimados[static_cast<std::size_t>((i - 1) * ensaio.N + j - 1)], "0.000"));
    form_ajuste1.mostrar();
}

void visualizarValoresMóvel(Aspersor aspersor, int n) {
    if (!estimativasAceitas(form_MiE(n), n)) return;
    const auto [ensaio, intensidades] = estimarSemLeituras(aspersor, n, lerMóvelSemLeituras);
    const auto lâminas = lâminasEstimadas(ensaio, intensidades);
    auto& f = *form_MIajuste1.operator->();
    f.Caption = "Dados de Lâmina e Precipitação Estimados no Ensaio " + std::to_string(n);
    copiarDoEnsaio(f, *form_MiE(n).operator->(), n);
    MIcarPlan(n);
    for (int j = 1; j <= ensaio.N; ++j) {
        f.flex_A.escrever(j, 1, Format(lâminas[static_cast<std::size_t>(j - 1)], "0.000"));
        for (int k = 1; k <= ensaio.N; ++k)
            f.flex_A.escrever(
                j, k + 1,
                Format(intensidades[static_cast<std::size_t>((j - 1) * ensaio.N + k - 1)], "0.000"));
    }
    form_MIajuste1.mostrar();
}

void carPlan(int n) {
    const auto& ensaio = *form_E(n).operator->();
    const int N = inteiroDaLista(ensaio.Combo2);
    auto& grade = form_ajuste1->flex_A;
    grade.dimensionar(N + 1, N + 1);
    escreverCabeçalhosDaMalha(grade, " Co", N, lerPrefixo(ensaio.Combo1.texto));
}

void MIcarPlan(int n) {
    const auto& ensaio = *form_MiE(n).operator->();
    const int cadaLado = inteiroDaLista(ensaio.Combo3), N = 2 * cadaLado;
    const double e = lerPrefixo(ensaio.Combo4.texto);
    auto& grade = form_MIajuste1->flex_A;
    grade.dimensionar(N + 1, N + 2);
    escreverPosições(grade, cadaLado, e);
    grade.escrever(0, 1, "Lâmina (mm)");
    for (int k = 1; k <= N; ++k)
        grade.escrever(0, k + 1,
                       " As" + std::to_string(k) + " = " + Format(lugarDescendente(e, N, k - 1), "0.0") +
                           " m ");
}

} // namespace varenta
