#include "faltas/faltas_plantadas.h"

#include "apoio/estado.h"
#include "apoio/passos.h"
#include "apoio/pasta_temporaria.h"
#include "apoio/plataforma_teste.h"
#include "comum/arquivo_texto.h"
#include "comum/atos.h"
#include "shell/sistema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

#ifdef VARENTA_SANITIZAR
extern "C" void __sanitizer_purge_allocator();
#endif

#include <sys/wait.h>
#include <unistd.h>

namespace varenta::teste {
namespace {

/// How a trial in a process of its own ended.
enum Fim {
    bem,
    /// The act has fewer places where it could fail.
    semFalta,
    mal
};

/// Says on the standard error what went wrong; the process that ran the trial has no other way.
Fim acusar(const Passo& passo, const std::string& o_que) {
    std::fprintf(stderr, "%s  -> %s\n", passo.texto().c_str(), o_que.c_str());
    for (const auto& linha : caderno) std::fprintf(stderr, "     %s\n", linha.c_str());
    return mal;
}

std::string faltaDeCoerência() {
    if (const auto onde = primeiroNãoFinito(); !onde.empty()) return "no number in " + onde;
    if (const auto onde = primeiroIncoerente(); !onde.empty()) return "contradiction in " + onde;
    return {};
}

/// The first line that differs between two states, as both have it; empty where they are equal.
std::string diferença(const std::string& obtido, const std::string& esperado) {
    std::istringstream a{obtido}, b{esperado};
    for (std::string x, y;;) {
        const bool fimDeA = !std::getline(a, x), fimDeB = !std::getline(b, y);
        if (fimDeA && fimDeB) return {};
        if (fimDeA != fimDeB || x != y) return "now:      " + x + "\nexpected: " + y;
    }
}

bool foiDito() {
    return std::ranges::any_of(caderno, [](const std::string& linha) {
        return linha.starts_with("erro: ") || linha.starts_with("mensagem: ");
    });
}

/// Whether doing it again is like doing it once: a scroll bar that stands there already raises no event the
/// second time, and a check box turns over.
bool repetível(const Passo& passo) {
    const auto& palavra = passo.palavras[0];
    if (palavra == "escolher" || palavra == "digitar" || palavra == "celula") return true;
    return palavra == "clicar" && passo.palavras[1] != "Form5.chkParada" &&
           passo.palavras[1] != "Form5.Check2";
}

/// Does it again. A text that stands there already raises no event: another one, no number, is typed before.
void repetir(const Passo& passo) {
    if (passo.palavras[0] == "digitar") {
        auto antes = passo;
        antes.palavras[2] = "?";
        executar(antes);
    }
    executar(passo);
}

/// Whether closing what is in sight, window by window, leads to the main window.
bool voltaAoMenu() {
    for (int n = 0; n < 20 && !(telaPrincipal->visivel && telaPrincipal->habilitada); ++n) {
        const auto abertas = TelaBase::todas();
        const auto aberta = std::ranges::find_if(
            abertas, [](TelaBase* tela) { return tela->carregada() && tela->visivel && tela->habilitada; });
        if (aberta == abertas.end()) return false;
        respostas.assign(3, true);
        atos::fechar(**aberta);
    }
    return telaPrincipal->visivel && telaPrincipal->habilitada;
}

/// The act with a fault, then once more without: it must tell the failure, and the second time end as if
/// the first had not been.
Fim tentar(const Passo& passo, Falta falta, long n, const std::string& esperado) {
    caderno.clear();
    plantarFalta(falta, n);
    try {
        executar(passo);
    } catch (const std::bad_alloc&) {
        // Memory ran out while the test itself was looking for the control: nothing was begun.
        colherFalta();
        return bem;
    }
    if (!colherFalta()) return semFalta;
    if (!foiDito()) return acusar(passo, "not told");
    if (const auto o_que = faltaDeCoerência(); !o_que.empty()) return acusar(passo, o_que);
    try {
        repetir(passo);
    } catch (const AtoRecusado& recusa) {
        // Cut short between two screens: another one stands open, from which the menu must be in reach.
        return voltaAoMenu() ? bem : acusar(passo, std::string{"no way back after "} + recusa.what());
    }
    if (!repetível(passo)) return bem;
    if (const auto onde = diferença(estadoÀVista(), esperado); !onde.empty())
        return acusar(passo, "another state afterwards:\n" + onde);
    return bem;
}

/// Gives back what the address sanitizer keeps of memory that other tests freed: each of the thousands of
/// processes to come would begin with a copy of its map.
void soltarMemória() {
#ifdef VARENTA_SANITIZAR
    __sanitizer_purge_allocator();
#endif
}

template <class Ação>
int emOutroProcesso(const Ação& ação) {
    const auto filho = ::fork();
    if (filho == 0) {
        int fim = mal;
        try {
            fim = ação();
        } catch (const std::exception& e) {
            std::fprintf(stderr, "escaped: %s\n", e.what());
        }
        ::_exit(testing::Test::HasFailure() ? mal : fim);
    }
    int estado = 0;
    ::waitpid(filho, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : 100 + WTERMSIG(estado);
}

/// The numbers of the faults that are tried: all of the first, then ever fewer.
long próximo(long n) { return n < 10 ? n + 1 : 2 * n; }

/// The roads: the examples, and those that go where no example does.
std::vector<std::string> estradas() {
    std::vector<std::string> caminhos;
    for (const auto* pasta : {EXEMPLOS, ESTRADAS})
        for (const auto& entrada : std::filesystem::directory_iterator{pasta})
            if (entrada.path().extension() == ".roteiro") caminhos.push_back(entrada.path().string());
    std::ranges::sort(caminhos);
    return caminhos;
}

class FaltasPlantadas : public testing::TestWithParam<std::string> {};

TEST_P(FaltasPlantadas, CadaOperaçãoDizAFaltaEASeguinteFunciona) {
    const PastaTemporaria pasta;
    std::filesystem::copy(EXEMPLOS, pasta.caminho("e"), std::filesystem::copy_options::recursive);
    const auto passos = passosDe(lerTexto(GetParam()), pasta.caminho("e"));
    ASSERT_FALSE(passos.empty());
    recomeçar();
    soltarMemória();
    int tentativas = 0;
    for (const auto& passo : passos) {
        // The state that the act leads to, worked out beside.
        const auto guardado = pasta.caminho("estado.txt");
        ASSERT_EQ(emOutroProcesso([&] {
                      executar(passo);
                      pasta.gravar("estado.txt", estadoÀVista());
                      return bem;
                  }),
                  bem)
            << passo.texto();
        const auto esperado = pasta.bytes("estado.txt");
        for (const auto falta : {Falta::divisão, Falta::índice, Falta::memória})
            for (long n = 1;; n = próximo(n)) {
                const int fim = emOutroProcesso([&] { return tentar(passo, falta, n, esperado); });
                if (fim == semFalta) break;
                ++tentativas;
                ASSERT_EQ(fim, bem) << passo.texto() << "fault " << static_cast<int>(falta) << " number "
                                    << n;
            }
        executar(passo);
    }
    RecordProperty("faltas", tentativas);
    EXPECT_GT(tentativas, 0);
}

INSTANTIATE_TEST_SUITE_P(Roteiros, FaltasPlantadas, testing::ValuesIn(estradas()),
                         [](const auto& caso) { return std::filesystem::path{caso.param}.stem().string(); });

/// The acts of a person that a control has a handler for.
std::vector<std::string> atosQueTrata(const RefControle& controle) {
    std::vector<std::string> palavras;
    const auto juntar = [&](const char* palavra, auto... tratadores) {
        if ((tratadores || ...)) palavras.emplace_back(palavra);
    };
    std::visit(
        [&](const auto* c) {
            // The keys of an entry line are those of its grid's cells.
            if constexpr (requires { c->planilha; })
                juntar("celula", c->planilha);
            else if constexpr (requires { c->aoConfirmar; }) {
                juntar("escolher", c->aoClicar);
                juntar("digitar", c->aoMudar, c->aoConfirmar);
            } else if constexpr (requires { c->aoTeclar; })
                juntar("digitar", c->aoMudar);
            else if constexpr (requires { c->aoRolar; }) {
                juntar("rolar", c->aoMudar);
                juntar("arrastar", c->aoRolar);
            } else if constexpr (requires { c->aoMoverMouse; })
                juntar("mover", c->aoMoverMouse);
            else if constexpr (requires { c->aoClicar; })
                juntar("clicar", c->aoClicar);
        },
        controle);
    return palavras;
}

/// The screen's name; the three screens of one text, which only their numbers tell apart, have one in common.
std::string nomeDoTexto(const TelaBase& tela) {
    static const auto raiz = [](const TelaBase& t) {
        const auto& nome = t.nome();
        return nome.substr(0, nome.find_last_not_of("0123456789") + 1);
    };
    const auto irmãs = std::ranges::count_if(TelaBase::todas(), [&](const TelaBase* outra) {
        return typeid(*outra) == typeid(tela) && raiz(*outra) == raiz(tela);
    });
    return irmãs > 1 ? raiz(tela) : tela.nome();
}

/// An act upon a screen or one of its controls, "mover Form7.Picture2".
std::string ato(const std::string& palavra, const TelaBase& tela, const std::string& controle = {}) {
    return palavra + ' ' + nomeDoTexto(tela) + (controle.empty() ? "" : '.' + controle);
}

std::set<std::string> atosComTratador() {
    std::set<std::string> todos;
    recomeçar();
    for (auto* tela : TelaBase::todas()) {
        tela->carregar();
        if (tela->eventos().aoFechar) todos.insert(ato("fechar", *tela));
        if (tela->eventos().aoMoverMouse) todos.insert(ato("mover", *tela));
        for (const auto& elemento : tela->elementos())
            for (const auto& palavra : atosQueTrata(elemento.controle))
                todos.insert(ato(palavra, *tela, elemento.nome));
    }
    recomeçar();
    return todos;
}

/// What no road can do: the button is never in sight.
const std::string foraDeAlcance = "clicar Perfil.cmdPerfil";

TEST(EstradasDasFaltas, PassamPorTodosOsTratadores) {
    std::set<std::string> feitos{foraDeAlcance};
    for (const auto& estrada : estradas())
        for (const auto& passo : passosDe(lerTexto(estrada), "")) {
            const auto& alvo = passo.palavras[1];
            const auto ponto = std::min(alvo.find('.'), alvo.size());
            const auto controle = alvo.substr(std::min(ponto + 1, alvo.size()));
            feitos.insert(ato(passo.palavras[0], *telaDeNome(alvo.substr(0, ponto)), controle));
        }
    const auto tratados = atosComTratador();
    EXPECT_TRUE(tratados.contains(foraDeAlcance));
    for (const auto& tratado : tratados) EXPECT_TRUE(feitos.contains(tratado)) << tratado;
    RecordProperty("tratados", static_cast<int>(tratados.size()));
}

} // namespace
} // namespace varenta::teste
