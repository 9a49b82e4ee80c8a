#include "faltas/faltas_plantadas.h"

#include "roteiro/interprete.h"

#include <gtest/gtest.h>

#include <sstream>

namespace varenta::teste {
namespace {

TEST(RoteiroComFaltas, AMemóriaQueAcabaEmQualquerPontoÉDitaENãoEscapa) {
    const std::string texto =
        "# comentário\nresponder sim\nclicar Form3.TX20B\nmostrar form1.Combo1\nfoco\ntelas\n";
    int falhas = 0;
    for (long n = 1;; ++n) {
        std::ostringstream saída, erros;
        Interprete interprete{saída, erros};
        plantarFalta(Falta::memória, n);
        const auto fim = interprete.executarTexto(texto, "caso.roteiro", {});
        if (!colherFalta()) break;
        if (fim == Interprete::concluído) continue; // within the act, which told it
        ++falhas;
        EXPECT_TRUE(fim == Interprete::falha || fim == Interprete::erroNoRoteiro) << n;
        EXPECT_NE(erros.str(), "") << n;
    }
    EXPECT_GT(falhas, 10);
}

} // namespace
} // namespace varenta::teste
