#include "macaco/escriba.h"

#include "comum/planilha.h"
#include "janelas/texto_digitado.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <utility>

namespace varenta::teste {
namespace {

/// The grid whose entry line the widget is, by its full name; nothing where it is none.
struct EntradaDeGrade {
    std::string grade;
    int linha, coluna;
};

std::optional<EntradaDeGrade> entradaDeGrade(TelaBase& tela, const QObject& widget) {
    const auto entrada = tela.achar(widget.objectName().toStdString(), std::nullopt);
    if (!entrada) return std::nullopt;
    for (const auto& elemento : tela.elementos())
        if (const auto* const* grade = std::get_if<Grade*>(&elemento.controle))
            if ((*grade)->planilha && &(*grade)->planilha().entrada == entrada->endereço())
                return EntradaDeGrade{tela.nome() + "." + elemento.nome, (*grade)->linhaAtual,
                                      (*grade)->colunaAtual};
    return std::nullopt;
}

bool éEnter(const QEvent& evento) {
    if (evento.type() != QEvent::KeyPress) return false;
    const auto tecla = static_cast<const QKeyEvent&>(evento).key();
    return tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

} // namespace

void Escriba::acompanhar(const Janelas& janelas) {
    for (const auto& modelo : janelasDoPrograma()) {
        auto* janela = janelas.janela(*modelo.tela);
        auto& conhecida = janelas_[modelo.tela];
        if (conhecida == janela) continue;
        conhecida = janela;
        if (janela) acompanharJanela(*modelo.tela, *janela);
    }
}

void Escriba::encerrarGesto() {
    if (!passo_.palavras.empty()) anotarAto(std::move(passo_.palavras));
    const auto sobras = std::exchange(passo_, {});
    for (const bool resposta : sobras.respostas) linhas_.push_back(resposta ? "#   sim\n" : "#   não\n");
    for (const auto& caminho : sobras.arquivos)
        linhas_.push_back("#   " + caminho.value_or("cancelar") + "\n");
}

void Escriba::recomeçar() {
    passo_ = {};
    linhas_ = {};
}

void Escriba::anotarAto(std::vector<std::string> palavras) {
    passo_.palavras = std::move(palavras);
    linhas_.push_back(std::exchange(passo_, {}).texto());
}

void Escriba::acompanharJanela(TelaBase& tela, QWidget& janela) {
    for (const auto& elemento : tela.elementos()) {
        if (elemento.índice) continue;
        const auto nome = QString::fromStdString(elemento.nome);
        QObject* objeto = janela.findChild<QWidget*>(nome);
        if (!objeto) objeto = janela.findChild<QAction*>(nome);
        if (objeto) acompanhar(tela.nome() + "." + elemento.nome, *objeto);
    }
    janela.installEventFilter(this);
    for (auto* caixa : janela.findChildren<QLineEdit*>()) caixa->installEventFilter(this);
}

void Escriba::acompanhar(const std::string& nome, QObject& objeto) {
    const auto clicado = [this, nome] { anotarAto({"clicar", nome}); };
    if (auto* botão = qobject_cast<QPushButton*>(&objeto))
        connect(botão, &QPushButton::clicked, this, clicado);
    else if (auto* opção = qobject_cast<QRadioButton*>(&objeto))
        connect(opção, &QRadioButton::clicked, this, clicado);
    else if (auto* verificação = qobject_cast<QCheckBox*>(&objeto))
        connect(verificação, &QCheckBox::clicked, this, clicado);
    else if (auto* ação = qobject_cast<QAction*>(&objeto))
        connect(ação, &QAction::triggered, this, clicado);
    else if (auto* caixa = qobject_cast<QLineEdit*>(&objeto))
        acompanharTexto(nome, *caixa);
    else if (auto* lista = qobject_cast<QComboBox*>(&objeto)) {
        connect(lista, &QComboBox::activated, this, [this, nome, lista](int índice) {
            anotarAto({"escolher", nome, lista->itemText(índice).toStdString()});
        });
        if (lista->isEditable()) acompanharTexto(nome, *lista->lineEdit());
    } else if (auto* barra = qobject_cast<QScrollBar*>(&objeto)) {
        connect(barra, &QScrollBar::actionTriggered, this, [this, nome, barra] {
            anotarAto({barra->isSliderDown() ? "arrastar" : "rolar", nome,
                       std::to_string(barra->sliderPosition())});
        });
    } else if (auto* desenho = qobject_cast<WidgetDesenho*>(&objeto)) {
        connect(desenho, &WidgetDesenho::mouseMovido, this, [this, nome](double x, double y) {
            anotarAto({"mover", nome, QString::number(x, 'f', 3).toStdString(),
                       QString::number(y, 'f', 3).toStdString()});
        });
    } else if (auto* tabela = qobject_cast<WidgetTabela*>(&objeto)) {
        connect(tabela, &WidgetTabela::colarPedido, this, [this, nome](const QString& texto) {
            anotarGesto("pasted into " + nome + ": " +
                        texto.left(200).replace(QLatin1Char{'\n'}, QStringLiteral(" / ")).toStdString());
        });
    }
}

void Escriba::acompanharTexto(const std::string& nome, QLineEdit& caixa) {
    auto* digitado = caixa.findChild<TextoDigitado*>();
    connect(digitado, &TextoDigitado::mudou, this, [this, nome](const QString& texto) {
        anotarAto({"digitar", nome, texto.toStdString()});
    });
}

/// What has no signal of its own: the close box, and Enter in the entry line of a grid.
bool Escriba::eventFilter(QObject* objeto, QEvent* evento) {
    const bool fecha = evento->type() == QEvent::Close;
    if (!fecha && !éEnter(*evento)) return false;
    const auto* janelaDoObjeto = static_cast<QWidget*>(objeto)->window();
    for (const auto& [tela, janela] : janelas_) {
        if (janela != janelaDoObjeto) continue;
        if (fecha)
            passo_.palavras = {"fechar", tela->nome()};
        else if (const auto entrada = entradaDeGrade(*tela, *objeto))
            passo_.palavras = {"celula", entrada->grade, std::to_string(entrada->linha),
                               std::to_string(entrada->coluna),
                               static_cast<QLineEdit*>(objeto)->text().toStdString()};
    }
    return false;
}

} // namespace varenta::teste
