#include "janelas/dialogos.h"

#include "comum/plataforma.h"
#include "janelas/janela_ajuda.h"
#include "roteiro/interprete.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QTreeView>

#include <string>

namespace varenta {
namespace {

QMessageBox::StandardButton mostrarCaixa(QMessageBox::Icon ícone, const QString& texto,
                                         QMessageBox::StandardButtons botões,
                                         QMessageBox::StandardButton padrão = QMessageBox::NoButton,
                                         const QString& detalhe = {}) {
    QMessageBox caixa{ícone, QStringLiteral("Varenta"), texto, botões, QApplication::activeWindow()};
    caixa.setTextFormat(Qt::PlainText);
    caixa.setInformativeText(detalhe);
    caixa.setDefaultButton(padrão);
    if (auto* sim = caixa.button(QMessageBox::Yes)) sim->setText(QStringLiteral("&Sim"));
    if (auto* não = caixa.button(QMessageBox::No)) não->setText(QStringLiteral("&Não"));
    return static_cast<QMessageBox::StandardButton>(caixa.exec());
}

/// Qt's own dialog opens too small for its columns and for the names of the places beside them.
void mostrarNomesInteiros(QFileDialog& diálogo) {
    diálogo.resize(diálogo.sizeHint().expandedTo({900, 500}));
    if (auto* divisão = diálogo.findChild<QSplitter*>()) divisão->setSizes({140, 700});
    if (auto* arquivos = diálogo.findChild<QTreeView*>())
        arquivos->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

std::optional<QString> escolherArquivo(QFileDialog& diálogo) {
    mostrarNomesInteiros(diálogo);
    if (diálogo.exec() != QDialog::Accepted) return std::nullopt;
    return diálogo.selectedFiles().value(0);
}

/// A name typed without an ending gets that of the filter that the person chose, if it has one.
void completarPeloFiltro(QFileDialog& diálogo) {
    QObject::connect(&diálogo, &QFileDialog::filterSelected, &diálogo, [&diálogo](const QString& filtro) {
        static const QRegularExpression máscara{QStringLiteral("\\(\\*\\.(\\w+)")};
        if (const auto achada = máscara.match(filtro); achada.hasMatch())
            diálogo.setDefaultSuffix(achada.captured(1));
    });
}

QString qtexto(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

std::optional<std::string> caminho(const std::optional<QString>& escolhido) {
    if (!escolhido) return std::nullopt;
    return escolhido->toStdString();
}

void preparar() {
    if (antesDeCadaDialogo) antesDeCadaDialogo();
}

/// When windows are to paint themselves next while an act works.
struct Espera {
    qint64 pausa = 0; // ms
    QElapsedTimer desde = {};
};
Espera espera;

/// Drops what the person does as long as it lives.
class EntradasDescartadas : public QObject {
  public:
    EntradasDescartadas() { qApp->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* evento) override {
        switch (evento->type()) {
        case QEvent::MouseButtonRelease:
            // Of a button that was down already: what it holds must not stay pressed.
            if (!apertou_) return false;
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            apertou_ = true;
            break;
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::Close:
            break;
        default:
            return false;
        }
        evento->ignore();
        return true;
    }

  private:
    bool apertou_ = false;
};

} // namespace

Dialogos dialogosDoQt() {
    return {
        .mensagem =
            [](const QString& texto, const QString& detalhe) {
                mostrarCaixa(QMessageBox::Information, texto, QMessageBox::Ok, QMessageBox::NoButton,
                             detalhe);
            },
        .perguntar =
            [](const QString& texto) {
                return mostrarCaixa(QMessageBox::Question, texto, QMessageBox::Yes | QMessageBox::No) ==
                       QMessageBox::Yes;
            },
        .confirmar =
            [](const QString& texto) {
                return mostrarCaixa(QMessageBox::Question, texto, QMessageBox::Yes | QMessageBox::No,
                                    QMessageBox::No) == QMessageBox::Yes;
            },
        .erroDeExecucao =
            [](const QString& texto) { mostrarCaixa(QMessageBox::Critical, texto, QMessageBox::Ok); },
        .arquivoParaAbrir =
            [](const QString& filtros) {
                QFileDialog diálogo{
                    QApplication::activeWindow(), QStringLiteral("Abrir Arquivo"), {}, filtros};
                diálogo.setFileMode(QFileDialog::ExistingFile);
                return escolherArquivo(diálogo);
            },
        .arquivoParaSalvar =
            [](const QString& filtros, int filtroInicial, const QString& extensãoPadrão) {
                QFileDialog diálogo{
                    QApplication::activeWindow(), QStringLiteral("Salvar Arquivo"), {}, filtros};
                diálogo.setAcceptMode(QFileDialog::AcceptSave);
                diálogo.setOption(QFileDialog::DontConfirmOverwrite);
                diálogo.selectNameFilter(diálogo.nameFilters().value(filtroInicial - 1));
                diálogo.setDefaultSuffix(extensãoPadrão);
                completarPeloFiltro(diálogo);
                return escolherArquivo(diálogo);
            },
        .figuraParaSalvar = [](const QString& filtros, int filtroInicial) -> std::optional<ArquivoEscolhido> {
            QFileDialog diálogo{QApplication::activeWindow(), QStringLiteral("Salvar Figura"), {}, filtros};
            diálogo.setAcceptMode(QFileDialog::AcceptSave);
            diálogo.setOption(QFileDialog::DontConfirmOverwrite);
            diálogo.selectNameFilter(diálogo.nameFilters().value(filtroInicial - 1));
            const auto caminho = escolherArquivo(diálogo);
            if (!caminho) return std::nullopt;
            const auto filtro = diálogo.nameFilters().indexOf(diálogo.selectedNameFilter());
            return ArquivoEscolhido{*caminho, static_cast<int>(filtro) + 1};
        },
        .ajuda = mostrarJanelaDaAjuda,
    };
}

Dialogos& dialogos() {
    static Dialogos emUso = dialogosDoQt();
    return emUso;
}

void começarAto() {
    espera = {tempoDeUmaEsperaMs};
    espera.desde.start();
}

void pintarSemOuvir() {
    const EntradasDescartadas agora;
    QCoreApplication::processEvents();
}

QString filtrosDoQt(const QString& filtro) {
    static const QRegularExpression máscarasNoNome{QStringLiteral("\\s*\\([^)]*\\)\\s*$")};
    const auto partes = filtro.split(QLatin1Char{'|'});
    QStringList filtros;
    for (qsizetype k = 0; k + 1 < partes.size(); k += 2) {
        const auto& máscara = partes[k + 1];
        const auto máscaras = máscara == QLatin1String{"*.*"}
                                  ? QStringLiteral("*")
                                  : máscara + QLatin1Char{' '} + máscara.toLower();
        filtros << QString{partes[k]}.remove(máscarasNoNome) + QStringLiteral(" (") + máscaras +
                       QLatin1Char{')'};
    }
    return filtros.join(QStringLiteral(";;"));
}

/// While a roteiro runs in the windows, it is told and asked instead of the person.
namespace plataforma {

void mensagem(std::string_view texto, std::string_view detalhe) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->mensagem(texto);
    preparar();
    dialogos().mensagem(qtexto(texto), qtexto(detalhe));
}

bool perguntar(std::string_view texto) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->perguntar(texto);
    preparar();
    return dialogos().perguntar(qtexto(texto));
}

void avisar(std::string_view texto) {
    // In a window the notice stands in a label of its screen already.
    if (auto* roteiro = Interprete::ativo()) roteiro->avisar(texto);
}

void mostrarAmpulheta(bool mostrar) {
    if (mostrar)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

void erroDeExecucao(std::string_view texto) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->erroDeExecucao(texto);
    preparar();
    dialogos().erroDeExecucao(qtexto(texto));
}

std::optional<std::string> arquivoParaAbrir(const DialogoArquivo& diálogo) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->arquivoParaAbrir();
    preparar();
    return caminho(dialogos().arquivoParaAbrir(filtrosDoQt(qtexto(diálogo.filtro))));
}

std::optional<std::string> arquivoParaSalvar(const DialogoArquivo& diálogo) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->arquivoParaSalvar(diálogo);
    preparar();
    return caminho(dialogos().arquivoParaSalvar(filtrosDoQt(qtexto(diálogo.filtro)), diálogo.filtroInicial,
                                                qtexto(diálogo.extensãoPadrão)));
}

void ajuda(std::optional<int> tópico) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->ajuda(tópico);
    dialogos().ajuda(tópico);
}

void progresso(double valor, std::string_view texto) {
    if (auto* roteiro = Interprete::ativo()) roteiro->progresso(valor, texto);
    preparar();
    pintarSemOuvir();
}

void respirar() {
    constexpr qint64 entrePinturas = 50; // ms: painting takes a few of them
    if (espera.desde.isValid() && espera.desde.elapsed() < espera.pausa) return;
    preparar();
    pintarSemOuvir();
    espera = {entrePinturas};
    espera.desde.start();
}

void encerrar() {
    if (auto* roteiro = Interprete::ativo()) return roteiro->encerrar();
    // Not quit(), which would ask every window to close once more.
    QCoreApplication::exit();
}

} // namespace plataforma
} // namespace varenta
