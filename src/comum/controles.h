#pragma once

#include "comum/desenho.h"
#include "comum/limites.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The records of the controls that screens are made of. A screen's record lists its controls with their
/// defaults and handlers; the operations on them stand in operacoes.h, what a person may do in atos.h.
namespace varenta {

/// A handler of a control's event. It reads and writes the screens that it needs.
using Acao = void (*)();

struct Planilha;

struct Rotulo {
    std::string texto = {};
    bool visivel = true;
    bool habilitado = true;
};

/// A frame around controls that belong together, with its caption.
struct Quadro {
    std::string texto = {};
    bool visivel = true;
    bool habilitado = true;
};

struct Botao {
    std::string texto = {};
    /// Without a handler the button can't be used, whatever `habilitado` says.
    Acao aoClicar = nullptr;
    bool visivel = true;
    bool habilitado = true;
};

struct ItemMenu {
    std::string texto = {};
    /// 0 for the bar itself. The items below an item, one level deeper, follow it.
    int nível = 0;
    bool abreSubmenu = false;
    /// Null for an item that only opens a submenu, and for one that can't be used.
    Acao aoClicar = nullptr;
    bool visivel = true;
    bool habilitado = true;
};

struct CaixaTexto {
    std::string texto = {};
    Acao aoMudar = nullptr;
    /// A key that may act by itself, Enter as 13. Returns whether the key was used up.
    bool (*aoTeclar)(int tecla) = nullptr;
    /// Whether the whole text is to be selected when the box takes the focus.
    bool tudoSelecionado = false;
    bool visivel = true;
    bool habilitado = true;
};

struct Lista {
    std::vector<std::string> itens = {};
    std::string texto = {};
    /// Whether a text can be typed, besides picking an item.
    bool admiteDigitação = false;
    /// An item was picked.
    Acao aoClicar = nullptr;
    /// The text was changed by typing, or by a text set that stands in no item.
    Acao aoMudar = nullptr;
    /// A typed text was taken over, with Enter or by leaving the list.
    Acao aoConfirmar = nullptr;
    bool visivel = true;
    bool habilitado = true;
};

struct Opcao {
    std::string texto = {};
    /// Options of one screen with the same group name exclude each other.
    std::string grupo = {};
    bool marcada = false;
    Acao aoClicar = nullptr;
    bool visivel = true;
    bool habilitado = true;
};

struct Verificacao {
    std::string texto = {};
    bool marcada = false;
    Acao aoClicar = nullptr;
    bool visivel = true;
    bool habilitado = true;
};

struct Rolagem {
    int valor = 0;
    int mínimo = 0;
    int máximo = 0;
    int passoPequeno = 1;
    int passoGrande = 1;
    Acao aoMudar = nullptr;
    Acao aoRolar = nullptr;
    bool visivel = true;
    bool habilitado = true;
};

/// How far a long run has come.
struct Barra {
    double valor = 0;
    int mínimo = 0;
    int máximo = 100;
    bool visivel = true;
    bool habilitado = true;
};

enum class Alinhamento { esquerda, centro, direita };

/// A table of texts with a fixed header row and a fixed first column. Cells are counted from 0, headers
/// included.
struct Grade {
    int linhas = 2;
    int colunas = 2;
    std::vector<std::string> células = std::vector<std::string>(4);
    std::vector<Alinhamento> alinhamentos = std::vector<Alinhamento>(2, Alinhamento::esquerda);
    int linhaAtual = 1;
    int colunaAtual = 1;
    /// The entry line of a grid that takes entries; null for a table that only shows.
    Planilha (*planilha)() = nullptr;
    bool visivel = true;
    bool habilitado = true;
    /// New with every change of a cell or of the size.
    std::uint64_t versão = novaVersão();

    /// Raises "Índice fora dos limites" outside the grid.
    const std::string& célula(int linha, int coluna) const;
    void escrever(int linha, int coluna, std::string texto);
    /// Keeps the cells that fit, empties the new ones; the current cell stays within the grid. Raises "Valor
    /// de propriedade inválido" below one row or column, "Memória insuficiente" above `maisCélulas`.
    void dimensionar(int linhas, int colunas);
    /// Header texts and alignments of all columns, as in "^ No |^ Distância (m) ": '|' separates columns,
    /// '^' centres one, '>' sets it to the right, the blanks around a text only widen it.
    void formato(std::string_view formato);

  private:
    std::size_t posição(int linha, int coluna) const;
};

using RefControle = std::variant<Rotulo*, Quadro*, Botao*, ItemMenu*, CaixaTexto*, Lista*, Opcao*,
                                 Verificacao*, Rolagem*, Barra*, Grade*, Desenho*>;

/// A control of a screen with its name, and its index where it stands in a control array.
struct Elemento {
    std::string nome;
    std::optional<int> índice;
    RefControle controle;

    /// "Label3(0)" or "Label2".
    std::string nomeCompleto() const;
    const void* endereço() const;
};

bool estáVisível(const Elemento& elemento);
/// Enabled, and in the case of buttons and menu items able to do something, if only to open a submenu.
bool estáHabilitado(const Elemento& elemento);

} // namespace varenta
