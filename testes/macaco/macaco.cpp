/// Does what a person could do, at random, and looks at the whole system after each act.
///
///     macaco [ACTS [SEED]]
///
/// Prints how many acts of each kind were done. Where something is wrong it prints the roteiro that leads
/// there and exits with 1.

#include "apoio/passos.h"
#include "apoio/plataforma_teste.h"
#include "comum/atos.h"
#include "comum/tela.h"
#include "macaco/acaso.h"
#include "macaco/exame.h"
#include "shell/sistema.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace varenta::teste {
namespace {

/// What the acts of the records were told and answered.
class PeloCaderno : public LeituraDeVolta {
    void preparar(const std::string& caminho) override {
        caderno.clear();
        respostas.assign(4, true);
        arquivos = {caminho};
    }
    std::string recados() override {
        const auto recado = std::ranges::find_if(caderno, [](const std::string& linha) {
            return linha.starts_with("mensagem: ") || linha.starts_with("erro: ");
        });
        return recado == caderno.end() ? "" : *recado;
    }
};

class Macaco {
  public:
    explicit Macaco(unsigned semente) : acaso_{semente} { recomeçarTudo(); }

    /// One act. Returns what is wrong afterwards; empty where nothing is.
    std::string agir() {
        const auto passo = sortearPasso();
        caderno.clear();
        std::string errado;
        try {
            executar(passo);
            ++feitos_[passo.palavras[0]];
        } catch (const AtoRecusado&) {
            // A roteiro would end here: it isn't one of its acts.
            ++feitos_["refused"];
            return exameDosRegistros(encerrado());
        } catch (const std::exception& e) {
            errado = std::string{"escaped: "} + e.what();
        }
        história_.push_back(comAsRespostasUsadas(passo).texto());
        if (errado.empty()) errado = exameDosRegistros(encerrado());
        if (errado.empty()) errado = anotarSalvo(passo);
        // Now and then from the start, so that no history grows too long to be read.
        if (!errado.empty() || (!encerrado() && história_.size() <= 3000)) return errado;
        errado = conferirSalvos();
        if (errado.empty()) recomeçarTudo();
        return errado;
    }

    const std::vector<std::string>& história() const { return história_; }
    const std::map<std::string, long>& feitos() const { return feitos_; }

    /// What is wrong with the files that were saved since the last start; empty where nothing is.
    std::string conferirSalvos() {
        for (const auto& [caminho, tela] : salvos_) {
            recomeçar();
            if (auto errado = PeloCaderno{}.conferir(tela, caminho); !errado.empty()) return errado;
        }
        return {};
    }

  private:
    /// A roteiro would keep those left over for the next question.
    static Passo comAsRespostasUsadas(Passo passo) {
        passo.respostas.resize(passo.respostas.size() - respostas.size());
        passo.arquivos.resize(passo.arquivos.size() - arquivos.size());
        return passo;
    }

    void recomeçarTudo() {
        recomeçar();
        história_.clear();
        salvos_.clear();
    }

    static bool encerrado() { return std::ranges::find(caderno, "encerrar") != caderno.end(); }

    /// Looks at the file that the act has saved, if it has, and keeps which screen did.
    std::string anotarSalvo(const Passo& passo) {
        std::size_t diálogo = 0;
        std::optional<std::string> salvo;
        for (const auto& linha : caderno) {
            if (linha.starts_with("salvar: ")) salvo = passo.arquivos[diálogo];
            if (linha.starts_with("salvar: ") || linha.starts_with("abrir: ")) ++diálogo;
            if (linha.starts_with("mensagem: ")) salvo.reset();
        }
        if (!salvo) return {};
        ++feitos_["saved"];
        salvos_[*salvo] = passo.palavras[1].substr(0, passo.palavras[1].find('.'));
        std::ifstream arquivo{*salvo, std::ios::binary};
        return exameDoTextoSalvo(std::string{std::istreambuf_iterator<char>{arquivo}, {}});
    }

    Passo sortearPasso() {
        Passo passo;
        // More answers than any act asks for.
        for (int n = 0; n < 8; ++n) passo.respostas.push_back(!acaso_.umEm(4));
        for (int n = 0; n < 4; ++n) passo.arquivos.push_back(acaso_.arquivo());
        passo.palavras = sortearAto();
        return passo;
    }

    /// A screen and a control that a person could use, and what is done to them.
    std::vector<std::string> sortearAto() {
        std::vector<TelaBase*> à_vista;
        for (auto* tela : telasEmOrdem())
            if (tela->carregada() && tela->visivel && tela->habilitada) à_vista.push_back(tela);
        auto& tela = *acaso_.algumDe(à_vista);
        if (acaso_.umEm(40)) return {"fechar", tela.nome()};
        std::vector<Elemento> usáveis;
        for (auto& elemento : tela.elementos())
            if (estáVisível(elemento) && estáHabilitado(elemento) && !éSóDeVer(elemento.controle))
                usáveis.push_back(std::move(elemento));
        if (usáveis.empty()) return {"fechar", tela.nome()};
        const auto& elemento = acaso_.algumDe(usáveis);
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
    Palavras atoEm(const CaixaTexto&) { return {"digitar", acaso_.texto()}; }
    Palavras atoEm(const Lista& lista) {
        if (lista.itens.empty() || (lista.admiteDigitação && acaso_.umEm(3)))
            return {"digitar", acaso_.texto()};
        return {"escolher", acaso_.algumDe(lista.itens)};
    }
    Palavras atoEm(const Rolagem& rolagem) {
        const auto faixa = static_cast<std::size_t>(rolagem.máximo - rolagem.mínimo) + 1;
        return {acaso_.umEm(4) ? "arrastar" : "rolar",
                std::to_string(rolagem.mínimo + static_cast<int>(acaso_.até(faixa)))};
    }
    Palavras atoEm(const Grade& grade) {
        return {"celula", std::to_string(acaso_.até(static_cast<std::size_t>(grade.linhas))),
                std::to_string(acaso_.até(static_cast<std::size_t>(grade.colunas))), acaso_.texto()};
    }
    Palavras atoEm(const Desenho&) {
        return {"mover", std::to_string(static_cast<int>(acaso_.até(5000)) - 100),
                std::to_string(static_cast<int>(acaso_.até(5000)) - 100)};
    }

    Acaso acaso_;
    std::vector<std::string> história_;
    /// Files that were saved, and by which screen.
    std::map<std::string, std::string> salvos_;
    std::map<std::string, long> feitos_;
};

// What a few large tables leave behind in the allocator; a leak of a screen at each start would be more.
constexpr double maisMemória = 64; // MiB

int executarMacaco(long atos, unsigned semente) {
    Macaco macaco{semente};
    double noMeio = 0;
    for (long n = 1; n <= atos; ++n) {
        auto errado = macaco.agir();
        if (errado.empty() && n == atos) errado = macaco.conferirSalvos();
        if (errado.empty() && n == atos && memóriaResidente() > noMeio + maisMemória) errado = "memory grows";
        if (!errado.empty()) {
            for (const auto& passo : macaco.história()) std::fputs(passo.c_str(), stdout);
            std::printf("# seed %u, act %ld: %s\n", semente, n, errado.c_str());
            // The files that it names stay where they are.
            std::fflush(stdout);
            std::_Exit(1);
        }
        if (n == atos / 2) noMeio = memóriaResidente();
    }
    for (const auto& [ato, quantos] : macaco.feitos()) std::printf("%s %ld\n", ato.c_str(), quantos);
    std::printf("memory half way %.0f MiB, at the end %.0f MiB\n", noMeio, memóriaResidente());
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
