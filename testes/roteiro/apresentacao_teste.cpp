#include "bancada.h"

#include <numbers>
#include <string>
#include <vector>

namespace varenta::teste {
namespace {

using Apresentacao = ComBancada;

TEST_F(Apresentacao, TextosMostramQuebrasTabulaçõesEBarrasInvertidasComEscapes) {
    EXPECT_EQ(saídaDe("mostrar Bancada.texto"), "Bancada.texto = um\\r\\ndois\\t\\\\três\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.Caption"), "Bancada.Caption = Bancada\\tde\\\\teste\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.lista.itens"), "Bancada.lista.itens = um\tdois e meio\ta\\tb\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.tabela"),
              "Bancada.tabela: 2 linhas x 2 colunas\na\tb\\tc\nd\\ne\tf\n");
}

TEST_F(Apresentacao, CadaTipoMostraSeuTextoOuValor) {
    EXPECT_EQ(saídaDe("mostrar Bancada.diário"), "Bancada.diário = \n");
    EXPECT_EQ(saídaDe("mostrar Bancada.quadro"), "Bancada.quadro = Quadro\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.botão"), "Bancada.botão = &Botão\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.item"), "Bancada.item = &Item\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.caixa"), "Bancada.caixa = abc\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.lista"), "Bancada.lista = um\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.opçãoB"), "Bancada.opçãoB = Opção B\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.verificação"), "Bancada.verificação = Verificação\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.rolagem"), "Bancada.rolagem = 5\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.barra"), "Bancada.barra = 40\n");
}

TEST_F(Apresentacao, MatrizSemÍndiceMostraUmaLinhaPorElemento) {
    bancada->rótulos[1].texto = "a";
    bancada->rótulos[3].texto = "c";
    EXPECT_EQ(saídaDe("mostrar Bancada.rótulos"),
              "Bancada.rótulos(1) = a\nBancada.rótulos(2) = \nBancada.rótulos(3) = c\n");
    EXPECT_EQ(saídaDe("mostrar Bancada.rótulos(3)"), "Bancada.rótulos(3) = c\n");
}

TEST_F(Apresentacao, ListaSemItensMostraALinhaVazia) {
    bancada->livre.itens.clear();
    EXPECT_EQ(saídaDe("mostrar Bancada.livre.itens"), "Bancada.livre.itens = \n");
}

TEST_F(Apresentacao, GradeMostraTamanhoELinhasComOCabeçalho) {
    EXPECT_EQ(saídaDe("mostrar Bancada.grade"),
              "Bancada.grade: 3 linhas x 3 colunas\nNo\td\ti\n1\t\t\n2\t\t\n");
}

TEST_F(Apresentacao, DesenhoPeloNomeMostraCadaTraçoNaOrdem) {
    auto& desenho = bancada->desenho;
    desenho.linha(0, -1.5, 0.1, 1234.5, cores::azul);
    desenho.caixaCheia(1, 2, 3, 4, corDe(1, 2, 0xAB));
    desenho.larguraTraco(2);
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.arco(10, 20, 5, cores::vermelho, -0.5, std::numbers::pi);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
    desenho.arco(10, 20, 5, cores::preto);
    EXPECT_EQ(saídaDe("mostrar Bancada.desenho"), "Bancada.desenho: 1 linhas, 1 caixas, 2 arcos\n"
                                                  "linha 0 -1.5 0.1 1234.5 #0000ff 1\n"
                                                  "caixa 1 2 3 4 #0102ab\n"
                                                  "arco 10 20 5 #ff0000 -0.5 3.141592653589793 2 sim\n"
                                                  "arco 10 20 5 #000000 0 6.283185307179586 2 não\n");
}

TEST_F(Apresentacao, MosaicoSãoAsSuasCaixas) {
    bancada->desenho.mosaico({10, 20, 3, 4, 2, {cores::vermelho, cores::azul, cores::preto}});
    EXPECT_EQ(saídaDe("mostrar Bancada.desenho"), "Bancada.desenho: 0 linhas, 3 caixas, 0 arcos\n"
                                                  "caixa 10 20 13 24 #ff0000\n"
                                                  "caixa 13 20 16 24 #0000ff\n"
                                                  "caixa 10 24 13 28 #000000\n");
}

TEST_F(Apresentacao, NúmeroDoTraçoTemAFormaMaisCurtaQueRelidaDáOMesmoDouble) {
    struct Caso {
        double valor;
        std::string texto;
    };
    // 17 digits where no fewer tell the double from its neighbours, the exponent where that is shorter.
    for (const auto& [valor, texto] :
         std::vector<Caso>{{0.1, "0.1"},
                           {0.1 + 0.2, "0.30000000000000004"},
                           {100000, "1e+05"},
                           {123456, "123456"},
                           {-0.0, "-0"},
                           {1.7976931348623157e308, "1.7976931348623157e+308"}}) {
        bancada->desenho.limpar();
        bancada->desenho.linha(valor, 0, 0, 0, cores::preto);
        EXPECT_EQ(lerPrefixo(texto), valor);
        EXPECT_EQ(saídaDe("mostrar Bancada.desenho"),
                  "Bancada.desenho: 1 linhas, 0 caixas, 0 arcos\nlinha " + texto + " 0 0 0 #000000 1\n");
    }
}

TEST_F(Apresentacao, TelaMostraTodosOsControlesNaOrdemComODesenhoResumido) {
    bancada->desenho.linha(0, 0, 1, 1, cores::preto);
    EXPECT_EQ(saídaDe("mostrar Bancada"), "Bancada.diário = \n"
                                          "Bancada.texto = um\\r\\ndois\\t\\\\três\n"
                                          "Bancada.rótulos(1) = \n"
                                          "Bancada.rótulos(2) = \n"
                                          "Bancada.rótulos(3) = \n"
                                          "Bancada.quadro = Quadro\n"
                                          "Bancada.botão = &Botão\n"
                                          "Bancada.semAção = Sem ação\n"
                                          "Bancada.desabilitado = \n"
                                          "Bancada.oculto = \n"
                                          "Bancada.avisa = \n"
                                          "Bancada.falha = \n"
                                          "Bancada.pergunta = \n"
                                          "Bancada.abre = \n"
                                          "Bancada.salva = \n"
                                          "Bancada.demora = \n"
                                          "Bancada.item = &Item\n"
                                          "Bancada.submenu = &Submenu\n"
                                          "Bancada.caixa = abc\n"
                                          "Bancada.lista = um\n"
                                          "Bancada.livre = \n"
                                          "Bancada.opçãoA = Opção A\n"
                                          "Bancada.opçãoB = Opção B\n"
                                          "Bancada.verificação = Verificação\n"
                                          "Bancada.rolagem = 5\n"
                                          "Bancada.rolagemQuePergunta = 0\n"
                                          "Bancada.barra = 40\n"
                                          "Bancada.desenho: 1 linhas, 0 caixas, 0 arcos\n"
                                          "Bancada.grade: 3 linhas x 3 colunas\n"
                                          "No\td\ti\n"
                                          "1\t\t\n"
                                          "2\t\t\n"
                                          "Bancada.tabela: 2 linhas x 2 colunas\n"
                                          "a\tb\\tc\n"
                                          "d\\ne\tf\n"
                                          "Bancada.entrada = \n"
                                          "Bancada.nomeDaCélula = \n");
}

TEST_F(Apresentacao, EstadoDizSeOControleÉVisívelEHabilitado) {
    EXPECT_EQ(saídaDe("estado Bancada.botão"), "Bancada.botão: visível habilitado\n");
    EXPECT_EQ(saídaDe("estado Bancada.oculto"), "Bancada.oculto: oculto habilitado\n");
    EXPECT_EQ(saídaDe("estado Bancada.desabilitado"), "Bancada.desabilitado: visível desabilitado\n");
}

TEST_F(Apresentacao, BotãoSemAçãoEstáDesabilitado) {
    EXPECT_EQ(saídaDe("estado Bancada.semAção"), "Bancada.semAção: visível desabilitado\n");
}

TEST_F(Apresentacao, EstadoDeOpçãoEVerificaçãoDizSeEstãoMarcadas) {
    EXPECT_EQ(saídaDe("estado Bancada.opçãoA"), "Bancada.opçãoA: visível habilitado marcado\n");
    EXPECT_EQ(saídaDe("estado Bancada.opçãoB"), "Bancada.opçãoB: visível habilitado desmarcado\n");
    EXPECT_EQ(saídaDe("estado Bancada.verificação"), "Bancada.verificação: visível habilitado desmarcado\n");
}

TEST_F(Apresentacao, EstadoDeDesenhoDizOPonteiroDaTela) {
    EXPECT_EQ(saídaDe("estado Bancada.desenho"), "Bancada.desenho: visível habilitado padrão\n");
    bancada.ponteiro = Ponteiro::cruz;
    EXPECT_EQ(saídaDe("estado Bancada.desenho"), "Bancada.desenho: visível habilitado cruz\n");
    bancada.ponteiro = Ponteiro::ampulheta;
    EXPECT_EQ(saídaDe("estado Bancada.desenho"), "Bancada.desenho: visível habilitado ampulheta\n");
}

TEST_F(Apresentacao, EstadoDeMatrizSemÍndiceDizUmaLinhaPorElemento) {
    bancada->rótulos[2].visivel = false;
    EXPECT_EQ(saídaDe("estado Bancada.rótulos"), "Bancada.rótulos(1): visível habilitado\n"
                                                 "Bancada.rótulos(2): oculto habilitado\n"
                                                 "Bancada.rótulos(3): visível habilitado\n");
}

} // namespace
} // namespace varenta::teste
