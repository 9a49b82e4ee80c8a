#include "janelas/widget_desenho.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

namespace varenta::teste {
namespace {

constexpr double pi = std::numbers::pi;

/// A picture of 100 x 100 units, 2 pixels a unit.
class Figura : public testing::Test {
  protected:
    void SetUp() override {
        widget.setProperty("area", QRectF{0, 0, 100, 100});
        widget.resize(200, 200);
    }

    QImage pintar() {
        widget.mostrar(desenho);
        return widget.grab().toImage();
    }

    /// Whether something red stands within a pixel of a place given in units.
    bool háTraço(const QImage& imagem, double x, double y) const {
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                const auto cor =
                    imagem.pixelColor(static_cast<int>(2 * x) + dx, static_cast<int>(2 * y) + dy);
                if (cor.red() > 180 && cor.green() < 160) return true;
            }
        return false;
    }

    WidgetDesenho widget;
    Desenho desenho;
};

TEST_F(Figura, linha_vai_de_ponta_a_ponta) {
    desenho.linha(10, 20, 90, 60, cores::vermelho);
    const auto imagem = pintar();
    EXPECT_TRUE(háTraço(imagem, 10, 20));
    EXPECT_TRUE(háTraço(imagem, 50, 40));
    EXPECT_TRUE(háTraço(imagem, 89, 59.5));
    EXPECT_FALSE(háTraço(imagem, 50, 20));
}

TEST_F(Figura, caixa_cheia_é_cheia_em_qualquer_ordem_dos_cantos) {
    desenho.caixaCheia(40, 40, 20, 10, cores::vermelho);
    const auto imagem = pintar();
    EXPECT_TRUE(háTraço(imagem, 30, 25));
    EXPECT_FALSE(háTraço(imagem, 45, 25));
}

TEST_F(Figura, arco_corre_ao_contrário_do_relógio_a_partir_da_direita) {
    // From the right by way of the top to the left.
    desenho.arco(50, 50, 30, cores::vermelho, 0, pi);
    const auto imagem = pintar();
    EXPECT_TRUE(háTraço(imagem, 50, 20));
    EXPECT_FALSE(háTraço(imagem, 50, 80));
    EXPECT_FALSE(háTraço(imagem, 65, 50));
}

TEST_F(Figura, arco_que_passa_do_zero_segue_adiante) {
    // From the bottom by way of the right to the top.
    desenho.arco(50, 50, 30, cores::vermelho, 1.5 * pi, 0.5 * pi);
    const auto imagem = pintar();
    EXPECT_TRUE(háTraço(imagem, 80, 50));
    EXPECT_FALSE(háTraço(imagem, 20, 50));
}

TEST_F(Figura, ângulo_negativo_pede_o_raio_dessa_ponta) {
    desenho.arco(50, 50, 30, cores::vermelho, -pi / 2, pi);
    auto imagem = pintar();
    EXPECT_TRUE(háTraço(imagem, 50, 35));
    EXPECT_FALSE(háTraço(imagem, 35, 50));

    desenho.limpar();
    desenho.arco(50, 50, 30, cores::vermelho, pi / 2, -pi);
    imagem = pintar();
    EXPECT_FALSE(háTraço(imagem, 50, 35));
    EXPECT_TRUE(háTraço(imagem, 35, 50));
}

TEST_F(Figura, pontas_iguais_fazem_a_volta_inteira) {
    desenho.arco(50, 50, 30, cores::vermelho, -pi / 2, -pi / 2);
    const auto imagem = pintar();
    for (const auto& [x, y] : {std::pair{80, 50}, {50, 80}, {20, 50}, {50, 20}, {50, 35}})
        EXPECT_TRUE(háTraço(imagem, x, y));
}

TEST_F(Figura, círculo_só_é_cheio_com_o_estilo_sólido) {
    desenho.arco(50, 50, 30, cores::vermelho);
    EXPECT_FALSE(háTraço(pintar(), 50, 50));
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.arco(50, 50, 30, cores::vermelho);
    EXPECT_TRUE(háTraço(pintar(), 50, 50));
}

TEST_F(Figura, o_que_foi_limpo_some) {
    desenho.linha(10, 10, 90, 10, cores::vermelho);
    EXPECT_TRUE(háTraço(pintar(), 50, 10));
    desenho.limpar();
    EXPECT_FALSE(háTraço(pintar(), 50, 10));
}

TEST_F(Figura, mosaico_pinta_cada_caixa_de_sua_cor_linha_por_linha) {
    // Three columns by two rows of boxes of 20 x 30 units.
    const std::vector<Cor> mosaico{cores::vermelho, cores::verde,   cores::azul,
                                   cores::preto,    cores::amarelo, cores::branco};
    desenho.mosaico({10, 20, 20, 30, 3, mosaico});
    const auto imagem = pintar();
    const QColor esperadas[]{Qt::red, Qt::green, Qt::blue, Qt::black, Qt::yellow, Qt::white};
    for (int n = 0; n < 6; ++n) {
        const int esquerda = 2 * (10 + 20 * (n % 3)), topo = 2 * (20 + 30 * (n / 3));
        // Sharp up to its edges.
        for (const QPoint canto : {QPoint{1, 1}, {38, 1}, {1, 58}, {38, 58}, {20, 30}})
            EXPECT_EQ(imagem.pixelColor(QPoint{esquerda, topo} + canto), esperadas[n]) << n;
    }
    EXPECT_NE(imagem.pixelColor(17, 60), QColor(Qt::red));
}

TEST_F(Figura, guarda_as_proporções_e_fica_no_meio) {
    widget.resize(400, 200);
    EXPECT_EQ(widget.transformação().map(QPointF{0, 0}), QPointF(100, 0));
    EXPECT_EQ(widget.transformação().map(QPointF{100, 100}), QPointF(300, 200));
}

TEST_F(Figura, filho_com_âncora_fica_em_seu_ponto_em_qualquer_tamanho) {
    auto* centro = new QLabel{"meio", &widget};
    centro->setAlignment(Qt::AlignCenter);
    centro->setProperty("ancora", QPointF{50, 25});
    auto* direita = new QLabel{"fim", &widget};
    direita->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    direita->setProperty("ancora", QPointF{90, 75});
    for (const int lado : {300, 500}) {
        widget.resize(lado, lado);
        pintar();
        EXPECT_NEAR(centro->geometry().center().x(), lado / 2, 1);
        EXPECT_NEAR(centro->geometry().center().y(), lado / 4, 1);
        EXPECT_NEAR(direita->geometry().right(), lado * 9 / 10, 1);
        EXPECT_EQ(direita->size(), direita->sizeHint());
    }
}

class Grafico : public testing::Test {
  protected:
    void SetUp() override {
        widget.setProperty("eixos", QRectF{68, 28, 280, 175});
        widget.setProperty("tituloX", "Distância - d (m)");
        widget.setProperty("tituloY", "Lâmina - I (mm)");
        widget.resize(500, 300);
        widget.escreverEscalas({"0.0", "5.0", "10.0"}, {"0", "1"});
    }
    WidgetDesenho widget;
    Desenho desenho;
};

TEST_F(Grafico, leva_os_cantos_dos_eixos_ao_quadro) {
    const QRect quadro = widget.quadroDosEixos();
    const auto t = widget.transformação();
    EXPECT_EQ(t.map(QPointF{68, 28}), QPointF{quadro.topLeft()});
    EXPECT_EQ(t.map(QPointF{348, 203}), QPointF(quadro.x() + quadro.width(), quadro.y() + quadro.height()));
    EXPECT_TRUE(widget.rect().contains(quadro));
}

TEST_F(Grafico, estica_com_a_janela_nas_duas_direções) {
    const QRect antes = widget.quadroDosEixos();
    widget.resize(700, 350);
    EXPECT_EQ(widget.quadroDosEixos().size(), antes.size() + QSize(200, 50));
}

TEST_F(Grafico, escalas_mais_longas_deixam_menos_lugar_aos_eixos) {
    const QRect antes = widget.quadroDosEixos();
    widget.escreverEscalas({"0.0", "5.0", "10.0"}, {"0", "100000.0"});
    EXPECT_LT(widget.quadroDosEixos().width(), antes.width());
}

TEST_F(Grafico, o_tamanho_mínimo_deixa_lugar_a_todas_as_legendas) {
    QStringList muitas;
    for (int k = 0; k < 30; ++k) muitas << "-100.0";
    widget.escreverEscalas(muitas, {"0", "1"});
    EXPECT_GE(widget.minimumSizeHint().width(), 30 * widget.fontMetrics().horizontalAdvance("-100.0"));
}

TEST_F(Grafico, a_curva_que_sai_da_escala_não_cobre_as_legendas) {
    desenho.linha(200, 100, 200, 400, cores::vermelho);
    widget.mostrar(desenho);
    const auto imagem = widget.grab().toImage();
    const int x = static_cast<int>(widget.transformação().map(QPointF{200, 100}).x());
    const QRect quadro = widget.quadroDosEixos();
    EXPECT_EQ(imagem.pixelColor(x, quadro.bottom() - 3), QColor(Qt::red));
    for (int y = quadro.bottom() + 4; y < widget.height(); ++y)
        EXPECT_NE(imagem.pixelColor(x, y), QColor(Qt::red));
}

/// A level stretch of a curve just above the last tick is seen; what goes far beyond ends before the legend.
TEST_F(Grafico, a_curva_que_passa_do_topo_da_escala_se_vê_até_a_legenda) {
    widget.setProperty("legenda", QStringList{"I médio=#ff0000"});
    desenho.linha(100, 24, 180, 24, cores::vermelho);
    desenho.linha(300, 100, 300, 0, cores::vermelho);
    widget.mostrar(desenho);
    const auto imagem = widget.grab().toImage();
    const auto acima = widget.transformação().map(QPointF{140, 24}).toPoint();
    ASSERT_LT(acima.y(), widget.quadroDosEixos().top() - 2);
    const auto vermelho = [&](int dy) { return imagem.pixelColor(acima + QPoint{0, dy}) == QColor(Qt::red); };
    EXPECT_TRUE(vermelho(-1) || vermelho(0) || vermelho(1));
    const int x = static_cast<int>(widget.transformação().map(QPointF{300, 0}).x());
    for (int y = 0; y < widget.quadroDosEixos().top() - widget.fontMetrics().height() / 2 - 2; ++y)
        EXPECT_NE(imagem.pixelColor(x, y), QColor(Qt::red));
}

TEST_F(Grafico, rótulos_fixos_ficam_no_lugar_dos_da_escala_vertical) {
    widget.setProperty("rotulosYFixos", QStringList{"10", "1000000"});
    const QRect antes = widget.quadroDosEixos();
    widget.escreverEscalas({"0.0", "5.0", "10.0"}, {});
    EXPECT_LT(widget.quadroDosEixos().width(), antes.width());
    widget.escreverEscalas({"0.0", "5.0", "10.0"}, {"um rótulo muito mais longo"});
    EXPECT_EQ(widget.quadroDosEixos().width(), antes.width() -
                                                   widget.fontMetrics().horizontalAdvance("1000000") +
                                                   widget.fontMetrics().horizontalAdvance("00.0"));
}

TEST_F(Grafico, rótulos_fixos_ficam_no_lugar_dos_da_escala_horizontal) {
    const int antes = widget.minimumSizeHint().width();
    widget.setProperty("rotulosXFixos", QStringList{"0.0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "1.0"});
    widget.escreverEscalas({}, {"0", "1"});
    const int fixos = widget.minimumSizeHint().width();
    EXPECT_GT(fixos, antes);
    widget.escreverEscalas({"um rótulo muito mais longo"}, {"0", "1"});
    EXPECT_EQ(widget.minimumSizeHint().width(), fixos);
}

TEST_F(Grafico, proporcional_guarda_as_proporções_dos_eixos_no_meio_do_lugar) {
    const QRect inteiro = widget.quadroDosEixos();
    widget.setProperty("proporcional", true);
    widget.setProperty("eixos", QRectF{960, 525, 3300, 3300});
    const QRect quadro = widget.quadroDosEixos();
    EXPECT_EQ(quadro.width(), quadro.height());
    EXPECT_EQ(quadro.height(), inteiro.height());
    EXPECT_EQ(quadro.center(), inteiro.center());
    EXPECT_EQ(widget.transformação().map(QPointF{960, 525}), QPointF{quadro.topLeft()});
    // Higher than it is wide, the width is what is used up.
    widget.resize(300, 700);
    EXPECT_EQ(widget.quadroDosEixos().width(), widget.quadroDosEixos().height());
    EXPECT_LT(widget.quadroDosEixos().height(), 300);
}

TEST_F(Grafico, proporcional_deseja_o_lugar_de_que_os_eixos_precisam) {
    widget.setProperty("proporcional", true);
    widget.setProperty("eixos", QRectF{0, 0, 1000, 1000});
    widget.setProperty("linhasDeAltura", 30);
    widget.resize(widget.sizeHint());
    const QRect quadro = widget.quadroDosEixos();
    EXPECT_EQ(widget.height(), 30 * widget.fontMetrics().height());
    widget.resize(widget.width(), widget.height() + 200);
    EXPECT_NEAR(widget.quadroDosEixos().width(), quadro.width(), 1);
    widget.resize(widget.width() + 200, 30 * widget.fontMetrics().height());
    EXPECT_NEAR(widget.quadroDosEixos().width(), quadro.width(), 1);
}

TEST_F(Grafico, os_títulos_e_as_escalas_ficam_junto_aos_eixos_proporcionais) {
    widget.setProperty("proporcional", true);
    widget.setProperty("eixos", QRectF{0, 0, 100, 100});
    widget.resize(900, 300);
    const auto imagem = widget.grab().toImage();
    const QRect quadro = widget.quadroDosEixos();
    const auto fundo = imagem.pixelColor(0, 0);
    int maisÀEsquerda = imagem.width();
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < maisÀEsquerda; ++x)
            if (imagem.pixelColor(x, y) != fundo) maisÀEsquerda = x;
    EXPECT_GT(maisÀEsquerda, quadro.left() - 100);
    EXPECT_LT(maisÀEsquerda, quadro.left() - 20);
}

TEST_F(Grafico, a_legenda_de_pontos_mostra_um_e_deixa_inteiras_as_linhas_de_sua_cor) {
    widget.setProperty("legenda", QStringList{"ADobs.=#ff0000:pontos"});
    desenho.larguraTraco(2);
    desenho.linha(80, 100, 300, 100, cores::vermelho);
    widget.mostrar(desenho);
    const auto imagem = widget.grab().toImage();
    const QRect quadro = widget.quadroDosEixos();
    int vermelhos = 0, largura = 0;
    for (int y = 0; y < quadro.top(); ++y) {
        int nesta = 0;
        for (int x = 0; x < imagem.width(); ++x) nesta += imagem.pixelColor(x, y) == QColor(Qt::red);
        vermelhos += nesta;
        largura = std::max(largura, nesta);
    }
    // A filled circle, which is wide and high alike.
    EXPECT_GT(vermelhos, 10);
    EXPECT_LT(largura, 10);
    const int y = static_cast<int>(widget.transformação().map(QPointF{100, 100}).y());
    for (int x = quadro.left() + 40; x < quadro.left() + 200; ++x)
        EXPECT_LT(imagem.pixelColor(x, y).green(), 130) << x;
}

TEST_F(Grafico, a_legenda_fica_acima_dos_eixos_com_a_cor_e_o_estilo_de_cada_curva) {
    const QRect antes = widget.quadroDosEixos();
    widget.setProperty("legenda", QStringList{"CUC=#0000ff", "UD=#ff0000:tracejado"});
    const QRect quadro = widget.quadroDosEixos();
    EXPECT_GT(quadro.top(), antes.top());
    const auto imagem = widget.grab().toImage();
    const auto trechos = [&](QColor cor) {
        int quantos = 0;
        for (int y = 0; y < quadro.top(); ++y) {
            int nesta = 0;
            for (int x = 1; x < imagem.width(); ++x)
                nesta += imagem.pixelColor(x, y) == cor && imagem.pixelColor(x - 1, y) != cor;
            quantos = std::max(quantos, nesta);
        }
        return quantos;
    };
    EXPECT_EQ(trechos(Qt::blue), 1);
    EXPECT_GT(trechos(Qt::red), 1);
}

TEST_F(Grafico, o_tracejado_da_legenda_segue_de_um_segmento_ao_outro) {
    widget.setProperty("legenda", QStringList{"UD=#ff0000:tracejado"});
    desenho.larguraTraco(2);
    // Each is shorter than a dash and a gap.
    for (int x = 80; x < 300; x += 2) desenho.linha(x, 100, x + 2, 100, cores::vermelho);
    desenho.linha(80, 150, 300, 150, cores::azul);
    widget.mostrar(desenho);
    const auto imagem = widget.grab().toImage();
    const auto t = widget.transformação();
    const int de = static_cast<int>(t.map(QPointF{80, 100}).x()) + 1;
    const int até = static_cast<int>(t.map(QPointF{300, 100}).x()) - 1;
    const auto trechos = [&](double altura) {
        const int y = static_cast<int>(t.map(QPointF{80, altura}).y());
        const auto pintado = [&](int x) { return imagem.pixelColor(x, y).green() < 130; };
        int quantos = 1;
        for (int x = de; x < até; ++x) quantos += !pintado(x) && pintado(x + 1);
        return quantos;
    };
    // Dashes of four widths with gaps of two.
    EXPECT_NEAR(trechos(100), (até - de) / 12.0, 2);
    EXPECT_EQ(trechos(150), 1);
}

TEST_F(Grafico, pontos_são_redondos) {
    widget.resize(900, 300);
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.arco(200, 100, 10, cores::vermelho);
    widget.mostrar(desenho);
    const auto imagem = widget.grab().toImage();
    const QPoint centro = widget.transformação().map(QPointF{200, 100}).toPoint();
    const auto alcance = [&](QPoint passo) {
        int n = 0;
        while (imagem.pixelColor(centro + n * passo) == QColor(Qt::red)) ++n;
        return n;
    };
    EXPECT_GT(alcance({1, 0}), 5);
    EXPECT_NEAR(alcance({1, 0}), alcance({0, 1}), 1);
}

TEST_F(Grafico, a_malha_clara_e_a_escura_se_distinguem_do_fundo) {
    const auto imagem = widget.grab().toImage();
    const int claridade = imagem.pixelColor(widget.quadroDosEixos().center()).lightness();
    EXPECT_GT(255 - claridade, 40);
    EXPECT_GT(claridade, 150);
}

} // namespace
} // namespace varenta::teste
