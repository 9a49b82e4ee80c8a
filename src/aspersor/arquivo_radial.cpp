#include "aspersor/arquivo_radial.h"

#include "aspersor/perfil_form.h"
#include "aspersor/perfil_medido.h"
#include "comum/arquivo_texto.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "comum/verificacoes.h"

#include <algorithm>
#include <cmath>

namespace varenta {
namespace {

constexpr const char* foraDeOrdem = "Os valores de distância ao aspersor devem estar em ordem crescente!";

UnidadeRadial unidadeDaTela() {
    if (perfilForm->Option3.marcada) return UnidadeRadial::ml;
    return perfilForm->Option4.marcada ? UnidadeRadial::mm : UnidadeRadial::mmPorHora;
}

bool éInválido(const std::string& texto) { return nãoÉNumérico(texto) || nãoÉPositivo(texto); }

/// What the unit needs before a save: its message where it isn't there.
bool camposDaUnidadeSalváveis() {
    auto& f = *perfilForm.operator->();
    const auto& tempo = f.Text4.texto;
    const auto& diâmetro = f.Text3.texto;
    const char* mensagem = nullptr;
    bool esvaziar = true;
    auto& falha = f.Option3.marcada && éInválido(diâmetro) ? f.Text3 : f.Text4;
    if (f.Option4.marcada && éInválido(tempo)) {
        esvaziar = !tempo.empty();
        mensagem = esvaziar ? "Valor numérico inválido!" : "Insira um valor numérico de tempo!";
    } else if (f.Option3.marcada && (tempo.empty() || diâmetro.empty())) {
        esvaziar = false;
        mensagem = "Ausência de valor numérico de tempo ou diâmetro do coletor!";
    } else if (f.Option3.marcada && (éInválido(tempo) || éInválido(diâmetro))) {
        mensagem = "Valor numérico de tempo ou diâmetro do coletor inválido!";
    }
    if (!mensagem) return true;
    plataforma::mensagem(mensagem);
    focar(falha);
    if (esvaziar) {
        definirTexto(f.Text4, "");
        definirTexto(f.Text3, "");
    }
    return false;
}

/// A file that is refused, with the message that tells why.
struct ArquivoRecusado {
    const char* mensagem = "O arquivo não pode ser aberto, consulte a ajuda!";
};

std::string próximaPreenchida(LeitorDeLinhas& leitor) {
    auto linha = leitor.próxima();
    if (linha.empty()) throw ArquivoRecusado{};
    return linha;
}

std::string próximaPositiva(LeitorDeLinhas& leitor) {
    auto linha = próximaPreenchida(leitor);
    if (éInválido(linha)) throw ArquivoRecusado{};
    return linha;
}

/// How many rows of data the header tells, a whole number.
double quantasLinhas(const ArquivoRadial& arquivo) { return std::nearbyint(lerEstrito(arquivo.linhas)); }

ArquivoRadial lerCabeçalho(LeitorDeLinhas& leitor) {
    ArquivoRadial arquivo{};
    for (auto* linha :
         {&arquivo.nome, &arquivo.bocais, &arquivo.pressão, &arquivo.anguloJato, &arquivo.vazão})
        *linha = próximaPreenchida(leitor);
    arquivo.linhas = próximaPositiva(leitor);
    if (quantasLinhas(arquivo) == 0) throw ArquivoRecusado{};
    const double unidade = lerPrefixo(leitor.próxima());
    arquivo.unidade = unidade == 1   ? UnidadeRadial::mmPorHora
                      : unidade == 2 ? UnidadeRadial::mm
                                     : UnidadeRadial::ml;
    if (arquivo.unidade != UnidadeRadial::mmPorHora) arquivo.tempo = próximaPositiva(leitor);
    if (arquivo.unidade == UnidadeRadial::ml) arquivo.diâmetro = próximaPositiva(leitor);
    return arquivo;
}

/// Puts the header into its boxes. A number of data that no grid can have stays out: the rows that are read
/// next come before the refusal that it calls for.
void mostrarCabeçalho(const ArquivoRadial& arquivo) {
    auto& f = *perfilForm.operator->();
    marcar(perfilForm, arquivo.unidade == UnidadeRadial::mmPorHora ? f.Option5
                       : arquivo.unidade == UnidadeRadial::mm      ? f.Option4
                                                                   : f.Option3);
    definirTexto(f.Text4, arquivo.tempo);
    definirTexto(f.Text3, arquivo.diâmetro);
    definirTexto(f.Text7, arquivo.nome);
    definirTexto(f.Text9, arquivo.bocais);
    definirTexto(f.Text2, arquivo.pressão);
    definirTexto(f.Text8, arquivo.anguloJato);
    definirTexto(f.Text1, arquivo.vazão);
    if (quantasLinhas(arquivo) > maiorLadoDaPlanilha) return;
    definirTexto(f.Text5, arquivo.linhas);
    // A number that stood there already raises no event, and an operation cut short may have left it without
    // its rows.
    perfilForm_Text5_Change();
}

/// The rest of a file may only be blank lines.
bool temMaisDados(LeitorDeLinhas& leitor) {
    while (!leitor.fim())
        if (!leitor.próxima().empty()) return true;
    return false;
}

PontoMedido lerPonto(const std::string& linha) {
    const auto colunas = separarColunas(linha);
    if (colunas.size() > 2) throw ArquivoRecusado{"A arquivo *.TXT apresenta mais de duas colunas!"};
    if (colunas.size() < 2)
        throw ArquivoRecusado{
            "O número de colunas do arquivo não coicide com o número de colunas especificado!"};
    if (!éNumérico(colunas[0]))
        throw ArquivoRecusado{"Há valores não numéricos nos dados de distância ao aspersor!"};
    if (!éNumérico(colunas[1])) throw ArquivoRecusado{"Há valores não numéricos nos dados de precipitação!"};
    return {lerEstrito(colunas[0]), lerEstrito(colunas[1])};
}

/// The rows of data, as many as the header tells. Each is checked before their number is.
std::vector<PontoMedido> lerPontos(LeitorDeLinhas& leitor, double quantos) {
    const auto esperados = static_cast<std::size_t>(std::min<double>(quantos, maiorLadoDaPlanilha));
    std::vector<PontoMedido> pontos;
    while (pontos.size() < esperados && !leitor.fim()) {
        const auto ponto = lerPonto(leitor.próxima());
        if (!pontos.empty() && ponto.r <= pontos.back().r) throw ArquivoRecusado{foraDeOrdem};
        pontos.push_back(ponto);
    }
    if (quantos > maiorLadoDaPlanilha || temMaisDados(leitor))
        throw ArquivoRecusado{"O arquivo é muito grande!"};
    if (pontos.size() < esperados) throw ArquivoRecusado{};
    return pontos;
}

void lerArquivo(LeitorDeLinhas& leitor) {
    const auto arquivo = lerCabeçalho(leitor);
    mostrarCabeçalho(arquivo);
    const auto pontos = lerPontos(leitor, quantasLinhas(arquivo));
    auto& f = *perfilForm.operator->();
    for (std::size_t k = 0; k < pontos.size(); ++k) {
        const int linha = static_cast<int>(k) + 1;
        f.flexGrid.escrever(linha, 1, Format(pontos[k].r, "0.00"));
        f.flexGrid.escrever(linha, 2, Format(pontos[k].i, "0.000"));
    }
    f.recolhidas.clear();
    perfilForm_flexGrid_Change();
}

} // namespace

std::string textoDoArquivo(const ArquivoRadial& arquivo) {
    std::string texto;
    acrescentarLinha(texto, ouSubstituto(arquivo.nome, "Não Especificado"));
    for (const auto* linha : {&arquivo.bocais, &arquivo.pressão, &arquivo.anguloJato, &arquivo.vazão})
        acrescentarLinha(texto, ouSubstituto(*linha, "N/E"));
    acrescentarLinha(texto, arquivo.linhas);
    acrescentarLinha(texto, std::to_string(static_cast<int>(arquivo.unidade)));
    if (arquivo.unidade != UnidadeRadial::mmPorHora) acrescentarLinha(texto, arquivo.tempo);
    if (arquivo.unidade == UnidadeRadial::ml) acrescentarLinha(texto, arquivo.diâmetro);
    for (const auto& [r, leitura] : arquivo.pontos) acrescentarLinha(texto, r + '\t' + leitura);
    return texto;
}

std::vector<std::array<std::string, 2>> pontosDaGrade(const Grade& grade) {
    std::vector<std::array<std::string, 2>> pontos;
    for (int l = 1; l < grade.linhas; ++l) pontos.push_back({grade.célula(l, 1), grade.célula(l, 2)});
    return pontos;
}

RecusaDeCélula recusaAoSalvar(const Grade& flexGrid) {
    constexpr const char* nãoNumérico = "Insira valores numéricos!";
    for (int l = 1; l < flexGrid.linhas; ++l) {
        const auto& r = flexGrid.célula(l, 1);
        if (!éNumérico(r)) return {nãoNumérico, l, 1};
        if (l > 1 && lerEstrito(r) <= lerEstrito(flexGrid.célula(l - 1, 1))) return {foraDeOrdem, l, 1};
        if (!éNumérico(flexGrid.célula(l, 2))) return {nãoNumérico, l, 2};
    }
    return {};
}

RecusaDeCélula recusaNaSegundaPassagem(const Grade& flexGrid) {
    constexpr std::array verificações = {VerificaçãoDeTexto{nãoÉNumérico, "Insira um valores numéricos!"}};
    return primeiraRecusa(verificações, flexGrid);
}

std::optional<std::string> textoDoArquivoRadial() {
    sairDaCélula(perfilForm_planilha());
    const auto& f = *perfilForm.operator->();
    if (!éNumérico(f.Text5.texto)) {
        plataforma::mensagem("Informe o número de linhas da planilha!");
        focar(f.Text5);
        return std::nullopt;
    }
    if (!camposDaUnidadeSalváveis()) return std::nullopt;
    for (const auto conferir : {recusaAoSalvar, recusaNaSegundaPassagem})
        if (const auto recusa = conferir(f.flexGrid); recusa.mensagem) {
            recusar(perfilForm_planilha(), recusa);
            return std::nullopt;
        }
    return textoDoArquivo({.nome = f.Text7.texto,
                           .bocais = f.Text9.texto,
                           .pressão = f.Text2.texto,
                           .anguloJato = f.Text8.texto,
                           .vazão = f.Text1.texto,
                           .linhas = f.Text5.texto,
                           .unidade = unidadeDaTela(),
                           .tempo = f.Text4.texto,
                           .diâmetro = f.Text3.texto,
                           .pontos = pontosDaGrade(f.flexGrid)});
}

bool abrirArquivoRadial() {
    if (!plataforma::perguntar(perguntaDaExtensão)) return false;
    auto& f = *perfilForm.operator->();
    for (auto* caixa : {&f.Text1, &f.Text2, &f.Text3, &f.Text4, &f.Text7, &f.Text8, &f.Text9})
        definirTexto(*caixa, "");
    const auto caminho = pedirArquivoDeDados();
    if (!caminho) return false;
    const char* mensagem = nullptr;
    LeitorDeLinhas leitor;
    try {
        leitor.abrir(*caminho);
        lerArquivo(leitor);
        return true;
    } catch (const ArquivoRecusado& recusado) {
        mensagem = recusado.mensagem;
    } catch (const ErroExecucao&) {
        mensagem = ArquivoRecusado{}.mensagem;
    } catch (...) {
        marcar(perfilForm, f.Option5);
        throw;
    }
    plataforma::mensagem(mensagem, leitor.onde());
    marcar(perfilForm, f.Option5);
    return false;
}

} // namespace varenta
