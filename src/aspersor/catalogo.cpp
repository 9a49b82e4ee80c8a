#include "aspersor/catalogo.h"

#include "comum/numeros.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varenta::catalogo {
namespace {

/// K by main nozzle (row, 0 for none) and auxiliary nozzle (column: 0, 5, 6, 7 mm).
struct LinhaDeVazao {
    int bocal;
    std::array<double, 4> k;
};

constexpr std::array<LinhaDeVazao, 9> vazõesTX15 = {{
    {0, {0, 0.309699153353548, 0.412859078353078, 0.5902528143418}},
    {14, {2.22634810433041, 2.5047642110537, 2.6136754970775, 2.77304979899231}},
    {16, {2.89995939982747, 3.17662872719374, 3.29736635782995, 3.44278095827034}},
    {18, {3.74857988196796, 4.02120043234612, 4.11924574592113, 4.27524255364799}},
    {20, {4.63123579322807, 4.91216112593829, 5.00347377694721, 5.17228705657806}},
    {22, {5.62415677998719, 5.88354710434667, 5.985097843526, 6.13916112950556}},
    {24, {6.65036385917108, 6.8999775483685, 7.00251379395872, 7.16373093673782}},
    {26, {7.62324548128009, 7.87081184115816, 7.95691627071825, 8.09490487611398}},
    {28, {8.77528722234205, 9.02156413885294, 9.09705132325346, 9.18704460484187}},
}};

constexpr std::array<LinhaDeVazao, 10> vazõesTX20 = {{
    {0, {0, 0.309699153353548, 0.412859078353078, 0.5902528143418}},
    {22, {3.82519804620459, 4.09996639435505, 4.20658915262506, 4.36306065742102}},
    {24, {4.50033044233437, 4.77606067020117, 4.88593992061774, 5.04183572780138}},
    {26, {5.56176480607375, 5.83577123009224, 5.94056964304964, 6.09876248256496}},
    {28, {6.43107064050644, 6.70996373676028, 6.80772156691413, 6.96594387806484}},
    {30, {7.50346070096662, 7.76507943039468, 7.86571923049807, 8.02195926183979}},
    {32, {8.62068882543146, 8.88395429426842, 8.98404457543321, 9.13697132458375}},
    {34, {9.75090464095832, 10.0008737827314, 10.0960387454084, 10.2418023948002}},
    {36, {11.5762659126925, 11.8192059814939, 11.9129964574679, 12.0594847076664}},
    {38, {13.3142673905343, 13.5384314908551, 13.6357813355631, 13.7504870194056}},
}};

struct VazaoDeUmBocal {
    int bocal;
    double k;
};

constexpr std::array<VazaoDeUmBocal, 6> vazõesTX30 = {{
    {34, 13.3625655200666},
    {36, 14.8638439221562},
    {38, 16.5050021496423},
    {40, 18.2686253039576},
    {42, 19.8338177675457},
    {44, 21.6508836153901},
}};

/// Reach = a x pressure² + b x pressure + c.
struct Parabola {
    int bocal;
    double a, b, c;
};

constexpr std::array<Parabola, 8> raiosTX15 = {{
    {14, -0.0037, 0.6446, 14.273},
    {16, -0.0047, 0.795, 12.648},
    {18, -0.0055, 0.9503, 9.3408},
    {20, -0.0085, 1.2687, 3.8379},
    {22, -0.0065, 1.1508, 6.7228},
    {24, -0.0034, 0.8341, 14.768},
    {26, -0.0056, 1.1033, 7.7972},
    {28, -0.0058, 1.1915, 5.7516},
}};

constexpr std::array<Parabola, 9> raiosTX20 = {{
    {22, -0.0073, 1.0065, 11.029},
    {24, -0.0051, 0.8253, 16.707},
    {26, -0.0056, 0.9567, 14.446},
    {28, -0.0087, 1.2716, 8.234},
    {30, -0.0078, 1.2212, 9.4331},
    {32, -0.0089, 1.3653, 6.4338},
    {34, -0.0109, 1.5972, 0.978},
    {36, -0.0113, 1.7103, -2.2434},
    {38, -0.0095, 1.5953, -0.343},
}};

constexpr std::array<Parabola, 6> raiosTX30 = {{
    {34, -0.0082, 1.4687, 6.5028},
    {36, -0.0085, 1.4662, 7.8234},
    {38, -0.0096, 1.6086, 3.8565},
    {40, -0.0095, 1.641, 1.7153},
    {42, -0.0102, 1.734, -0.9116},
    {44, -0.007, 1.413, 6.8437},
}};

constexpr std::array<Parabola, 3> raiosAuxiliares = {{
    {5, -0.0017, 0.2667, 11.587},
    {6, -0.0009, 0.1973, 14.61},
    {7, -0.0019, 0.3614, 11},
}};

template <class Tabela>
auto linhaDoBocal(const Tabela& tabela, int bocal) {
    return std::ranges::find(tabela, bocal, [](const auto& linha) { return linha.bocal; });
}

template <class Tabela>
double coeficiente(const Tabela& tabela, int bocalAuxiliar, int bocalPrincipal) {
    constexpr std::array auxiliares = {0, 5, 6, 7};
    const auto linha = linhaDoBocal(tabela, bocalPrincipal);
    const auto coluna = std::ranges::find(auxiliares, bocalAuxiliar);
    if (linha == tabela.end() || coluna == auxiliares.end()) return 0;
    return linha->k[static_cast<std::size_t>(coluna - auxiliares.begin())];
}

template <class Tabela>
double raio(const Tabela& tabela, int bocal, double pressao) {
    const auto linha = linhaDoBocal(tabela, bocal);
    if (linha == tabela.end()) return 0;
    return linha->a * std::pow(pressao, 2.0) + linha->b * pressao + linha->c;
}

double pressaoEfetiva(double k12, double k1, double k2, double pressao) {
    if (k12 == 0) return 0;
    return std::pow(dividir(k12, k1 + k2), 2.0) * pressao;
}

} // namespace

double coefVazaoTX15(int bocalAuxiliar, int bocalPrincipal) {
    return coeficiente(vazõesTX15, bocalAuxiliar, bocalPrincipal);
}

double coefVazaoTX20(int bocalAuxiliar, int bocalPrincipal) {
    return coeficiente(vazõesTX20, bocalAuxiliar, bocalPrincipal);
}

double vazaoTX15(int bocalAuxiliar, int bocalPrincipal, double pressao) {
    return coefVazaoTX15(bocalAuxiliar, bocalPrincipal) * std::sqrt(pressao);
}

double vazaoTX20(int bocalAuxiliar, int bocalPrincipal, double pressao) {
    return coefVazaoTX20(bocalAuxiliar, bocalPrincipal) * std::sqrt(pressao);
}

double vazaoTX30(int bocalPrincipal, double pressao) {
    const auto linha = linhaDoBocal(vazõesTX30, bocalPrincipal);
    return linha == vazõesTX30.end() ? 0 : linha->k * std::sqrt(pressao);
}

double pressaoEfetivaTX15(int bocalAuxiliar, int bocalPrincipal, double pressao) {
    return pressaoEfetiva(coefVazaoTX15(bocalAuxiliar, bocalPrincipal), coefVazaoTX15(bocalAuxiliar, 0),
                          coefVazaoTX15(0, bocalPrincipal), pressao);
}

double pressaoEfetivaTX20(int bocalAuxiliar, int bocalPrincipal, double pressao) {
    return pressaoEfetiva(coefVazaoTX20(bocalAuxiliar, bocalPrincipal), coefVazaoTX20(bocalAuxiliar, 0),
                          coefVazaoTX20(0, bocalPrincipal), pressao);
}

double raioAuxiliar(int bocalAuxiliar, double pressao) {
    return raio(raiosAuxiliares, bocalAuxiliar, pressao);
}
double raioTX15(int bocalPrincipal, double pressao) { return raio(raiosTX15, bocalPrincipal, pressao); }
double raioTX20(int bocalPrincipal, double pressao) { return raio(raiosTX20, bocalPrincipal, pressao); }
double raioTX30(int bocalPrincipal, double pressao) { return raio(raiosTX30, bocalPrincipal, pressao); }

double intensidadeMedia(double vazao, double raio) { return dividir(vazao, std::pow(raio, 2.0) * pi) * 1000; }

} // namespace varenta::catalogo
