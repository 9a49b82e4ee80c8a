#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

/// The notebook and the answers of the tests' platform. A question without an answer fails the test.
namespace varenta::teste {

/// Everything told to the person, in order: "mensagem: ...", "pergunta: ...", "aviso: ...", "erro: ...",
/// "abrir: <filter>", "salvar: <filter> <ending>", "encerrar",
/// "ajuda: <topic>".
extern std::vector<std::string> caderno;
/// What stood beneath the text of the last message.
extern std::string detalheDaMensagem;
/// The hourglass was shown (true) or taken away (false), in order.
extern std::vector<bool> ampulhetas;
/// What the help fails with; empty where it opens.
extern std::string falhaDaAjuda;
/// The steps of long runs, in order.
struct PassoDeProgresso {
    double valor;
    std::string texto;
    bool operator==(const PassoDeProgresso&) const = default;
};
extern std::vector<PassoDeProgresso> progressos;
/// How often a long run has let the windows paint themselves in between.
extern int respiros;
extern std::deque<bool> respostas;
/// Paths for the next file dialogs; nothing is a cancelled dialog.
extern std::deque<std::optional<std::string>> arquivos;

/// A fresh system, an empty notebook, no answers.
void recomeçar();

} // namespace varenta::teste
