#include "campo/arquivo_movel.h"

#include "campo/form_ec.h"
#include "comum/arquivo_texto.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varenta {
namespace {

/// A file that is refused. Where its header could be used the lists keep what they took from it.
struct ArquivoRecusado {
    const char* mensagem = "O arquivo não pode ser aberto, consulte a ajuda!";
    bool cabeçalhoAceito = false;
};

/// The least number of collectors on each side, by their spacing.
struct PisoDeColetores {
    double espaço, piso;
    const char* mensagem;
};
constexpr std::array pisos = {
    PisoDeColetores{1, 4, "O número de coletores em cada linha deve ser maior que 4!"},
    PisoDeColetores{1.5, 3, "O número de coletores em cada linha deve ser maior que 3!"},
    PisoDeColetores{2, 3, "O número de coletores em cada linha deve ser maior que 3!"},
    PisoDeColetores{3, 2, "O número de coletores em cada linha deve ser maior que 2"},
    PisoDeColetores{6, 1, "O número de coletores em cada linha deve ser maior que 1!"}};

std::string próximaNumérica(LeitorDeLinhas& leitor) {
    auto linha = leitor.próxima();
    if (!éNumérico(linha)) throw ArquivoRecusado{};
    return linha;
}

std::string próximaPositiva(LeitorDeLinhas& leitor) {
    auto linha = próximaNumérica(leitor);
    if (lerEstrito(linha) <= 0) throw ArquivoRecusado{};
    return linha;
}

/// A value for a list is the item with that number, and otherwise stands as text. The grid is made when all
/// four lists have theirs: on the way it might be asked for a size that neither the old nor the new ones
/// have.
void definirLista(Lista& lista, const std::string& valor) {
    const auto item = std::ranges::find(lista.itens, lerEstrito(valor),
                                        [](const auto& texto) { return lerEstrito(texto); });
    lista.texto = item == lista.itens.end() ? valor : *item;
}

void lerCabeçalho(LeitorDeLinhas& leitor) {
    auto& f = *formEC.operator->();
    for (auto* caixa : {&f.Text6, &f.Text8, &f.Text13, &f.Text1, &f.Text12, &f.Text11, &f.Text9})
        definirTexto(*caixa, leitor.próxima());
    definirLista(f.Combo1, próximaNumérica(leitor));
    definirLista(f.Combo2, próximaPositiva(leitor));
    definirLista(f.Combo3, próximaNumérica(leitor)); // what refuses a small one tells how many it takes
    definirLista(f.Combo4, próximaPositiva(leitor));
    const double linhas = lerEstrito(f.Combo1.texto), coletores = lerEstrito(f.Combo3.texto);
    if (!recusaDoTamanho(2 * coletores, linhas).empty()) throw ArquivoRecusado{};
    definirTexto(f.Text2, leitor.próxima());
    definirTexto(f.Text3, leitor.próxima());
    const double unidade = lerEstrito(leitor.próxima());
    if (unidade != 1 && unidade != 2) throw ArquivoRecusado{};
    const auto diâmetro = unidade == 2 ? leitor.próxima() : std::string{};
    if (const char* recusa = recusaDosColetores(lerEstrito(f.Combo4.texto), coletores))
        throw ArquivoRecusado{recusa};
    if (std::nearbyint(linhas) < 1 || std::nearbyint(coletores) < 1) throw ArquivoRecusado{};
    // Only now, since the unit makes the grid anew: a header that doesn't do takes no reading with it.
    marcar(formEC, unidade == 1 ? f.Option4 : f.Option3);
    if (unidade == 2) definirTexto(f.Text7, diâmetro);
}

void lerLeituras(LeitorDeLinhas& leitor) {
    auto& grade = formEC->flex_A;
    for (int l = 1; l < grade.linhas; ++l) {
        const auto leituras = separarColunas(leitor.próxima());
        if (leituras.size() + 1 != static_cast<std::size_t>(grade.colunas)) throw ArquivoRecusado{};
        for (int c = 1; c < grade.colunas; ++c)
            grade.escrever(l, c, Format(lerEstrito(leituras[static_cast<std::size_t>(c - 1)]), "0.000"));
    }
    while (!leitor.fim())
        if (!leitor.próxima().empty()) throw ArquivoRecusado{};
}

void lerArquivo(LeitorDeLinhas& leitor) {
    lerCabeçalho(leitor);
    esvaziarDados(formEC->flex_A);
    try {
        lerLeituras(leitor);
    } catch (const ErroExecucao&) {
        throw ArquivoRecusado{.cabeçalhoAceito = true};
    } catch (ArquivoRecusado& recusado) {
        recusado.cabeçalhoAceito = true;
        throw;
    }
}

} // namespace

std::string textoDoArquivo(const ArquivoDoCampo& arquivo) {
    std::string texto;
    const auto linha = [&](const std::string& conteúdo) { acrescentarLinha(texto, conteúdo); };
    linha(ouSubstituto(arquivo.nome, "Não Especificado"));
    for (const auto* dado : {&arquivo.bocais, &arquivo.pressão, &arquivo.anguloJato, &arquivo.vazão,
                             &arquivo.velocidade, &arquivo.anguloGiro})
        linha(ouSubstituto(*dado, "N/E"));
    for (const auto* dado : {&arquivo.linhas, &arquivo.distância, &arquivo.coletores, &arquivo.espaço,
                             &arquivo.ventoVelocidade, &arquivo.ventoDireção})
        linha(*dado);
    linha(std::to_string(static_cast<int>(arquivo.unidade)));
    if (arquivo.unidade == UnidadeMóvel::ml) linha(arquivo.diâmetro);
    for (std::size_t l = 0; l < arquivo.leituras.size(); ++l) {
        if (l > 0) texto += "\r\n";
        for (std::size_t c = 0; c < arquivo.leituras[l].size(); ++c) {
            if (c > 0) texto += '\t';
            texto += arquivo.leituras[l][c];
        }
    }
    return texto;
}

const char* recusaDosColetores(double espaço, double coletores) {
    const auto piso = std::ranges::find(pisos, espaço, &PisoDeColetores::espaço);
    return piso != pisos.end() && coletores < piso->piso ? piso->mensagem : nullptr;
}

std::string textoDoEnsaio() {
    const auto& f = *formEC.operator->();
    ArquivoDoCampo arquivo{.nome = f.Text6.texto,
                           .bocais = f.Text8.texto,
                           .pressão = f.Text13.texto,
                           .anguloJato = f.Text1.texto,
                           .vazão = f.Text12.texto,
                           .velocidade = f.Text11.texto,
                           .anguloGiro = f.Text9.texto,
                           .linhas = f.Combo1.texto,
                           .distância = f.Combo2.texto,
                           .coletores = f.Combo3.texto,
                           .espaço = f.Combo4.texto,
                           .ventoVelocidade = f.Text2.texto,
                           .ventoDireção = f.Text3.texto,
                           .unidade = f.Option3.marcada ? UnidadeMóvel::ml : UnidadeMóvel::mm,
                           .diâmetro = f.Text7.texto,
                           .leituras = {}};
    for (int l = 1; l < f.flex_A.linhas; ++l) {
        auto& leituras = arquivo.leituras.emplace_back();
        for (int c = 1; c < f.flex_A.colunas; ++c) leituras.push_back(f.flex_A.célula(l, c));
    }
    return textoDoArquivo(arquivo);
}

void escolherListasPadrão() {
    auto& f = *formEC.operator->();
    // All four before the grid is made: what a refused file left in one of them may ask for too large a grid.
    f.Combo1.texto = paraTexto(3);
    f.Combo2.texto = Format(6, "0.0");
    f.Combo4.texto = Format(2, "0.0");
    f.Combo3.texto = paraTexto(20);
    gerarPlanilhaEC();
}

bool abrirArquivoMóvel() {
    if (!plataforma::perguntar(perguntaDaExtensão)) return false;
    auto& f = *formEC.operator->();
    for (auto* caixa : {&f.Text6, &f.Text8, &f.Text13, &f.Text12, &f.Text1, &f.Text11, &f.Text9, &f.Text7,
                        &f.Text2, &f.Text3})
        definirTexto(*caixa, "");
    const auto caminho = pedirArquivoDeDados();
    if (!caminho) return false;
    const auto voltarAosPadrões = [&f] {
        escolherListasPadrão();
        marcar(formEC, f.Option4);
    };
    ArquivoRecusado recusa;
    LeitorDeLinhas leitor;
    try {
        leitor.abrir(*caminho);
        lerArquivo(leitor);
        formEC_flex_A_Change();
        return true;
    } catch (const ArquivoRecusado& recusado) {
        recusa = recusado;
    } catch (const ErroExecucao&) {
    } catch (...) {
        voltarAosPadrões();
        formEC_flex_A_Change();
        throw;
    }
    plataforma::mensagem(recusa.mensagem, leitor.onde());
    if (!recusa.cabeçalhoAceito) voltarAosPadrões();
    formEC_flex_A_Change();
    return false;
}

} // namespace varenta
