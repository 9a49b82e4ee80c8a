#pragma once

#include "comum/atos.h"
#include "comum/plataforma.h"
#include "roteiro/erros.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varenta {

/// Runs roteiros: does to the screens what their lines say, through `atos` alone, and prints what the screens
/// show. Boxes and file dialogs take their answers from the queues that the roteiro fills; so the definitions
/// of `plataforma` in the program that runs one pass each call on to the active interpreter.
class Interprete {
  public:
    /// How a run ended, as the exit status of the program.
    enum Desfecho {
        concluído = 0,
        /// The roteiro couldn't be read, or the output not written.
        falha = 1,
        /// A command can't be read or is refused, or a box had no answer queued.
        erroNoRoteiro = 2,
    };

    /// Output of the roteiro on `saída`, flushed after each command; mistakes and warnings on `erros`.
    Interprete(std::ostream& saída, std::ostream& erros) : saída_{saída}, erros_{erros} {}
    Interprete(const Interprete&) = delete;
    Interprete& operator=(const Interprete&) = delete;

    /// Runs a file. Its paths stand relative to its folder.
    Desfecho executarArquivo(const std::string& arquivo);
    /// Runs what the stream holds, in any of the encodings of a text file, as the file "-". Its paths stand
    /// relative to the current folder.
    Desfecho executarFluxo(std::istream& entrada);
    /// Runs a text in UTF-8 against a system that is started anew; `arquivo` is its name in messages,
    /// `pasta` what its paths stand relative to. This interpreter is the active one meanwhile.
    Desfecho executarTexto(std::string_view texto, std::string arquivo, std::filesystem::path pasta);

    /// The interpreter that runs a roteiro; null where none does.
    static Interprete* ativo() { return ativo_; }

    /// Whether the steps of long runs are printed.
    bool mostrarProgresso = false;
    /// Called after each command that was carried out. It may end the run with an `ErroDeRoteiro` or a
    /// `FalhaDeSaída`.
    std::function<void()> depoisDeCadaComando;
    /// Called at each `mostrar Tela`, with that screen. It may end the run likewise.
    std::function<void(TelaBase&)> aoMostrarTela;

    // What `plataforma` asks for while a roteiro runs.
    void mensagem(std::string_view texto);
    /// Raises `ErroDeRoteiro` where no answer is queued, as do the file dialogs.
    bool perguntar(std::string_view texto);
    void avisar(std::string_view texto);
    void erroDeExecucao(std::string_view texto);
    void ajuda(std::optional<int> tópico);
    void progresso(double valor, std::string_view texto);
    std::optional<std::string> arquivoParaAbrir();
    std::optional<std::string> arquivoParaSalvar(const plataforma::DialogoArquivo& diálogo);
    /// The main window was closed: every command from here on is refused.
    void encerrar() { encerrado_ = true; }

  private:
    using Palavras = std::vector<std::string>;
    struct Comando;
    static const Comando& comandoDeNome(const std::string& nome);

    /// An answer that waits for its box, with the command that queued it.
    template <class Valor>
    struct Resposta {
        int linha;
        std::string comando;
        Valor valor;
    };
    template <class Valor>
    Valor tirarResposta(std::deque<Resposta<Valor>>& fila, const std::string& pedido);

    void executarLinhas(std::string_view texto);
    void executarComando(const Palavras& palavras);

    void clicar(const Palavras& palavras);
    void escolher(const Palavras& palavras);
    void digitar(const Palavras& palavras);
    void rolar(const Palavras& palavras);
    void arrastar(const Palavras& palavras);
    void celula(const Palavras& palavras);
    void mover(const Palavras& palavras);
    void fechar(const Palavras& palavras);
    void responder(const Palavras& palavras);
    void arquivo(const Palavras& palavras);
    void mostrar(const Palavras& palavras);
    void estado(const Palavras& palavras);
    void foco(const Palavras& palavras);
    void telas(const Palavras& palavras);

    /// Prints lines that bear their ends.
    void imprimir(std::string_view linhas);
    void esvaziarSaída();
    void acusar(std::string_view motivo);
    void avisarDeRespostasNãoUsadas();
    /// The path that a dialog gives back for an answer.
    std::string caminhoCompleto(const std::string& caminho) const {
        return caminho.empty() ? caminho : (pasta_ / caminho).string();
    }

    std::ostream& saída_;
    std::ostream& erros_;

    std::string arquivo_;
    std::filesystem::path pasta_;
    /// The line at hand, counted from 1.
    int linha_ = 0;
    bool encerrado_ = false;
    std::deque<Resposta<bool>> respostas_;
    /// Nothing for a dialog that is cancelled.
    std::deque<Resposta<std::optional<std::string>>> arquivos_;

    static inline Interprete* ativo_ = nullptr;
};

} // namespace varenta
