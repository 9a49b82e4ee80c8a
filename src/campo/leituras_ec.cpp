#include "campo/leituras_ec.h"

#include "aspersor/perfil_medido.h"
#include "campo/form_ec.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"

namespace varenta {

double lâminaDoVolume(double volume, double diâmetro) {
    const double a = piDoEnsaioMóvel.pi * (diâmetro * diâmetro) / 4;
    return dividir(10 * volume, a);
}

LeiturasDoEnsaio lerEnsaio() {
    const auto& f = *formEC.operator->();
    const auto& grade = f.flex_A;
    const int coletores = (grade.linhas - 1) / 2;
    const auto lâmina = [&](int linha, int coluna) {
        const double leitura = lerEstrito(grade.célula(linha, coluna));
        if (!f.Option3.marcada) return leitura;
        return explicarErro("confira o diâmetro do coletor e os volumes",
                            [&] { return lâminaDoVolume(leitura, lerPrefixo(f.Text7.texto)); });
    };
    LeiturasDoEnsaio ensaio{lerPrefixo(f.Combo4.texto), {}, static_cast<std::size_t>(coletores)};
    for (int k = 1; k < grade.colunas; ++k) {
        auto& linha = ensaio.linhas.emplace_back();
        for (int j = 1; j <= coletores; ++j) {
            linha.esquerda.push_back(lâmina(coletores + 1 - j, k));
            linha.direita.push_back(lâmina(coletores + j, k));
        }
    }
    return ensaio;
}

} // namespace varenta
