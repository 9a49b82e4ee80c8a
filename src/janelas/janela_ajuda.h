#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <optional>
#include <vector>

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;

/// A page of the help.
struct PaginaDaAjuda {
    QString arquivo, título, capítulo;
    QList<int> tópicos;
    QStringList chaves;
    /// Its whole text, as `semAcentos` leaves it.
    QString texto;
};

/// Where the pages stand among the program's resources.
inline constexpr auto pastaDaAjuda = ":/ajuda/";

/// All pages in reading order. Raises a run-time error where the index can't be read.
std::vector<PaginaDaAjuda> lerPáginasDaAjuda();

/// Lower case without accents, so that a search finds words however they are typed.
QString semAcentos(const QString& texto);

/// The pages that hold every word of the search, those that hold them most often first.
std::vector<const PaginaDaAjuda*> buscarNaAjuda(const std::vector<PaginaDaAjuda>& páginas,
                                                const QString& busca);

/// The help: contents, index and search beside the page.
class JanelaDaAjuda : public QWidget {
    Q_OBJECT

  public:
    /// Raises as `lerPáginasDaAjuda`.
    JanelaDaAjuda();

    /// Shows the page of a topic, without one the first page. Raises a run-time error for a topic that no
    /// page has.
    void mostrarTópico(std::optional<int> tópico);

    QString páginaAtual() const;

  private:
    QWidget* criarConteúdo();
    QWidget* criarÍndice();
    QWidget* criarBusca();
    QWidget* criarBarra();
    void mudarLetra(int pontos);
    /// Brings a tab to the front, and the keyboard to its box or its contents.
    void abrirAba(int aba);
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void abrir(const QString& arquivo);
    void marcarNoConteúdo(const QString& arquivo);
    void filtrarÍndice(const QString& texto);
    void buscar(const QString& texto);

    std::vector<PaginaDaAjuda> páginas_;
    QTextBrowser* página_;
    QTabWidget* abas_;
    QTreeWidget* conteúdo_ = nullptr;
    QListWidget* índice_ = nullptr;
    QListWidget* achados_ = nullptr;
};

/// Shows the one help window, made on first use.
void mostrarJanelaDaAjuda(std::optional<int> tópico);
