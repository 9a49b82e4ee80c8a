#include "janelas/figura.h"

#include "comum/erro_execucao.h"

#include <QApplication>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace {

// A sheet is laid out in 96ths of an inch, of which a point has 4/3.
constexpr int unidadesPorPolegada = 96;
constexpr double pontosPorUnidade = 72.0 / unidadesPorPolegada;
constexpr int larguraDaFolha = 604; // 16 cm
constexpr int margem = 10;
constexpr int entrePartes = 10;
constexpr int larguraDasCores = 38;
constexpr int colunasDeDados = 3;
constexpr int entreColunas = 12;
// Letters of 11, 9 and 8.25 points.
constexpr int letraDoTítulo = 15, letraDoDesenho = 12, letraDosDados = 11;
// The most that a drawing's axes, or a sketch, may take of a page's height: 10 and 14 cm.
constexpr int alturaDoGráfico = 378, alturaDoMapa = 470, alturaDoEsquema = 530;
// A sketch's height on paper for that on the screen.
constexpr double ampliaçãoDoEsquema = 1.5;

constexpr QColor corDoTexto{0x1d, 0x23, 0x29};
constexpr QColor corDoFio{0xb4, 0xba, 0xc0};

QFont letra(int tamanho, bool negrito = false) {
    QFont fonte{QApplication::font().family()};
    fonte.setPixelSize(tamanho);
    fonte.setBold(negrito);
    // Widths that hold at every resolution.
    fonte.setHintingPreference(QFont::PreferNoHinting);
    return fonte;
}

/// An entry of the data and its place.
struct Dado {
    QString texto;
    QRect lugar;
};

/// The figure's parts in their places.
class Folha {
  public:
    explicit Folha(const Figura& figura) : figura_{figura} {
        int y = margem;
        if (!figura.título.isEmpty()) {
            título_ = quadroDoTexto(QFontMetrics{letra(letraDoTítulo, true)}, figura.título, y);
            y = título_.bottom() + 1 + entrePartes;
        }
        y = disporDesenhos(y) + entrePartes;
        if (!figura.dados.isEmpty()) y = disporDados(y);
        tamanho_ = {larguraDaFolha, y + margem - (figura.dados.isEmpty() ? entrePartes : 0)};
    }

    QSize tamanho() const { return tamanho_; }

    void pintar(QPainter& pintor) const {
        pintor.setRenderHint(QPainter::Antialiasing);
        // Else a PDF file would hold a map with the losses of a photograph.
        pintor.setRenderHint(QPainter::LosslessImageRendering);
        pintor.fillRect(QRect{{}, tamanho_}, Qt::white);
        pintor.setPen(corDoTexto);
        pintor.setFont(letra(letraDoTítulo, true));
        pintor.drawText(título_, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextDontClip, figura_.título);
        pintarDesenho(pintor, figura_.desenho, lugarDoDesenho_);
        if (figura_.cores) pintarDesenho(pintor, *figura_.cores, lugarDasCores_);
        pintarDados(pintor);
    }

  private:
    static constexpr int larguraÚtil = larguraDaFolha - 2 * margem;

    static QFontMetrics medidas() { return QFontMetrics{letra(letraDoDesenho)}; }

    static QRect quadroDoTexto(const QFontMetrics& medidas, const QString& texto, int y) {
        const int altura =
            medidas.boundingRect(QRect{0, 0, larguraÚtil, larguraDaFolha}, Qt::TextWordWrap, texto).height();
        return {margem, y, larguraÚtil, altura};
    }

    static PinturaDoDesenho pintura(const ConteudoDoDesenho& conteúdo, QSizeF tamanho) {
        return {conteúdo, tamanho, medidas(), Meio::papel};
    }

    /// Returns where they end.
    int disporDesenhos(int y) {
        const int cores = figura_.cores ? espaçoDasCores() : 0;
        const QSize tamanho = tamanhoDoDesenho(larguraÚtil - cores);
        const int x = margem + (larguraÚtil - cores - tamanho.width()) / 2;
        lugarDoDesenho_ = {{x, y}, tamanho};
        if (figura_.cores) {
            // Its axis is as long as the map's, however large the captions of both are.
            lugarDasCores_ = {lugarDoDesenho_.topRight() + QPoint{1, 0}, QSize{cores, tamanho.height()}};
        }
        return lugarDoDesenho_.bottom() + 1;
    }

    int espaçoDasCores() const {
        const auto margens = pintura(figura_.cores->conteúdo, {}).margens();
        return margens.left() + larguraDasCores + margens.right();
    }

    QSize tamanhoDoDesenho(int largura) const {
        const auto& conteúdo = figura_.desenho.conteúdo;
        if (!conteúdo.éGráfico()) {
            const double altura = figura_.desenho.linhasDeAltura * medidas().height() * ampliaçãoDoEsquema;
            return conteúdo.proporções()
                .scaled(largura, std::min<double>(altura, alturaDoEsquema), Qt::KeepAspectRatio)
                .toSize();
        }
        const auto margens = pintura(conteúdo, {}).margens();
        const QSizeF sala{static_cast<double>(largura - margens.left() - margens.right()),
                          static_cast<double>(conteúdo.proporcional ? alturaDoMapa : alturaDoGráfico)};
        QSizeF eixos = conteúdo.proporções().scaled(sala, Qt::KeepAspectRatio);
        // A chart is stretched, and uses the whole width.
        if (!conteúdo.proporcional) eixos.setWidth(sala.width());
        return eixos.toSize().grownBy(margens);
    }

    /// Entries in columns, row by row; one that is too long for its column takes the next ones too. Returns
    /// where they end.
    int disporDados(int y) {
        const QFontMetrics medidas{letra(letraDosDados)};
        constexpr int passo = (larguraÚtil + entreColunas) / colunasDeDados;
        fio_ = y;
        y += entrePartes / 2;
        int coluna = 0;
        for (const auto& texto : figura_.dados) {
            const int largura = medidas.horizontalAdvance(texto);
            const int colunas = std::min((largura + entreColunas + passo - 1) / passo, colunasDeDados);
            if (coluna + colunas > colunasDeDados) {
                y += medidas.height();
                coluna = 0;
            }
            QRect lugar{margem + coluna * passo, y, colunas * passo - entreColunas, medidas.height()};
            if (largura > lugar.width()) {
                lugar = quadroDoTexto(medidas, texto, y);
                y += lugar.height() - medidas.height();
            }
            dados_.push_back({texto, lugar});
            coluna += colunas;
        }
        return y + medidas.height();
    }

    static void pintarDesenho(QPainter& pintor, const DesenhoDaFigura& desenho, const QRect& lugar) {
        const auto pintura = Folha::pintura(desenho.conteúdo, lugar.size());
        pintor.save();
        pintor.translate(lugar.topLeft());
        pintor.setFont(letra(letraDoDesenho));
        pintura.pintar(pintor);
        for (const auto& texto : desenho.textos) pintarTexto(pintor, texto, pintura.transformação());
        pintor.restore();
    }

    static void pintarTexto(QPainter& pintor, const TextoDoDesenho& texto, const QTransform& transformação) {
        const auto fonte = letra(letraDoDesenho, texto.negrito);
        const QFontMetrics medidas{fonte};
        const QPoint ponto = transformação.map(texto.lugar).toPoint();
        QRect lugar{{}, QSize{medidas.horizontalAdvance(texto.texto), medidas.height()}};
        lugar.moveCenter(ponto);
        if (texto.alinhamento & Qt::AlignLeft) lugar.moveLeft(ponto.x());
        if (texto.alinhamento & Qt::AlignRight) lugar.moveRight(ponto.x());
        pintor.setFont(fonte);
        pintor.setPen(texto.cor.isValid() ? texto.cor : corDoTexto);
        pintor.drawText(lugar, Qt::AlignCenter | Qt::TextDontClip, texto.texto);
    }

    void pintarDados(QPainter& pintor) const {
        if (dados_.empty()) return;
        pintor.setPen(QPen{corDoFio, 0.75});
        pintor.drawLine(margem, fio_, larguraDaFolha - margem, fio_);
        pintor.setFont(letra(letraDosDados));
        pintor.setPen(corDoTexto);
        for (const auto& dado : dados_)
            pintor.drawText(dado.lugar, Qt::AlignLeft | Qt::TextWordWrap | Qt::TextDontClip, dado.texto);
    }

    const Figura& figura_;
    QSize tamanho_;
    QRect título_, lugarDoDesenho_, lugarDasCores_;
    std::vector<Dado> dados_;
    int fio_ = 0;
};

} // namespace

QImage imagemDaFigura(const Figura& figura, int pontosPorPolegada) {
    const Folha folha{figura};
    const double escala = static_cast<double>(pontosPorPolegada) / unidadesPorPolegada;
    QImage imagem{(QSizeF{folha.tamanho()} * escala).toSize(), QImage::Format_RGB32};
    if (imagem.isNull()) return imagem;
    constexpr double metrosPorPolegada = 0.0254;
    const int pontosPorMetro = static_cast<int>(std::lround(pontosPorPolegada / metrosPorPolegada));
    imagem.fill(Qt::white);
    QPainter pintor{&imagem};
    pintor.scale(escala, escala);
    folha.pintar(pintor);
    pintor.end();
    imagem.setDotsPerMeterX(pontosPorMetro);
    imagem.setDotsPerMeterY(pontosPorMetro);
    return imagem;
}

QByteArray pngDaFigura(const Figura& figura, int pontosPorPolegada) {
    QBuffer bytes;
    if (!imagemDaFigura(figura, pontosPorPolegada).save(&bytes, "PNG"))
        throw varenta::ErroExecucao{"Memória insuficiente"};
    return bytes.data();
}

QByteArray svgDaFigura(const Figura& figura) {
    const Folha folha{figura};
    QBuffer bytes;
    QSvgGenerator gerador;
    gerador.setOutputDevice(&bytes);
    gerador.setResolution(unidadesPorPolegada);
    gerador.setSize(folha.tamanho());
    gerador.setViewBox(QRect{{}, folha.tamanho()});
    gerador.setTitle(figura.título);
    gerador.setDescription(figura.dados.join(QStringLiteral("; ")));
    QPainter pintor{&gerador};
    folha.pintar(pintor);
    pintor.end();
    return bytes.data();
}

QByteArray pdfDaFigura(const Figura& figura) {
    constexpr int resolução = 1200;
    const Folha folha{figura};
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter gerador{&bytes};
    gerador.setTitle(figura.título);
    gerador.setCreator(QStringLiteral("Varenta"));
    gerador.setResolution(resolução);
    gerador.setPageSize(QPageSize{QSizeF{folha.tamanho()} * pontosPorUnidade, QPageSize::Point,
                                  QStringLiteral("Figura"), QPageSize::ExactMatch});
    gerador.setPageMargins(QMarginsF{});
    QPainter pintor{&gerador};
    pintor.scale(static_cast<double>(resolução) / unidadesPorPolegada,
                 static_cast<double>(resolução) / unidadesPorPolegada);
    folha.pintar(pintor);
    pintor.end();
    return bytes.data();
}
