/// How long the maps of the largest road take to be painted. The road goes through the real windows, as the
/// roteiro beside this file tells it.

#include "janelas/aplicacao.h"
#include "janelas/janelas.h"
#include "janelas/pintura_desenho.h"
#include "janelas/widget_desenho.h"
#include "roteiro/interprete.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <vector>

namespace {

/// The median processor time of 21 paintings, ms, in the widget's own size at `densidade` pixels a unit.
double tempoDaPintura(const WidgetDesenho& desenho, double densidade) {
    QImage imagem{desenho.size() * densidade, QImage::Format_ARGB32_Premultiplied};
    imagem.setDevicePixelRatio(densidade);
    std::vector<double> tempos;
    for (int vez = 0; vez < 21; ++vez) {
        const auto início = std::clock();
        imagem.fill(Qt::transparent);
        QPainter pintor{&imagem};
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setFont(desenho.font());
        PinturaDoDesenho{desenho.conteúdo(), desenho.size(), desenho.fontMetrics()}.pintar(pintor, densidade);
        pintor.end();
        tempos.push_back(static_cast<double>(std::clock() - início) * 1e3 / CLOCKS_PER_SEC);
    }
    std::ranges::nth_element(tempos, tempos.begin() + 10);
    return tempos[10];
}

void medir(const QWidget& janela, const std::string& nome) {
    for (const auto* desenho : janela.findChildren<WidgetDesenho*>()) {
        if (!desenho->isVisible()) continue;
        std::printf("| %s.%s | %d x %d | %zu | %.2f | %.2f |\n", nome.c_str(),
                    desenho->objectName().toUtf8().constData(), desenho->width(), desenho->height(),
                    desenho->conteúdo().traços.size(), tempoDaPintura(*desenho, 1),
                    tempoDaPintura(*desenho, 2));
    }
}

} // namespace

int main(int quantos, char** argumentos) {
    Aplicacao aplicação{quantos, argumentos};
    Janelas janelas;
    varenta::Interprete intérprete{std::cout, std::cerr};
    const auto mostrar = [&] {
        janelas.atualizar();
        Aplicacao::processEvents();
    };
    intérprete.depoisDeCadaComando = mostrar;
    intérprete.aoMostrarTela = [&](varenta::TelaBase& tela) {
        mostrar();
        medir(*janelas.janela(tela), tela.nome());
    };
    std::printf("| Mapa | tamanho | traços | ms | ms a 200 %% |\n|---|---|---|---|---|\n");
    return intérprete.executarArquivo(BANCADA_ROTEIRO);
}
