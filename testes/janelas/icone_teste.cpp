#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace varenta::teste {
namespace {

/// The largest difference of a channel, averaged over squares of 4 by 4 pixels: versions of Qt may smooth
/// edges differently.
int maiorDiferença(const QImage& a, const QImage& b) {
    constexpr int lado = 4;
    int maior = 0;
    for (int y = 0; y < a.height(); y += lado)
        for (int x = 0; x < a.width(); x += lado) {
            int somas[3] = {};
            for (int k = 0; k < lado * lado; ++k) {
                const auto p = a.pixel(x + k % lado, y + k / lado), q = b.pixel(x + k % lado, y + k / lado);
                somas[0] += qRed(p) - qRed(q);
                somas[1] += qGreen(p) - qGreen(q);
                somas[2] += qBlue(p) - qBlue(q);
            }
            for (const int soma : somas) maior = std::max(maior, std::abs(soma) / (lado * lado));
        }
    return maior;
}

TEST(Ícone, em_pontos_é_o_desenho_dos_traços) {
    QSvgRenderer desenho{QStringLiteral(":/imagens/varenta.svg")};
    ASSERT_TRUE(desenho.isValid());
    for (const int lado : {48, 128}) {
        const QImage ícone{QStringLiteral(PASTA_DOS_ICONES "/varenta-%1.png").arg(lado)};
        ASSERT_EQ(ícone.size(), QSize(lado, lado));
        const auto sobreBranco = [lado](auto pintar) {
            QImage imagem{lado, lado, QImage::Format_RGB32};
            imagem.fill(Qt::white);
            QPainter pintor{&imagem};
            pintar(pintor);
            return imagem;
        };
        const auto esperado = sobreBranco([&](QPainter& pintor) { desenho.render(&pintor); });
        const auto visto = sobreBranco([&](QPainter& pintor) { pintor.drawImage(0, 0, ícone); });
        EXPECT_LE(maiorDiferença(visto, esperado), 8) << lado;
    }
}

TEST(Ícone, está_nas_janelas) { EXPECT_FALSE(QApplication::windowIcon().pixmap(32, 32).isNull()); }

} // namespace
} // namespace varenta::teste
