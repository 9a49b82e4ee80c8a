#include "janelas/texto_da_tabela.h"

#include "comum/plataforma.h"
#include "comum/texto_tabela.h"
#include "janelas/gravar_copia.h"

#include <set>
#include <vector>

namespace {

std::string textoDe(const QVariant& valor) { return valor.toString().toStdString(); }

/// Without the blanks that only widen a column on the screen.
std::string cabeçalhoDe(const QVariant& valor) { return valor.toString().trimmed().toStdString(); }

/// The cells of one row, or of the header.
class Montador {
  public:
    explicit Montador(const ParteDeTabela& parte)
        : parte_{parte}, modelo_{*parte.seleção.front().model()}, inteira_{parte.seleção.size() == 1} {
        for (const auto& faixa : parte.seleção) {
            for (int l = faixa.top(); l <= faixa.bottom(); ++l) linhas_.insert(l);
            for (int c = faixa.left(); c <= faixa.right(); ++c) colunas_.insert(c);
        }
    }

    const std::set<int>& linhas() const { return linhas_; }

    std::vector<std::string> cabeçalho() const {
        std::vector<std::string> células{parte_.canto.toStdString()};
        for (const int c : colunas_) células.push_back(cabeçalhoDe(modelo_.headerData(c, Qt::Horizontal)));
        return células;
    }

    std::vector<std::string> linha(int l) const {
        std::vector<std::string> células;
        if (parte_.cabeçalhos) células.push_back(cabeçalhoDe(modelo_.headerData(l, Qt::Vertical)));
        for (const int c : colunas_) {
            const auto célula = modelo_.index(l, c);
            // A single range needs no search, which would be slow for a large table.
            const bool dentro = inteira_ || parte_.seleção.contains(célula);
            células.push_back(dentro ? textoDe(célula.data()) : std::string{});
        }
        return células;
    }

  private:
    const ParteDeTabela& parte_;
    const QAbstractItemModel& modelo_;
    bool inteira_;
    std::set<int> linhas_, colunas_;
};

} // namespace

std::string textoDaTabela(const ParteDeTabela& parte, const varenta::FormatoDeTabela& formato) {
    std::string texto{formato.início};
    if (parte.seleção.isEmpty()) return texto;
    const Montador montador{parte};
    if (parte.cabeçalhos) varenta::acrescentarLinha(texto, montador.cabeçalho(), formato);
    for (const int l : montador.linhas()) varenta::acrescentarLinha(texto, montador.linha(l), formato);
    return texto;
}

void salvarTabela(const ParteDeTabela& parte) {
    const auto caminho = varenta::plataforma::arquivoParaSalvar(
        {.filtro = "Planilha CSV|*.CSV|Texto com tabulações|*.TXT", .extensãoPadrão = "CSV"});
    if (!caminho || caminho->empty()) return;
    const bool comTabulações =
        QString::fromStdString(*caminho).endsWith(QLatin1String{".txt"}, Qt::CaseInsensitive);
    const auto& formato = comTabulações ? varenta::formatoDeTexto : varenta::formatoCsv;
    gravarCópia(*caminho, textoDaTabela(parte, formato));
}
