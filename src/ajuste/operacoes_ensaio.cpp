#include "ajuste/operacoes_ensaio.h"

#include "ajuste/cabecalhos.h"
#include "ajuste/verificacoes_ensaio.h"
#include "comum/arquivo_texto.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "simulacao/diagrama.h"
#include "simulacao/modelo_vento.h"

#include <cmath>

namespace varenta {

Planilha planilhaDoEnsaio(ControlesDeEnsaio& controles) {
    return {.grade = controles.flex_A,
            .entrada = controles.Text5,
            .nomeDaCélula = controles.Label6,
            .contagem = nullptr,
            .digitação = controles.Option2.marcada && controles.Text5.visivel,
            .padrãoDaColuna = [](int) -> std::string_view { return "0.000"; }};
}

void escreverVelocidadeDoVento(ControlesDeEnsaio& controles) {
    controles.Label17.texto = Format(controles.HScroll2.valor / 10.0, "0.0");
}

void escreverDireçãoDoVento(ControlesDeEnsaio& controles) {
    controles.Label2.texto = Format(controles.HScroll1.valor, "0");
    controles.Picture2.limpar();
    controles.Picture2.larguraTraco(2);
    desenharVento(controles.Picture2, radianos(controles.HScroll1.valor));
}

void confirmarEntrada(ControlesDeEnsaio& controles) {
    auto planilha = planilhaDoEnsaio(controles);
    // The option that ends typing is set already when its handler runs; the line still shows.
    planilha.digitação = controles.Text5.visivel;
    sairDaCélula(planilha);
    entrarNaCélula(planilha);
}

void escolherDigitação(ControlesDeEnsaio& controles) {
    voltarADigitar(planilhaDoEnsaio(controles));
    mostrarEntrada(controles, true);
}

void dimensionarPlanilha(ControlesDeEnsaio& controles, int linhas, int colunas) {
    const auto planilha = planilhaDoEnsaio(controles);
    sairDaCélula(planilha);
    dimensionar(planilha, linhas, colunas);
}

void mostrarEntrada(ControlesDeEnsaio& controles, bool mostra) {
    controles.Text5.visivel = mostra;
    controles.Label6.visivel = mostra;
    controles.Label7.visivel = mostra;
}

void mostrarDiâmetro(ControlesDeEnsaio& controles) {
    if (controles.Text7.visivel == controles.Option3.marcada) return;
    controles.Label14.visivel = controles.Text7.visivel = controles.Option3.marcada;
    definirTexto(controles.Text7, "");
}

bool éContagem(const Lista& lista) {
    if (!éNumérico(lista.texto)) return false;
    const double x = lerEstrito(lista.texto);
    return x >= 1 && x <= maiorContagem;
}

bool cabeNosCabeçalhos(const Lista& lista) {
    try {
        return std::fabs(lerPrefixo(lista.texto)) <= maiorEspaçamento;
    } catch (const ErroExecucao&) {
        return false; // past the largest double
    }
}

void corrigirLista(Lista& lista, bool aceita, const char* padrão) {
    if (aceita) return;
    plataforma::mensagem("Valor inválido!");
    definirTexto(lista, padrão);
}

void esvaziarCélulas(Grade& grade) {
    for (int l = 1; l < grade.linhas; ++l)
        for (int c = 1; c < grade.colunas; ++c) grade.escrever(l, c, "");
}

void abrirEnsaio(const TelaDeEnsaio& ensaio, Aspersor aspersor) {
    auto& c = ensaio.controles;
    const auto ficha = fichaDoAspersor(aspersor);
    c.Label18.texto = ficha.rótuloDaPressão;
    c.Label20.texto = ficha.rótuloDoModelo;
    c.Label19.texto = ficha.rótuloDosBocais;
    const bool doCatálogo = aspersor == Aspersor::doCatálogo;
    c.Command1.visivel = c.Command5.visivel = doCatálogo;
    c.Command6.visivel = c.Command4.visivel = !doCatálogo;
    ensaio.tela.mostrar();
}

void abrirArquivoDeEnsaio(const TelaDeEnsaio& ensaio, std::initializer_list<CaixaTexto*> caixas,
                          const std::function<void(const std::string&)>& ler) {
    abrirOuVoltar(
        [&] {
            confirmarEntrada(ensaio.controles);
            if (!plataforma::perguntar(perguntaDaExtensão)) return false;
            for (auto* caixa : caixas) definirTexto(*caixa, "");
            const auto caminho = pedirArquivoDeDados();
            if (!caminho) return false;
            ler(*caminho);
            return true;
        },
        [&] { marcar(ensaio.tela, ensaio.controles.Option2); });
}

void escreverAspersorDoArquivo(ControlesDeEnsaio& controles, const ArquivoDeEnsaio& arquivo) {
    controles.Label20.texto = "ASPERSOR: " + arquivo.modelo;
    controles.Label19.texto = "Bocais: " + arquivo.bocais + " mm";
    controles.Label18.texto = "Pressão: " + arquivo.pressão + " m.c.a.";
}

void escreverLeituras(Grade& grade, const std::vector<std::vector<std::string>>& leituras) {
    int l = 0;
    for (const auto& linha : leituras) {
        ++l;
        int c = 0;
        for (const auto& leitura : linha) grade.escrever(l, ++c, leitura);
    }
}

std::vector<std::string> linhasDoAspersor(const FichaDoAspersor& ficha) {
    return {ficha.modelo, ficha.bocais, ficha.pressão, ficha.anguloJato, ficha.vazão};
}

std::vector<std::string> linhasDasLeituras(const Grade& grade, int linhas, int colunas) {
    std::vector<std::string> textos;
    for (int l = 1; l <= linhas; ++l) {
        auto& texto = textos.emplace_back();
        for (int c = 1; c <= colunas; ++c) {
            if (c > 1) texto += '\t';
            texto += leituraDaCélula(grade, l, c);
        }
    }
    return textos;
}

std::string unirLinhas(std::initializer_list<std::vector<std::string>> partes) {
    std::string texto;
    const char* separador = "";
    for (const auto& parte : partes)
        for (const auto& linha : parte) {
            texto += separador;
            texto += linha;
            separador = "\r\n";
        }
    return texto;
}

void salvarArquivoDeEnsaio(const std::string& texto) {
    const auto caminho =
        plataforma::arquivoParaSalvar({.filtro = "Text files|*.TXT|All files|*.*", .extensãoPadrão = "TXT"});
    if (!caminho || caminho->empty()) return;
    try {
        gravarTexto(*caminho, texto);
    } catch (const ErroExecucao& e) {
        plataforma::mensagem(std::string{"O arquivo não pode ser salvo "} + e.what());
    }
}

void limparEnsaio(const TelaDeEnsaio& ensaio) {
    esvaziarCélulas(ensaio.controles.flex_A);
    definirTexto(ensaio.controles.Text5, "");
    marcar(ensaio.tela, ensaio.controles.Option2);
}

void fecharEnsaio(const TelaDeEnsaio& ensaio, Aspersor aspersor) {
    const auto ficha = fichaDoAspersor(aspersor);
    if (plataforma::perguntar("Verifique se os dados do aspersor conferem com os valores do Ensaio " +
                              std::to_string(ensaio.número) + ": Dados Técnicos: " + ficha.modelo + "; " +
                              ficha.bocais + "; " + ficha.pressão))
        ensaio.tela.esconder();
}

void fecharEnsaio(const TelaDeEnsaio& ensaio) {
    fecharEnsaio(ensaio, ensaio.controles.Command5.visivel ? Aspersor::doCatálogo : Aspersor::outro);
}

} // namespace varenta
