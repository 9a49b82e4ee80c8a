#include "apoio/plataforma_teste.h"

#include "comum/erro_execucao.h"
#include "comum/plataforma.h"
#include "shell/sistema.h"

#include <gtest/gtest.h>

namespace varenta::teste {

std::vector<std::string> caderno;
std::string detalheDaMensagem;
std::vector<bool> ampulhetas;
std::string falhaDaAjuda;
std::vector<PassoDeProgresso> progressos;
int respiros = 0;
std::deque<bool> respostas;
std::deque<std::optional<std::string>> arquivos;

void recomeçar() {
    iniciarSistema();
    caderno.clear();
    detalheDaMensagem.clear();
    ampulhetas.clear();
    falhaDaAjuda.clear();
    progressos.clear();
    respiros = 0;
    respostas.clear();
    arquivos.clear();
}

namespace {

void anotar(const char* tipo, std::string_view texto) {
    caderno.push_back(std::string{tipo} + ": " + std::string{texto});
}

template <class Fila>
typename Fila::value_type próxima(Fila& fila, std::string_view pergunta) {
    if (fila.empty()) {
        ADD_FAILURE() << "no answer for: " << pergunta;
        return {};
    }
    auto resposta = fila.front();
    fila.pop_front();
    return resposta;
}

} // namespace
} // namespace varenta::teste

namespace varenta::plataforma {

using namespace teste;

void mensagem(std::string_view texto, std::string_view detalhe) {
    anotar("mensagem", texto);
    detalheDaMensagem = detalhe;
}

bool perguntar(std::string_view texto) {
    anotar("pergunta", texto);
    return próxima(respostas, texto);
}

void avisar(std::string_view texto) { anotar("aviso", texto); }
void mostrarAmpulheta(bool mostrar) { ampulhetas.push_back(mostrar); }
void erroDeExecucao(std::string_view texto) { anotar("erro", texto); }

std::optional<std::string> arquivoParaAbrir(const DialogoArquivo& diálogo) {
    anotar("abrir", diálogo.filtro);
    return próxima(arquivos, diálogo.filtro);
}

std::optional<std::string> arquivoParaSalvar(const DialogoArquivo& diálogo) {
    anotar("salvar", diálogo.filtro + " " + diálogo.extensãoPadrão);
    return próxima(arquivos, diálogo.filtro);
}

void ajuda(std::optional<int> tópico) {
    if (!falhaDaAjuda.empty()) throw ErroExecucao{falhaDaAjuda};
    anotar("ajuda", tópico ? std::to_string(*tópico) : "índice");
}

void progresso(double valor, std::string_view texto) { progressos.push_back({valor, std::string{texto}}); }

void respirar() { ++respiros; }

void encerrar() { caderno.push_back("encerrar"); }

} // namespace varenta::plataforma
