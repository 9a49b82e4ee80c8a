#include "janelas/janela_ajuda.h"

#include "comum/erro_execucao.h"
#include "janelas/janelas.h"
#include "janelas/paletas.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QShortcutEvent>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QTreeWidget>

#include <algorithm>
#include <functional>

namespace {

constexpr int arquivoDoItem = Qt::UserRole;
// A page's lines are neither too long to be read nor broken at every few words.
constexpr int larguraDaPágina = 720;
constexpr int barraEBordas = 36;

// Points. Small print is two sizes below the page's own letter, and must have one left.
constexpr int menorLetra = 5;
constexpr int maiorLetra = 40;

QString lerRecurso(const QString& nome) {
    QFile arquivo{QString::fromLatin1(pastaDaAjuda) + nome};
    if (!arquivo.open(QIODevice::ReadOnly))
        throw varenta::ErroExecucao{"A ajuda não pôde ser aberta: falta " + nome.toStdString() + "!"};
    return QString::fromUtf8(arquivo.readAll());
}

QString textoDaPágina(const QString& arquivo) {
    QTextDocument documento;
    documento.setHtml(lerRecurso(arquivo));
    return semAcentos(documento.toPlainText());
}

PaginaDaAjuda lerPágina(const QJsonObject& objeto, const QString& capítulo) {
    PaginaDaAjuda página;
    página.arquivo = objeto[QStringLiteral("arquivo")].toString();
    página.título = objeto[QStringLiteral("titulo")].toString();
    página.capítulo = capítulo;
    for (const auto valor : objeto[QStringLiteral("topicos")].toArray()) página.tópicos << valor.toInt();
    for (const auto valor : objeto[QStringLiteral("chaves")].toArray()) página.chaves << valor.toString();
    página.texto = textoDaPágina(página.arquivo);
    return página;
}

/// A list whose items open their page when they are picked.
template <class Abrir>
QListWidget* criarLista(QWidget* pai, const char* nome, Abrir abrir) {
    auto* lista = new QListWidget{pai};
    lista->setObjectName(QString::fromLatin1(nome));
    QObject::connect(lista, &QListWidget::itemActivated, pai, abrir);
    QObject::connect(lista, &QListWidget::itemClicked, pai, abrir);
    return lista;
}

QListWidgetItem* acrescentar(QListWidget& lista, const QString& texto, const QString& arquivo) {
    auto* item = new QListWidgetItem{texto, &lista};
    item->setData(arquivoDoItem, arquivo);
    return item;
}

/// A box above the list that it narrows down: the keyboard comes to the box, and Enter there opens the first
/// item that is left.
QWidget* empilhar(QLineEdit* acima, QListWidget* abaixo) {
    auto* painel = new QWidget;
    painel->setFocusProxy(acima);
    QObject::connect(acima, &QLineEdit::returnPressed, abaixo, [abaixo] {
        for (int k = 0; k < abaixo->count(); ++k) {
            auto* item = abaixo->item(k);
            if (item->isHidden() || !(item->flags() & Qt::ItemIsEnabled)) continue;
            abaixo->setCurrentItem(item);
            emit abaixo->itemActivated(item);
            return;
        }
    });
    auto* pilha = new QVBoxLayout{painel};
    pilha->addWidget(acima);
    pilha->addWidget(abaixo);
    return painel;
}

} // namespace

std::vector<PaginaDaAjuda> lerPáginasDaAjuda() {
    const auto raiz = QJsonDocument::fromJson(lerRecurso(QStringLiteral("indice.json")).toUtf8()).object();
    std::vector<PaginaDaAjuda> páginas;
    for (const auto capítulo : raiz[QStringLiteral("capitulos")].toArray()) {
        const auto objeto = capítulo.toObject();
        for (const auto página : objeto[QStringLiteral("paginas")].toArray())
            páginas.push_back(lerPágina(página.toObject(), objeto[QStringLiteral("titulo")].toString()));
    }
    if (páginas.empty()) throw varenta::ErroExecucao{"A ajuda não pôde ser aberta: o índice está vazio!"};
    return páginas;
}

QString semAcentos(const QString& texto) {
    QString simples;
    for (const QChar c : texto.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing) simples += c.toLower();
    return simples;
}

std::vector<const PaginaDaAjuda*> buscarNaAjuda(const std::vector<PaginaDaAjuda>& páginas,
                                                const QString& busca) {
    struct Achado {
        const PaginaDaAjuda* página;
        qsizetype vezes;
    };
    const auto palavras = semAcentos(busca).split(QLatin1Char{' '}, Qt::SkipEmptyParts);
    std::vector<Achado> achados;
    for (const auto& página : páginas) {
        qsizetype vezes = 0;
        const bool todas = std::ranges::all_of(palavras, [&](const QString& palavra) {
            const auto nesta = página.texto.count(palavra);
            vezes += nesta;
            return nesta > 0;
        });
        if (todas && vezes > 0) achados.push_back({&página, vezes});
    }
    std::ranges::stable_sort(achados, std::greater{}, &Achado::vezes);
    std::vector<const PaginaDaAjuda*> ordenadas(achados.size());
    std::ranges::transform(achados, ordenadas.begin(), &Achado::página);
    return ordenadas;
}

JanelaDaAjuda::JanelaDaAjuda()
    : páginas_{lerPáginasDaAjuda()}, página_{new QTextBrowser}, abas_{new QTabWidget} {
    setWindowTitle(QStringLiteral("Ajuda do Varenta"));
    página_->setObjectName(QStringLiteral("pagina"));
    página_->setAccessibleName(QStringLiteral("Página da ajuda"));
    // Its figures are made for light paper. Links take their colour from the program's palette, not from the
    // page's.
    const auto claras = paletaClara();
    página_->setPalette(claras);
    página_->setSearchPaths({QString::fromLatin1(pastaDaAjuda)});
    página_->document()->setDefaultStyleSheet(
        lerRecurso(QStringLiteral("estilo.css")) +
        QStringLiteral("a { color: %1; }").arg(claras.color(QPalette::Link).name()));
    connect(página_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& url) { marcarNoConteúdo(url.fileName()); });

    abas_->setObjectName(QStringLiteral("abas"));
    abas_->addTab(criarConteúdo(), QStringLiteral("&Conteúdo"));
    abas_->addTab(criarÍndice(), QStringLiteral("Í&ndice"));
    const int busca = abas_->addTab(criarBusca(), QStringLiteral("&Busca"));
    abas_->tabBar()->installEventFilter(this);
    connect(abas_, &QTabWidget::tabBarClicked, this, &JanelaDaAjuda::abrirAba);
    connect(new QShortcut{QKeySequence::Find, this}, &QShortcut::activated, this,
            [this, busca] { abrirAba(busca); });
    auto* divisão = new QSplitter;
    divisão->addWidget(abas_);
    divisão->addWidget(página_);
    divisão->setStretchFactor(1, 1);
    const QAbstractItemView& árvore = *conteúdo_;
    const int doConteúdo = árvore.sizeHintForColumn(0) + barraEBordas;
    divisão->setSizes({doConteúdo, larguraDaPágina});

    auto* pilha = new QVBoxLayout{this};
    pilha->addWidget(criarBarra());
    pilha->addWidget(divisão, 1);
    resize(doConteúdo + larguraDaPágina, 680);
    connect(new QShortcut{QKeySequence{Qt::Key_Escape}, this}, &QShortcut::activated, this, &QWidget::hide);
}

void JanelaDaAjuda::mostrarTópico(std::optional<int> tópico) {
    const auto página = std::ranges::find_if(
        páginas_, [&](const PaginaDaAjuda& p) { return !tópico || p.tópicos.contains(*tópico); });
    if (página == páginas_.end())
        throw varenta::ErroExecucao{"A ajuda não tem o tópico " + std::to_string(*tópico) + "!"};
    abrir(página->arquivo);
    // Where it was left it opens again.
    if (!testAttribute(Qt::WA_Moved)) {
        const auto* ativa = QApplication::activeWindow();
        move(lugarNaTela(size(), ativa ? ativa->frameGeometry().center()
                                       : QGuiApplication::primaryScreen()->availableGeometry().center())
                 .topLeft());
    }
    show();
    raise();
    activateWindow();
}

QString JanelaDaAjuda::páginaAtual() const { return página_->source().fileName(); }

QWidget* JanelaDaAjuda::criarConteúdo() {
    conteúdo_ = new QTreeWidget{this};
    conteúdo_->setObjectName(QStringLiteral("conteudo"));
    conteúdo_->setHeaderHidden(true);
    conteúdo_->setAccessibleName(QStringLiteral("Conteúdo da ajuda"));
    QTreeWidgetItem* capítulo = nullptr;
    for (const auto& página : páginas_) {
        if (!capítulo || capítulo->text(0) != página.capítulo) {
            capítulo = new QTreeWidgetItem{conteúdo_, {página.capítulo}};
            capítulo->setExpanded(true);
        }
        auto* item = new QTreeWidgetItem{capítulo, {página.título}};
        item->setData(0, arquivoDoItem, página.arquivo);
    }
    connect(conteúdo_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const auto arquivo = item ? item->data(0, arquivoDoItem).toString() : QString{};
        if (!arquivo.isEmpty() && arquivo != páginaAtual()) abrir(arquivo);
    });
    return conteúdo_;
}

QWidget* JanelaDaAjuda::criarÍndice() {
    índice_ = criarLista(this, "indice",
                         [this](QListWidgetItem* item) { abrir(item->data(arquivoDoItem).toString()); });
    for (const auto& página : páginas_)
        for (const auto& chave : página.chaves)
            acrescentar(*índice_, chave, página.arquivo)->setToolTip(página.título);
    índice_->sortItems();
    auto* filtro = new QLineEdit{this};
    filtro->setObjectName(QStringLiteral("filtroDoIndice"));
    filtro->setPlaceholderText(QStringLiteral("Palavra do índice"));
    filtro->setClearButtonEnabled(true);
    filtro->setAccessibleName(filtro->placeholderText());
    índice_->setAccessibleName(QStringLiteral("Índice da ajuda"));
    connect(filtro, &QLineEdit::textChanged, this, &JanelaDaAjuda::filtrarÍndice);
    return empilhar(filtro, índice_);
}

QWidget* JanelaDaAjuda::criarBusca() {
    achados_ = criarLista(this, "achados",
                          [this](QListWidgetItem* item) { abrir(item->data(arquivoDoItem).toString()); });
    auto* caixa = new QLineEdit{this};
    caixa->setObjectName(QStringLiteral("busca"));
    caixa->setPlaceholderText(QStringLiteral("Palavras em qualquer página"));
    caixa->setClearButtonEnabled(true);
    caixa->setAccessibleName(caixa->placeholderText());
    achados_->setAccessibleName(QStringLiteral("Páginas achadas"));
    connect(caixa, &QLineEdit::textChanged, this, &JanelaDaAjuda::buscar);
    return empilhar(caixa, achados_);
}

QWidget* JanelaDaAjuda::criarBarra() {
    auto* barra = new QToolBar{this};
    const auto acrescentarAção = [&](const QString& nome, const QKeySequence& tecla, auto slot, auto sinal) {
        auto* ação = barra->addAction(nome, tecla, página_, slot);
        ação->setEnabled(false);
        connect(página_, sinal, ação, &QAction::setEnabled);
    };
    acrescentarAção(QStringLiteral("Voltar"), QKeySequence::Back, &QTextBrowser::backward,
                    &QTextBrowser::backwardAvailable);
    acrescentarAção(QStringLiteral("Avançar"), QKeySequence::Forward, &QTextBrowser::forward,
                    &QTextBrowser::forwardAvailable);
    barra->addAction(QStringLiteral("Início"), this, [this] { abrir(páginas_.front().arquivo); });
    barra->addAction(QStringLiteral("Letra maior"), QKeySequence::ZoomIn, this, [this] { mudarLetra(1); });
    barra->addAction(QStringLiteral("Letra menor"), QKeySequence::ZoomOut, this, [this] { mudarLetra(-1); });
    return barra;
}

/// By so many points, as far as anything can still be read.
void JanelaDaAjuda::mudarLetra(int pontos) {
    const int tamanho = página_->font().pointSize() + pontos;
    if (tamanho >= menorLetra && tamanho <= maiorLetra) página_->zoomIn(pontos);
}

void JanelaDaAjuda::abrirAba(int aba) {
    if (aba < 0) return;
    abas_->setCurrentIndex(aba);
    abas_->currentWidget()->setFocus(Qt::ShortcutFocusReason);
}

/// The tabs' own answer to their mnemonics leaves the keyboard where it was.
bool JanelaDaAjuda::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::Shortcut) return QWidget::eventFilter(objeto, evento);
    const auto& tecla = static_cast<QShortcutEvent*>(evento)->key();
    for (int aba = 0; aba < abas_->count(); ++aba)
        if (QKeySequence::mnemonic(abas_->tabText(aba)) == tecla) abrirAba(aba);
    return true;
}

void JanelaDaAjuda::abrir(const QString& arquivo) { página_->setSource(QUrl{arquivo}); }

void JanelaDaAjuda::marcarNoConteúdo(const QString& arquivo) {
    for (int c = 0; c < conteúdo_->topLevelItemCount(); ++c) {
        auto* capítulo = conteúdo_->topLevelItem(c);
        for (int p = 0; p < capítulo->childCount(); ++p)
            if (capítulo->child(p)->data(0, arquivoDoItem).toString() == arquivo)
                conteúdo_->setCurrentItem(capítulo->child(p));
    }
}

void JanelaDaAjuda::filtrarÍndice(const QString& texto) {
    const auto procurado = semAcentos(texto);
    for (int k = 0; k < índice_->count(); ++k)
        índice_->item(k)->setHidden(!semAcentos(índice_->item(k)->text()).contains(procurado));
}

void JanelaDaAjuda::buscar(const QString& texto) {
    achados_->clear();
    const auto achadas = buscarNaAjuda(páginas_, texto);
    for (const auto* página : achadas) acrescentar(*achados_, página->título, página->arquivo);
    if (achadas.empty() && !texto.trimmed().isEmpty()) {
        auto* nada = new QListWidgetItem{QStringLiteral("Nada encontrado"), achados_};
        nada->setFlags(Qt::NoItemFlags);
    }
}

void mostrarJanelaDaAjuda(std::optional<int> tópico) {
    static QPointer<JanelaDaAjuda> janela;
    if (!janela) {
        janela = new JanelaDaAjuda;
        // No widget may outlive the application.
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, janela, [] { delete janela; });
    }
    janela->mostrarTópico(tópico);
}
