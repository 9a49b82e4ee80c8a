#include "faltas/faltas_plantadas.h"

#include "ajuste/form_e.h"
#include "ajuste/form_mie.h"
#include "apoio/atalhos.h"
#include "apoio/estado.h"
#include "apoio/pasta_temporaria.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "comum/arquivo_texto.h"
#include "comum/atos.h"
#include "shell/sistema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace varenta::teste {
namespace {

/// A screen that reads test files, and the ways to it, to a file and back to typing.
struct Leitora {
    TelaBase& tela;
    const char* arquivo;
    const char *abre, *digita;
    std::vector<std::pair<const char*, const char*>> caminho;
};

std::vector<Leitora> leitoras() {
    return {{perfilForm, "ensaio_radial_mmh.txt", "Option2", "Option1", {{"Form3", "Ou_aspB"}}},
            {formEC, "ensaio_movel_mm.txt", "Option2", "Option1", {{"Form3", "EnsCampo"}}},
            {form_E(1),
             "ensaio_malha_1.txt",
             "Option5",
             "Option2",
             {{"Form3", "TX20c"}, {"form_AjVen", "Command4"}}},
            {form_MiE(1),
             "ensaio_movel_1.txt",
             "Option5",
             "Option2",
             {{"Form3", "TX20d"}, {"form_AjVen", "Command11"}}}};
}

/// To the screen, with the answers to open its sample.
void chegar(const Leitora& leitora) {
    recomeçar();
    for (const auto& [tela, botão] : leitora.caminho) atos::clicar(alvo(*telaDeNome(tela), botão));
    respostas = {true};
    arquivos = {std::string{EXEMPLOS "/"} + leitora.arquivo};
}

/// Whether the way that a screen has marked says where its data are from: a file that couldn't be read whole
/// is none that was opened.
TEST(AbrirComFaltas, UmArquivoQueNãoCoubeNaMemóriaNãoFicaAberto) {
    for (const auto& leitora : leitoras()) {
        SCOPED_TRACE(leitora.tela.nome());
        const auto clicar = [&](const char* nome) { atos::clicar(alvo(leitora.tela, nome)); };
        const auto marcada = [&](const char* nome) {
            return std::get<Opcao*>(leitora.tela.achar(nome, std::nullopt)->controle)->marcada;
        };
        chegar(leitora);
        clicar(leitora.abre);
        ASSERT_TRUE(marcada(leitora.abre));
        const auto lido = estadoÀVista();
        int tentativas = 0;
        for (long n = 1;; ++n) {
            chegar(leitora);
            plantarFalta(Falta::memória, n);
            try {
                clicar(leitora.abre);
            } catch (const std::bad_alloc&) {
                // While the test looked for the control.
            }
            if (!colherFalta()) break;
            ++tentativas;
            if (marcada(leitora.abre)) {
                // Only with the file read whole.
                EXPECT_TRUE(estadoÀVista() == lido) << "allocation " << n;
            }
            respostas = {true};
            arquivos = {std::string{EXEMPLOS "/"} + leitora.arquivo};
            clicar(leitora.digita);
            clicar(leitora.abre);
            EXPECT_TRUE(estadoÀVista() == lido) << "after allocation " << n;
        }
        EXPECT_GT(tentativas, 20);
    }
}

TEST(AbrirComFaltas, UmaRecusaDizEmQueLinha) {
    const PastaTemporaria pasta;
    for (const auto& leitora : leitoras()) {
        SCOPED_TRACE(leitora.tela.nome());
        const auto detalheDe = [&](const std::string& caminho) {
            chegar(leitora);
            arquivos = {caminho};
            atos::clicar(alvo(leitora.tela, leitora.abre));
            EXPECT_EQ(caderno.back().substr(0, 10), "mensagem: ");
            return detalheDaMensagem;
        };
        const auto bom = lerTexto(std::string{EXEMPLOS "/"} + leitora.arquivo);
        const auto linhas = std::ranges::count(bom, '\n') + (bom.ends_with('\n') ? 0 : 1);
        const auto semAÚltima = bom.substr(0, bom.find_last_of('\n', bom.size() - 2) + 1);
        EXPECT_EQ(detalheDe(pasta.gravar("ruim.txt", semAÚltima + "x\tx\n")),
                  "Linha " + std::to_string(linhas) + " do arquivo.");
        EXPECT_EQ(detalheDe(pasta.gravar("curto.txt", "a\nb\nc\n")), "O arquivo termina na linha 3.");
        EXPECT_EQ(detalheDe(pasta.caminho("falta.txt")), "Motivo: o arquivo ou a pasta não existe.");
    }
}

} // namespace
} // namespace varenta::teste
