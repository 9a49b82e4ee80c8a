#include "janelas/roteiro_janelas.h"

#include "comum/plataforma.h"
#include "janelas/dialogos.h"
#include "roteiro/interprete.h"
#include "shell/form3.h"
#include "shell/sistema.h"

#include <QDir>
#include <QFileInfo>
#include <QPixmap>

#include <iostream>
#include <sstream>

namespace {

/// The windows as they stand, before the next command.
void deixarPintar(Janelas& janelas) {
    janelas.atualizar();
    varenta::pintarSemOuvir();
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

bool abrirNasJanelas(Janelas& janelas, const QString& roteiro) {
    varenta::iniciarSistema();
    janelas.atualizar();
    const auto pergunta =
        QStringLiteral("Executar o roteiro \"%1\"? Ele pode salvar arquivos e substituir os que já existem.");
    if (!varenta::dialogos().confirmar(pergunta.arg(QFileInfo{roteiro}.fileName()))) return true;
    std::ostringstream erros;
    varenta::Interprete intérprete{std::cout, erros};
    intérprete.depoisDeCadaComando = [&] { deixarPintar(janelas); };
    intérprete.executarArquivo(roteiro.toStdString());
    if (const auto texto = erros.str(); !texto.empty()) varenta::plataforma::mensagem(texto);
    return varenta::form3.carregada();
}
