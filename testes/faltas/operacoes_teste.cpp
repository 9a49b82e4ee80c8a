#include "faltas/faltas_plantadas.h"

#include "apoio/estado.h"
#include "apoio/passos.h"
#include "apoio/pasta_temporaria.h"
#include "apoio/plataforma_teste.h"
#include "comum/arquivo_texto.h"
#include "comum/atos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

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

/// The next line of a state that doesn't tell of a hidden control: an entry line out of use holds what it
/// last held, and takes its cell's text when it comes back. False at the end.
bool próximaÀVista(std::istream& estado, std::string& linha) {
    while (std::getline(estado, linha))
        if (linha.find(" -e ") == std::string::npos) return true;
    return false;
}

/// The first line that differs between two states, as both have it; empty where they are equal.
std::string diferença(const std::string& obtido, const std::string& esperado) {
    std::istringstream a{obtido}, b{esperado};
    for (std::string x, y;;) {
        const bool fimDeA = !próximaÀVista(a, x), fimDeB = !próximaÀVista(b, y);
        if (fimDeA && fimDeB) return {};
        if (fimDeA != fimDeB || x != y) return "now:      " + x + "\nexpected: " + y;
    }
}

bool foiDito() {
    return std::ranges::any_of(caderno, [](const std::string& linha) {
        return linha.starts_with("erro: ") || linha.starts_with("mensagem: ");
    });
}

/// Whether doing it twice is like doing it once: a value that is set already raises no event the second time,
/// and a check box turns over.
bool repetível(const Passo& passo) {
    if (passo.palavras[0] == "escolher") return true;
    return passo.palavras[0] == "clicar" && passo.palavras[1] != "Form5.chkParada" &&
           passo.palavras[1] != "Form5.Check2";
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
        executar(passo);
    } catch (const AtoRecusado& recusa) {
        // Cut short between two screens: another one stands open, from which the menu must be in reach.
        return voltaAoMenu() ? bem : acusar(passo, std::string{"no way back after "} + recusa.what());
    }
    if (!repetível(passo)) return bem;
    if (const auto onde = diferença(estadoDasTelas(), esperado); !onde.empty())
        return acusar(passo, "another state afterwards:\n" + onde);
    return bem;
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

class FaltasPlantadas : public testing::TestWithParam<const char*> {};

TEST_P(FaltasPlantadas, CadaOperaçãoDizAFaltaEASeguinteFunciona) {
    const PastaTemporaria pasta;
    std::filesystem::copy(EXEMPLOS, pasta.caminho("e"), std::filesystem::copy_options::recursive);
    const auto passos = passosDe(lerTexto(pasta.caminho("e/") + GetParam()), pasta.caminho("e"));
    ASSERT_FALSE(passos.empty());
    recomeçar();
    int tentativas = 0;
    for (const auto& passo : passos) {
        // The state that the act leads to, worked out beside.
        const auto guardado = pasta.caminho("estado.txt");
        ASSERT_EQ(emOutroProcesso([&] {
                      executar(passo);
                      pasta.gravar("estado.txt", estadoDasTelas());
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

INSTANTIATE_TEST_SUITE_P(Roteiros, FaltasPlantadas,
                         testing::Values("primeira_simulacao.roteiro", "arquivo_de_parametros.roteiro",
                                         "espacamento_entre_carreadores.roteiro", "faixa_irrigada.roteiro",
                                         "outro_aspersor.roteiro", "perfil_do_ensaio_de_campo.roteiro",
                                         "sobreposicao_do_ensaio_de_campo.roteiro", "ajuste_malha.roteiro",
                                         "ajuste_autopropelido.roteiro"),
                         [](const auto& caso) {
                             const std::string nome{caso.param};
                             return nome.substr(0, nome.find('.'));
                         });

} // namespace
} // namespace varenta::teste
