/// Does what a person could do, at random, and looks at the whole system after each act.
///
///     macaco [ACTS [SEED]]
///
/// Prints how many acts of each kind were done. Where something is wrong it prints the roteiro that leads
/// there and exits with 1.

#include "apoio/estado.h"
#include "apoio/passos.h"
#include "apoio/pasta_temporaria.h"
#include "apoio/plataforma_teste.h"
#include "comum/atos.h"
#include "comum/tela.h"
#include "shell/sistema.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>

#include <unistd.h>

namespace varenta::teste {
namespace {

class Macaco {
  public:
    explicit Macaco(unsigned semente) : sorteio_{semente} {
        std::filesystem::copy(EXEMPLOS, pasta_.caminho("e"), std::filesystem::copy_options::recursive);
        for (const auto& entrada : std::filesystem::directory_iterator{pasta_.caminho("e")})
            if (entrada.path().extension() == ".txt") amostras_.push_back(entrada.path().string());
        std::ranges::sort(amostras_);
        recomeçarTudo();
    }

    /// One act. Returns what is wrong afterwards; empty where nothing is.
    std::string agir() {
        const auto passo = sortearPasso();
        história_.push_back(passo.texto());
        caderno.clear();
        try {
            executar(passo);
            ++feitos_[passo.palavras[0]];
        } catch (const AtoRecusado&) {
            ++feitos_["refused"];
        } catch (const std::exception& e) {
            return std::string{"escaped: "} + e.what();
        }
        const auto errado = exame();
        // Now and then from the start, so that no history grows too long to be read.
        if (encerrado() || história_.size() > 3000) recomeçarTudo();
        return errado;
    }

    const std::vector<std::string>& história() const { return história_; }
    const std::map<std::string, long>& feitos() const { return feitos_; }

  private:
    std::size_t até(std::size_t n) { return std::uniform_int_distribution<std::size_t>{0, n - 1}(sorteio_); }
    bool umEm(std::size_t n) { return até(n) == 0; }
    template <class Sequência>
    const auto& algumDe(const Sequência& sequência) {
        return sequência[até(std::size(sequência))];
    }

    void recomeçarTudo() {
        recomeçar();
        história_.clear();
    }

    static bool encerrado() { return std::ranges::find(caderno, "encerrar") != caderno.end(); }

    std::string exame() const {
        if (const auto onde = primeiroNãoFinito(); !onde.empty()) return "no number in " + onde;
        if (const auto onde = primeiroIncoerente(); !onde.empty()) return "contradiction in " + onde;
        bool à_vista = false;
        for (auto* tela : telasEmOrdem()) {
            if (!tela->carregada()) continue;
            à_vista = à_vista || (tela->visivel && tela->habilitada);
            if (tela->ponteiro == Ponteiro::ampulheta) return "hourglass left over " + tela->nome();
        }
        if (!à_vista && !encerrado()) return "no screen in sight";
        return {};
    }

    /// Words like "nan" are left out: a caption may repeat what was typed, and would be taken for a result.
    std::string texto() {
        static constexpr std::array textos{
            "0",   "1",      "2",   "3",     "6",     "12",     "18",      "24",         "30",    "40",
            "60",  "210",    "240", "330",   "360",   "361",    "0.5",     "1.5",        "2.75",  "-1",
            "-6",  "1e3",    "1e9", "1e308", "1e400", "-1e400", "1e-320",  "0x10",       "1,5",   "1.2.3",
            "",    " ",      "abc", "12abc", " 7 ",   "10001",  "5000000", "2147483648", "0.001", "99.9",
            "100", "Ângulo", "\"",  "#",     "N/E",   "TX30",   ".",       "+4"};
        if (umEm(2)) return textos[até(12)];
        return algumDe(textos);
    }

    std::optional<std::string> arquivo() {
        switch (até(8)) {
        case 0:
            return std::nullopt;
        case 1:
            return pasta_.caminho("falta/nenhum.txt");
        case 2:
            return pasta_.caminho("e");
        case 3:
        case 4:
            return pasta_.caminho("novo" + std::to_string(até(4)) + ".txt");
        default:
            return algumDe(amostras_);
        }
    }

    Passo sortearPasso() {
        Passo passo;
        // More answers than any act asks for.
        for (int n = 0; n < 8; ++n) passo.respostas.push_back(!umEm(4));
        for (int n = 0; n < 4; ++n) passo.arquivos.push_back(arquivo());
        passo.palavras = sortearAto();
        return passo;
    }

    /// A screen and a control that a person could use, and what is done to them.
    std::vector<std::string> sortearAto() {
        std::vector<TelaBase*> à_vista;
        for (auto* tela : telasEmOrdem())
            if (tela->carregada() && tela->visivel && tela->habilitada) à_vista.push_back(tela);
        auto& tela = *algumDe(à_vista);
        if (umEm(40)) return {"fechar", tela.nome()};
        std::vector<Elemento> usáveis;
        for (auto& elemento : tela.elementos())
            if (estáVisível(elemento) && estáHabilitado(elemento) && !éSóDeVer(elemento.controle))
                usáveis.push_back(std::move(elemento));
        if (usáveis.empty()) return {"fechar", tela.nome()};
        const auto& elemento = algumDe(usáveis);
        auto palavras = std::visit([&](auto* c) { return atoEm(*c); }, elemento.controle);
        palavras.insert(palavras.begin() + 1, tela.nome() + "." + elemento.nomeCompleto());
        return palavras;
    }

    static bool éSóDeVer(const RefControle& controle) {
        if (auto* const* grade = std::get_if<Grade*>(&controle)) return !(*grade)->planilha;
        if (auto* const* desenho = std::get_if<Desenho*>(&controle)) return !(*desenho)->aoMoverMouse;
        return std::holds_alternative<Rotulo*>(controle) || std::holds_alternative<Quadro*>(controle) ||
               std::holds_alternative<Barra*>(controle);
    }

    using Palavras = std::vector<std::string>;
    template <class Controle>
    Palavras atoEm(const Controle&) {
        return {"clicar"};
    }
    Palavras atoEm(const CaixaTexto&) { return {"digitar", texto()}; }
    Palavras atoEm(const Lista& lista) {
        if (lista.itens.empty() || (lista.admiteDigitação && umEm(3))) return {"digitar", texto()};
        return {"escolher", algumDe(lista.itens)};
    }
    Palavras atoEm(const Rolagem& rolagem) {
        const auto faixa = static_cast<std::size_t>(rolagem.máximo - rolagem.mínimo) + 1;
        return {umEm(4) ? "arrastar" : "rolar",
                std::to_string(rolagem.mínimo + static_cast<int>(até(faixa)))};
    }
    Palavras atoEm(const Grade& grade) {
        return {"celula", std::to_string(até(static_cast<std::size_t>(grade.linhas))),
                std::to_string(até(static_cast<std::size_t>(grade.colunas))), texto()};
    }
    Palavras atoEm(const Desenho&) {
        return {"mover", std::to_string(static_cast<int>(até(5000)) - 100),
                std::to_string(static_cast<int>(até(5000)) - 100)};
    }

    std::mt19937 sorteio_;
    PastaTemporaria pasta_;
    std::vector<std::string> amostras_;
    std::vector<std::string> história_;
    std::map<std::string, long> feitos_;
};

/// Resident memory of this process, in MiB.
double memória() {
    std::ifstream estado{"/proc/self/statm"};
    double páginas = 0, residentes = 0;
    estado >> páginas >> residentes;
    return residentes * static_cast<double>(::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

int executarMacaco(long atos, unsigned semente) {
    Macaco macaco{semente};
    double noMeio = 0;
    for (long n = 1; n <= atos; ++n) {
        if (const auto errado = macaco.agir(); !errado.empty()) {
            for (const auto& passo : macaco.história()) std::fputs(passo.c_str(), stdout);
            std::printf("# seed %u, act %ld: %s\n", semente, n, errado.c_str());
            return 1;
        }
        if (n == atos / 2) noMeio = memória();
    }
    for (const auto& [ato, quantos] : macaco.feitos()) std::printf("%s %ld\n", ato.c_str(), quantos);
    std::printf("memory half way %.0f MiB, at the end %.0f MiB\n", noMeio, memória());
    return 0;
}

} // namespace
} // namespace varenta::teste

int main(int quantos, char** argumentos) {
    const long atos = quantos > 1 ? std::atol(argumentos[1]) : 20'000;
    const auto semente =
        quantos > 2 ? static_cast<unsigned>(std::atol(argumentos[2])) : std::random_device{}();
    return varenta::teste::executarMacaco(atos, semente);
}
