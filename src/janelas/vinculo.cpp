#include "janelas/vinculo.h"

#include "comum/atos.h"
#include "comum/limites.h"
#include "comum/planilha.h"
#include "janelas/comandos_da_figura.h"
#include "janelas/janelas.h"
#include "janelas/linha_de_entrada.h"
#include "janelas/linha_de_estado.h"
#include "janelas/moldura_do_foco.h"
#include "janelas/texto_digitado.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <algorithm>
#include <stdexcept>
#include <type_traits>

using namespace varenta;

namespace {

QString qtexto(const std::string& texto) { return QString::fromStdString(texto); }

/// The kind of widget that stands for a kind of control.
template <class Controle>
struct WidgetDe;
template <>
struct WidgetDe<Rotulo> : std::type_identity<QLabel> {};
template <>
struct WidgetDe<Quadro> : std::type_identity<QGroupBox> {};
template <>
struct WidgetDe<Botao> : std::type_identity<QPushButton> {};
template <>
struct WidgetDe<ItemMenu> : std::type_identity<QAction> {};
template <>
struct WidgetDe<CaixaTexto> : std::type_identity<QLineEdit> {};
template <>
struct WidgetDe<Lista> : std::type_identity<QComboBox> {};
template <>
struct WidgetDe<Opcao> : std::type_identity<QRadioButton> {};
template <>
struct WidgetDe<Verificacao> : std::type_identity<QCheckBox> {};
template <>
struct WidgetDe<Rolagem> : std::type_identity<QScrollBar> {};
template <>
struct WidgetDe<Barra> : std::type_identity<QProgressBar> {};
template <>
struct WidgetDe<Grade> : std::type_identity<WidgetTabela> {};
template <>
struct WidgetDe<Desenho> : std::type_identity<WidgetDesenho> {};

/// The object of that name and kind in the window; a menu by its action.
template <class Tipo>
Tipo* achar(const QWidget& janela, const QString& nome) {
    if constexpr (std::is_same_v<Tipo, QAction>)
        if (const auto* menu = janela.findChild<QMenu*>(nome)) return menu->menuAction();
    return janela.findChild<Tipo*>(nome);
}

void mostrarEstado(QAction& ação, bool visível, bool habilitado) {
    if (ação.isVisible() != visível) ação.setVisible(visível);
    if (ação.isEnabled() != habilitado) ação.setEnabled(habilitado);
}

void mostrarEstado(QWidget& widget, bool visível, bool habilitado) {
    if (widget.isHidden() == visível) widget.setVisible(visível);
    if (widget.isEnabledTo(widget.parentWidget()) != habilitado) widget.setEnabled(habilitado);
}

QStringList textosDe(const QComboBox& caixa) {
    QStringList textos;
    for (int k = 0; k < caixa.count(); ++k) textos << caixa.itemText(k);
    return textos;
}

/// An option among its siblings lets itself be turned off only while it doesn't exclude them.
void mostrarMarca(QAbstractButton& botão, bool marcada) {
    if (botão.isChecked() == marcada) return;
    const bool exclusiva = botão.autoExclusive();
    botão.setAutoExclusive(false);
    botão.setChecked(marcada);
    botão.setAutoExclusive(exclusiva);
}

/// A wheel that scrolls past a list or a bar must not change its value.
bool mudariaComARoda(const QWidget& widget) {
    return !widget.hasFocus() &&
           (qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QScrollBar*>(&widget));
}

/// What only a hand does: focus that comes with a window or a box follows the core, not the other way round.
bool veioDaPessoa(Qt::FocusReason motivo) {
    return motivo == Qt::MouseFocusReason || motivo == Qt::TabFocusReason ||
           motivo == Qt::BacktabFocusReason || motivo == Qt::ShortcutFocusReason;
}

bool aceitaEntradas(const Grade& grade) { return grade.planilha && grade.planilha().digitação; }

} // namespace

/// Listens to the widget of a control.
struct Vinculo::Ligar {
    Vinculo& v;
    const std::string& nome;

    void operator()(QLabel& rótulo) const { rótulo.setTextFormat(Qt::PlainText); }
    void operator()(QGroupBox&) const {}
    void operator()(QProgressBar&) const {}

    void operator()(QPushButton& botão) const { clicarCom(botão, &QPushButton::clicked); }
    void operator()(QAction& ação) const { clicarCom(ação, &QAction::triggered); }
    void operator()(QRadioButton& opção) const { clicarCom(opção, &QRadioButton::clicked); }
    void operator()(QCheckBox& caixa) const { clicarCom(caixa, &QCheckBox::clicked); }

    void operator()(QLineEdit& caixa) const { digitarEm(caixa); }

    void operator()(QComboBox& caixa) const {
        caixa.setInsertPolicy(QComboBox::NoInsert);
        if (caixa.isEditable()) {
            // It would finish the word that is being typed.
            caixa.setCompleter(nullptr);
            digitarEm(*caixa.lineEdit());
            QObject::connect(caixa.lineEdit(), &QLineEdit::returnPressed, &v, [v = &v, nome = nome] {
                v->agir(nome, [](const Alvo&) { atos::confirmar(); });
            });
        }
        QObject::connect(&caixa, &QComboBox::activated, &v,
                         [v = &v, nome = nome, caixa = &caixa](int índice) {
                             v->agir(nome, [&](const Alvo& alvo) {
                                 atos::escolher(alvo, caixa->itemText(índice).toStdString());
                             });
                         });
    }

    void operator()(QScrollBar& barra) const {
        // The position is where the person wants the value; the bar takes it over after this signal.
        QObject::connect(
            &barra, &QScrollBar::actionTriggered, &v, [v = &v, nome = nome, barra = &barra](int ação) {
                const bool polegar = ação == QAbstractSlider::SliderMove && barra->isSliderDown();
                v->agir(nome, [&](const Alvo& alvo) {
                    polegar ? atos::arrastar(alvo, barra->sliderPosition())
                            : atos::rolar(alvo, barra->sliderPosition());
                });
            });
        QObject::connect(&barra, &QScrollBar::sliderReleased, &v,
                         [v = &v] { v->janelas_.agir([] { atos::soltar(); }); });
    }

    void operator()(WidgetTabela& tabela) const {
        QObject::connect(&tabela, &WidgetTabela::celulaEscolhida, &v,
                         [v = &v, nome = nome](int linha, int coluna) {
                             v->agir(nome, [&](const Alvo& alvo) {
                                 if (aceitaEntradas(*std::get<Grade*>(alvo.elemento.controle)))
                                     atos::irParaCélula(alvo, linha + 1, coluna + 1);
                             });
                             // The entry line may have had the focus already, with another text.
                             v->selecionarEntrada();
                         });
        QObject::connect(&tabela, &WidgetTabela::colarPedido, &v,
                         [v = &v, nome = nome](const QString& texto) {
                             v->agir(nome, [&](const Alvo& alvo) { atos::colar(alvo, texto.toStdString()); });
                             v->selecionarEntrada();
                         });
    }

    void operator()(WidgetDesenho& desenho) const {
        oferecerFigura(desenho, v.tela_);
        QObject::connect(&desenho, &WidgetDesenho::mouseMovido, &v,
                         [v = &v, nome = nome](double x, double y) {
                             v->agir(nome, [&](const Alvo& alvo) { atos::moverMouse(alvo, x, y); });
                         });
        QObject::connect(&desenho, &WidgetDesenho::mouseSaiu, &v,
                         [v = &v] { v->janelas_.agir([v] { atos::moverMouse(v->tela_); }); });
    }

  private:
    template <class Objeto, class Sinal>
    void clicarCom(const Objeto& objeto, Sinal sinal) const {
        QObject::connect(&objeto, sinal, &v, [v = &v, nome = nome] {
            v->agir(nome, [](const Alvo& alvo) { atos::clicar(alvo); });
        });
    }

    void digitarEm(QLineEdit& caixa) const {
        // A box cuts off what is longer, and the first key in it would take that from the record, too.
        caixa.setMaxLength(static_cast<int>(maiorLinha));
        const auto* digitado = new TextoDigitado{caixa};
        QObject::connect(digitado, &TextoDigitado::mudou, &v, [v = &v, nome = nome](const QString& texto) {
            v->agir(nome, [&](const Alvo& alvo) { atos::digitar(alvo, texto.toStdString()); });
        });
    }
};

/// Writes into a widget what its control holds, where it differs.
struct Vinculo::Mostrar {
    void operator()(QLabel& rótulo, const Rotulo& r) const {
        const auto texto = qtexto(r.texto);
        if (rótulo.text() != texto) rótulo.setText(texto);
        const bool oculto = texto.isEmpty() && rótulo.property("ocultoQuandoVazio").toBool();
        mostrarEstado(rótulo, r.visivel && !oculto, r.habilitado);
    }

    void operator()(QGroupBox& grupo, const Quadro& r) const {
        const auto texto = qtexto(r.texto);
        if (grupo.title() != texto) grupo.setTitle(texto);
        mostrarEstado(grupo, r.visivel, r.habilitado);
    }

    void operator()(QPushButton& botão, const Botao& r) const {
        const auto texto = qtexto(r.texto);
        if (botão.text() != texto) botão.setText(texto);
        mostrarEstado(botão, r.visivel, r.habilitado && r.aoClicar);
    }

    void operator()(QAction& ação, const ItemMenu& r) const {
        const auto texto = qtexto(r.texto);
        if (ação.text() != texto) ação.setText(texto);
        mostrarEstado(ação, r.visivel, r.habilitado && (r.abreSubmenu || r.aoClicar));
    }

    void operator()(QLineEdit& caixa, const CaixaTexto& r) const {
        const auto texto = qtexto(r.texto);
        if (caixa.text() != texto) caixa.setText(texto);
        mostrarEstado(caixa, r.visivel, r.habilitado);
    }

    void operator()(QComboBox& caixa, const Lista& r) const {
        QStringList itens;
        for (const auto& item : r.itens) itens << qtexto(item);
        if (textosDe(caixa) != itens) {
            caixa.clear();
            caixa.addItems(itens);
        }
        const auto texto = qtexto(r.texto);
        const int índice = static_cast<int>(itens.indexOf(texto));
        if (caixa.isEditable()) {
            // A change of the index replaces the text that is being typed and moves its cursor.
            const int cursor = caixa.lineEdit()->cursorPosition();
            const bool mesmo = caixa.currentText() == texto;
            if (caixa.currentIndex() != índice) caixa.setCurrentIndex(índice);
            if (caixa.currentText() != texto) caixa.setEditText(texto);
            if (mesmo) caixa.lineEdit()->setCursorPosition(cursor);
        } else if (caixa.currentIndex() != índice) {
            caixa.setCurrentIndex(índice);
        }
        mostrarEstado(caixa, r.visivel, r.habilitado);
    }

    void operator()(QRadioButton& opção, const Opcao& r) const {
        const auto texto = qtexto(r.texto);
        if (opção.text() != texto) opção.setText(texto);
        mostrarMarca(opção, r.marcada);
        // Left alone, Tab goes to the option of its group that had the focus last.
        opção.setFocusPolicy(r.marcada ? Qt::StrongFocus : Qt::ClickFocus);
        mostrarEstado(opção, r.visivel, r.habilitado);
    }

    void operator()(QCheckBox& caixa, const Verificacao& r) const {
        const auto texto = qtexto(r.texto);
        if (caixa.text() != texto) caixa.setText(texto);
        mostrarMarca(caixa, r.marcada);
        mostrarEstado(caixa, r.visivel, r.habilitado);
    }

    void operator()(QScrollBar& barra, const Rolagem& r) const {
        barra.setRange(r.mínimo, r.máximo);
        barra.setSingleStep(r.passoPequeno);
        barra.setPageStep(r.passoGrande);
        barra.setValue(r.valor);
        mostrarEstado(barra, r.visivel, r.habilitado);
    }

    void operator()(QProgressBar& barra, const Barra& r) const {
        // The widget counts whole numbers; the smallest step of a run is a quarter.
        constexpr int quartos = 4;
        barra.setRange(quartos * r.mínimo, quartos * r.máximo);
        barra.setValue(static_cast<int>(quartos * r.valor));
        mostrarEstado(barra, r.visivel, r.habilitado);
    }

    void operator()(WidgetTabela& tabela, const Grade& r) const {
        tabela.mostrar(r);
        if (r.planilha) {
            tabela.aceitarEntradas(aceitaEntradas(r));
            tabela.mostrarCélulaAtual(r.linhaAtual - 1, r.colunaAtual - 1);
        }
        mostrarEstado(tabela, r.visivel, r.habilitado);
    }

    void operator()(WidgetDesenho& desenho, const Desenho& r) const {
        desenho.mostrar(r);
        mostrarEstado(desenho, r.visivel, r.habilitado);
    }
};

Vinculo::Vinculo(TelaBase& tela, QWidget& janela, Janelas& janelas)
    : QObject{&janela}, tela_{tela}, janela_{janela}, janelas_{janelas} {
    const auto elementos = tela.elementos();
    for (const auto& elemento : elementos) {
        if (elemento.índice) continue;
        std::visit(
            [&](const auto* controle) {
                using Widget = typename WidgetDe<std::remove_cvref_t<decltype(*controle)>>::type;
                auto* widget = achar<Widget>(janela_, qtexto(elemento.nome));
                if (!widget)
                    throw std::logic_error{tela.nome() + "." + elemento.nome + ": no widget of its kind"};
                objetos_[elemento.nome] = widget;
                nomes_[widget] = elemento.nome;
                Ligar{*this, elemento.nome}(*widget);
            },
            elemento.controle);
    }

    new MolduraDoFoco{janela_};
    if (LinhaDeEstado::temOQueDizer(janela_)) estado_ = new LinhaDeEstado{janela_};
    janela_.installEventFilter(this);
    janela_.setMouseTracking(true);
    for (auto* widget : janela_.findChildren<QWidget*>()) {
        widget->installEventFilter(this);
        if (qobject_cast<QGroupBox*>(widget)) widget->setMouseTracking(true);
    }
    // Last, so that they see the keys first.
    for (const auto& elemento : elementos)
        if (const auto* const* grade = std::get_if<Grade*>(&elemento.controle))
            ligarEntrada(elemento.nome, **grade);
}

/// The entry line of a grid works on its table too.
void Vinculo::ligarEntrada(const std::string& nome, const Grade& grade) {
    if (!grade.planilha) return;
    const auto& entrada = grade.planilha().entrada;
    for (const auto& elemento : tela_.elementos())
        if (elemento.endereço() == &entrada)
            new LinhaDeEntrada{*static_cast<QLineEdit*>(objetos_.at(elemento.nome)),
                               *static_cast<WidgetTabela*>(objetos_.at(nome))};
}

template <class Ato>
void Vinculo::agir(const std::string& nome, Ato ato) {
    janelas_.agir([&] {
        if (auto elemento = tela_.achar(nome, std::nullopt)) ato(Alvo{&tela_, *std::move(elemento)});
    });
}

void Vinculo::atualizar() {
    if (!tela_.carregada()) {
        // The records are gone, and the tables read theirs whenever Qt asks them anything.
        esquecerVersões();
        return;
    }
    if (tela_.visivel && !estavaVisível_) esquecerVersões();
    estavaVisível_ = tela_.visivel;

    const auto título = qtexto(tela_.caption());
    if (janela_.windowTitle() != título) janela_.setWindowTitle(título);
    if (janela_.isEnabled() != tela_.habilitada) janela_.setEnabled(tela_.habilitada);

    comFoco_ = nullptr;
    std::unordered_map<std::string, QStringList> matrizes;
    for (const auto& elemento : tela_.elementos()) {
        if (elemento.índice) {
            if (const auto* const* rótulo = std::get_if<Rotulo*>(&elemento.controle))
                matrizes[elemento.nome] << ((*rótulo)->visivel ? qtexto((*rótulo)->texto) : QString{});
            continue;
        }
        auto* objeto = objetos_.at(elemento.nome);
        std::visit(
            [&](const auto* controle) {
                using Widget = typename WidgetDe<std::remove_cvref_t<decltype(*controle)>>::type;
                Mostrar{}(*static_cast<Widget*>(objeto), *controle);
            },
            elemento.controle);
        if (elemento.endereço() == controleComFoco) comFoco_ = qobject_cast<QWidget*>(objeto);
    }
    distribuirMatrizes(matrizes);
    if (estado_) estado_->atualizar();

    switch (tela_.ponteiro) {
    case Ponteiro::padrão:
        janela_.unsetCursor();
        break;
    case Ponteiro::cruz:
        janela_.setCursor(Qt::CrossCursor);
        break;
    case Ponteiro::ampulheta:
        janela_.setCursor(Qt::WaitCursor);
        break;
    }
}

/// A screen that was loaded anew behind its hidden window has other records, which the tables must read.
void Vinculo::esquecerVersões() {
    for (auto* desenho : janela_.findChildren<WidgetDesenho*>()) desenho->esquecerVersão();
    for (auto* tabela : janela_.findChildren<WidgetTabela*>()) tabela->esquecer();
}

/// Control arrays have no widgets of their own: drawings show them as tick captions, tables as columns.
void Vinculo::distribuirMatrizes(const std::unordered_map<std::string, QStringList>& matrizes) {
    const auto textos = [&](const QString& nome) {
        const auto matriz = matrizes.find(nome.toStdString());
        return matriz == matrizes.end() ? QStringList{} : matriz->second;
    };
    for (auto* desenho : janela_.findChildren<WidgetDesenho*>())
        desenho->escreverEscalas(textos(desenho->property("rotulosX").toString()),
                                 textos(desenho->property("rotulosY").toString()));
    for (auto* tabela : janela_.findChildren<WidgetTabela*>()) {
        const auto nomes = tabela->property("matrizes").toStringList();
        if (nomes.isEmpty()) continue;
        QList<QStringList> colunas;
        for (const auto& nome : nomes) colunas << textos(nome);
        tabela->mostrar(colunas);
    }
}

void Vinculo::levarFoco() {
    if (!comFoco_ || comFoco_ == janela_.focusWidget()) return;
    comFoco_->setFocus();
    selecionarEntrada();
}

/// The whole text of the box that has the focus, where its record wants it so.
void Vinculo::selecionarEntrada() {
    const auto elemento = controleDe(comFoco_);
    const auto* const* caixa = elemento ? std::get_if<CaixaTexto*>(&elemento->controle) : nullptr;
    if (caixa && (*caixa)->tudoSelecionado) qobject_cast<QLineEdit*>(comFoco_)->selectAll();
}

void Vinculo::darFocoInicial() {
    if (janela_.focusWidget()) return;
    for (auto* widget = janela_.nextInFocusChain(); widget != &janela_; widget = widget->nextInFocusChain()) {
        const bool mostra = qobject_cast<WidgetDesenho*>(widget) || qobject_cast<WidgetTabela*>(widget);
        if (mostra || !(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisibleTo(&janela_) ||
            !widget->isEnabled())
            continue;
        widget->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void Vinculo::descartar() {
    descartado_ = true;
    janela_.hide();
    janela_.deleteLater();
}

std::optional<Elemento> Vinculo::controleDe(const QObject* objeto) const {
    const auto nome = nomes_.find(objeto);
    return nome == nomes_.end() ? std::nullopt : tela_.achar(nome->second, std::nullopt);
}

void Vinculo::receberFoco(const QObject* objeto) {
    const auto elemento = controleDe(objeto);
    controleComFoco = elemento ? elemento->endereço() : nullptr;
    // Leaving a list takes over what was typed into it.
    if (atos::háTextoPorConfirmar()) janelas_.agir(atos::confirmar);
    const auto* const* grade = elemento ? std::get_if<Grade*>(&elemento->controle) : nullptr;
    if (!grade || !aceitaEntradas(**grade)) return;
    janelas_.agir([&] { varenta::receberFoco((*grade)->planilha()); });
}

bool Vinculo::usarTecla(const QObject* objeto, const QKeyEvent& tecla) {
    const auto elemento = controleDe(objeto);
    const auto* const* caixa = elemento ? std::get_if<CaixaTexto*>(&elemento->controle) : nullptr;
    if (!caixa || !(*caixa)->aoTeclar || tecla.text().isEmpty() || tecla.key() == Qt::Key_Tab) return false;
    const bool enter = tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
    bool usada = false;
    janelas_.agir([&] {
        usada = atos::teclar({&tela_, *elemento},
                             enter ? teclaEnter : static_cast<int>(tecla.text()[0].unicode()));
    });
    return usada;
}

/// Keys that no control took: Enter presses the button that has the focus, else the default one, and Esc does
/// what the close box does where the layout says that nothing typed goes with it.
bool Vinculo::usarTeclaDaJanela(const QKeyEvent& tecla) {
    if (tecla.key() == Qt::Key_Escape && janela_.property("fechaComEsc").toBool()) {
        janela_.close();
        return true;
    }
    if (tecla.key() != Qt::Key_Return && tecla.key() != Qt::Key_Enter) return false;
    if (auto* comFoco = qobject_cast<QPushButton*>(janela_.focusWidget()))
        comFoco->click();
    else
        apertarBotãoPadrão();
    return true;
}

void Vinculo::apertarBotãoPadrão() {
    const auto botões = janela_.findChildren<QPushButton*>();
    const auto padrão = std::ranges::find_if(botões, [](const QPushButton* botão) {
        return botão->isDefault() && botão->isVisible() && botão->isEnabled();
    });
    if (padrão == botões.end()) return;
    const auto* focoAntes = controleComFoco;
    auto* widgetAntes = janela_.focusWidget();
    const void* controle = controleDe(*padrão)->endereço();
    (*padrão)->click();
    // The person goes on where the key was pressed, unless the click led elsewhere.
    if (controleComFoco != controle) return;
    controleComFoco = focoAntes;
    if (widgetAntes) widgetAntes->setFocus();
}

bool Vinculo::eventFilter(QObject* objeto, QEvent* evento) {
    // What was on its way to a window that is gone is nobody's. Who owned it may be gone by then, too.
    if (descartado_) return false;
    switch (evento->type()) {
    case QEvent::Close:
        if (objeto != &janela_) break;
        evento->ignore();
        janelas_.agir([this] { atos::fechar(tela_); });
        return true;
    case QEvent::MouseMove:
        if (!qobject_cast<WidgetDesenho*>(objeto) &&
            static_cast<QMouseEvent*>(evento)->buttons() == Qt::NoButton)
            janelas_.agir([this] { atos::moverMouse(tela_); });
        break;
    case QEvent::Wheel:
        if (nomes_.contains(objeto) && mudariaComARoda(*static_cast<QWidget*>(objeto))) {
            evento->ignore();
            return true;
        }
        break;
    case QEvent::FocusIn:
        if (!janelas_.atualizando() && veioDaPessoa(static_cast<QFocusEvent*>(evento)->reason()))
            receberFoco(objeto);
        break;
    case QEvent::KeyPress:
        if (usarTecla(objeto, *static_cast<QKeyEvent*>(evento))) return true;
        if (objeto == &janela_ && usarTeclaDaJanela(*static_cast<QKeyEvent*>(evento))) return true;
        break;
    default:
        break;
    }
    return QObject::eventFilter(objeto, evento);
}
