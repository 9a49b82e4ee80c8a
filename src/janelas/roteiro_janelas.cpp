#include "janelas/roteiro_janelas.h"

#include "roteiro/interprete.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>

#include <iostream>

namespace {

/// The windows as they stand, before the next command.
void deixarPintar(Janelas& janelas) {
    janelas.atualizar();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void salvarImagem(QWidget* janela, const QString& caminho) {
    if (!janela || !janela->grab().save(caminho))
        throw varenta::FalhaDeSaída{("A imagem " + caminho + " não pôde ser gravada").toStdString()};
}

} // namespace

int executarNasJanelas(Janelas& janelas, const QString& roteiro, const QString& imagens) {
    const QDir pasta{imagens};
    if (!imagens.isEmpty() && !pasta.mkpath(QStringLiteral("."))) {
        std::cerr << imagens.toStdString() << ": a pasta não pôde ser criada\n";
        return varenta::Interprete::falha;
    }
    varenta::Interprete intérprete{std::cout, std::cerr};
    intérprete.depoisDeCadaComando = [&] { deixarPintar(janelas); };
    int quantas = 0;
    if (!imagens.isEmpty())
        intérprete.aoMostrarTela = [&](varenta::TelaBase& tela) {
            deixarPintar(janelas);
            const auto nome = QStringLiteral("%1-%2.png")
                                  .arg(++quantas, 2, 10, QLatin1Char{'0'})
                                  .arg(QString::fromStdString(tela.nome()));
            salvarImagem(janelas.janela(tela), pasta.filePath(nome));
        };
    if (roteiro == QLatin1String{"-"}) return intérprete.executarFluxo(std::cin);
    return intérprete.executarArquivo(roteiro.toStdString());
}
