#include "comum/planilha.h"

#include "apoio/atalhos.h"
#include "apoio/tela_de_teste.h"

namespace varenta::teste {
namespace {

using Eventos = std::vector<std::string>;

/// Two data rows of a distance and a reading, at the first data cell.
class EntradaNaPlanilha : public ComTelaDeTeste {
  protected:
    void SetUp() override {
        ComTelaDeTeste::SetUp();
        grade().dimensionar(3, 3);
        grade().formato("^No   |^ Distância - r (m) |^ Intensidade - i (mm/h)");
        grade().escrever(1, 0, "1");
        grade().escrever(2, 0, "2");
    }

    Grade& grade() { return telaDeTeste->grade; }
    std::string& entrada() { return telaDeTeste->entrada.texto; }
    std::pair<int, int> atual() { return {grade().linhaAtual, grade().colunaAtual}; }
    bool enter() { return teclar(planilhaDeTeste(), teclaEnter); }
};

TEST_F(EntradaNaPlanilha, EntrarNaCélulaMostraOSeuNomeEOSeuTexto) {
    grade().escrever(2, 2, "0.500");
    irParaCélula(planilhaDeTeste(), 2, 2);
    EXPECT_EQ(telaDeTeste->nomeDaCélula.texto, "2 : Intensidade - i (mm/h)");
    EXPECT_EQ(entrada(), "0.500");
    EXPECT_EQ(atual(), (std::pair{2, 2}));
}

TEST_F(EntradaNaPlanilha, SairEscreveONúmeroNoFormatoDaSuaColuna) {
    entrada() = "1.2345";
    sairDaCélula(planilhaDeTeste());
    EXPECT_EQ(grade().célula(1, 1), "1.23");
    irParaCélula(planilhaDeTeste(), 1, 2);
    entrada() = " 2 ";
    sairDaCélula(planilhaDeTeste());
    EXPECT_EQ(grade().célula(1, 2), "2.000");
}

TEST_F(EntradaNaPlanilha, SairDeixaTextoNãoNuméricoComoFoiDigitado) {
    entrada() = "12 mm";
    sairDaCélula(planilhaDeTeste());
    EXPECT_EQ(grade().célula(1, 1), "12 mm");
}

TEST_F(EntradaNaPlanilha, SairComEntradaVaziaEsvaziaACélula) {
    grade().escrever(1, 1, "3.00");
    entrada() = "";
    sairDaCélula(planilhaDeTeste());
    EXPECT_EQ(grade().célula(1, 1), "");
}

TEST_F(EntradaNaPlanilha, SairNãoEscreveEmCabeçalhoNemEmNúmeroDeLinha) {
    grade().linhaAtual = 0;
    entrada() = "9";
    sairDaCélula(planilhaDeTeste());
    EXPECT_EQ(grade().célula(0, 1), "Distância - r (m)");
    grade().linhaAtual = 1;
    grade().colunaAtual = 0;
    sairDaCélula(planilhaDeTeste());
    EXPECT_EQ(grade().célula(1, 0), "1");
}

TEST_F(EntradaNaPlanilha, IrParaOutraCélulaGuardaAQueÉDeixada) {
    entrada() = "4";
    irParaCélula(planilhaDeTeste(), 2, 1);
    EXPECT_EQ(grade().célula(1, 1), "4.00");
    EXPECT_EQ(entrada(), "");
}

TEST_F(EntradaNaPlanilha, IrParaForaDaGradeÉErroENãoMudaNada) {
    entrada() = "4";
    EXPECT_EQ(erroDe([] { irParaCélula(planilhaDeTeste(), 3, 1); }), "Índice fora dos limites");
    EXPECT_EQ(grade().célula(1, 1), "");
    EXPECT_EQ(entrada(), "4");
    EXPECT_EQ(atual(), (std::pair{1, 1}));
}

TEST_F(EntradaNaPlanilha, EnterAndaParaADireitaEDepoisParaAPrimeiraColunaDaLinhaSeguinte) {
    grade().escrever(1, 2, "0.100");
    grade().escrever(2, 1, "2.00");
    entrada() = "1";
    EXPECT_TRUE(enter());
    EXPECT_EQ(grade().célula(1, 1), "1.00");
    EXPECT_EQ(atual(), (std::pair{1, 2}));
    EXPECT_EQ(entrada(), "0.100");
    EXPECT_TRUE(enter());
    EXPECT_EQ(atual(), (std::pair{2, 1}));
    EXPECT_EQ(entrada(), "2.00");
    EXPECT_EQ(telaDeTeste->nomeDaCélula.texto, "2 : Distância - r (m)");
}

TEST_F(EntradaNaPlanilha, EnterNaÚltimaCélulaGuardaEFica) {
    irParaCélula(planilhaDeTeste(), 2, 2);
    entrada() = "0.5";
    EXPECT_TRUE(enter());
    EXPECT_EQ(grade().célula(2, 2), "0.500");
    EXPECT_EQ(atual(), (std::pair{2, 2}));
    EXPECT_EQ(entrada(), "0.500");
}

TEST_F(EntradaNaPlanilha, OutraTeclaSóEntraNaCaixa) {
    entrada() = "7";
    EXPECT_FALSE(teclar(planilhaDeTeste(), '7'));
    EXPECT_EQ(grade().célula(1, 1), "");
    EXPECT_EQ(atual(), (std::pair{1, 1}));
    EXPECT_EQ(caderno, Eventos{});
}

TEST_F(EntradaNaPlanilha, ContagemNãoNuméricaRespondeQualquerTeclaComMensagemEFoco) {
    for (const int tecla : {teclaEnter, int{'7'}}) {
        caderno.clear();
        controleComFoco = nullptr;
        telaDeTeste->contagem.texto = "dois";
        entrada() = "7";
        EXPECT_TRUE(teclar(planilhaDeTeste(), tecla));
        EXPECT_EQ(caderno, Eventos{"mensagem: Insira valores numéricos!"});
        EXPECT_EQ(controleComFoco, &telaDeTeste->contagem);
        EXPECT_EQ(grade().célula(1, 1), "");
    }
    telaDeTeste->contagem.texto = "";
    EXPECT_TRUE(enter());
}

TEST_F(EntradaNaPlanilha, SemCaixaDeContagemNadaÉExigido) {
    auto planilha = planilhaDeTeste();
    planilha.contagem = nullptr;
    entrada() = "7";
    EXPECT_TRUE(teclar(planilha, teclaEnter));
    EXPECT_EQ(grade().célula(1, 1), "7.00");
}

TEST_F(EntradaNaPlanilha, AGradePassaOFocoÀEntradaComTudoSelecionado) {
    receberFoco(planilhaDeTeste());
    EXPECT_EQ(controleComFoco, &telaDeTeste->entrada);
    EXPECT_TRUE(telaDeTeste->entrada.tudoSelecionado);
}

TEST_F(EntradaNaPlanilha, ForaDoModoDeDigitaçãoNadaÉEscritoNemMostrado) {
    telaDeTeste->arquivo.marcada = true;
    entrada() = "7";
    EXPECT_FALSE(enter());
    irParaCélula(planilhaDeTeste(), 2, 2);
    EXPECT_EQ(grade().célula(1, 1), "");
    EXPECT_EQ(entrada(), "7");
    EXPECT_EQ(telaDeTeste->nomeDaCélula.texto, "");
}

TEST_F(EntradaNaPlanilha, OutroTamanhoQueMoveACélulaAtualTrocaOTextoDaEntrada) {
    grade().escrever(1, 2, "a");
    grade().escrever(2, 2, "b");
    irParaCélula(planilhaDeTeste(), 2, 2);
    dimensionar(planilhaDeTeste(), 2, 3);
    EXPECT_EQ(atual(), (std::pair{1, 2}));
    EXPECT_EQ(entrada(), "a");
    // Where it stays, what is being typed stays too.
    entrada() = "c";
    dimensionar(planilhaDeTeste(), 9, 3);
    EXPECT_EQ(entrada(), "c");
}

TEST(TamanhoDaPlanilha, TemUmMáximoDeLinhasDeColunasEDeCélulas) {
    const std::string recusa = "A planilha pode ter no máximo 10000 linhas, 10000 colunas e 2000000 células!";
    EXPECT_EQ(recusaDoTamanho(10000, 200), "");
    EXPECT_EQ(recusaDoTamanho(2, 10000), "");
    for (const auto& [linhas, colunas] :
         std::vector<std::pair<double, double>>{{10001, 1}, {1, 10001}, {10000, 201}, {1e20, 1}, {1, 1e300}})
        EXPECT_EQ(recusaDoTamanho(linhas, colunas), recusa) << linhas << ' ' << colunas;
}

TEST_F(EntradaNaPlanilha, NomearMostraOsCabeçalhosEDeixaAEntrada) {
    entrada() = "7";
    grade().escrever(1, 0, "outro");
    nomearCélula(planilhaDeTeste());
    EXPECT_EQ(telaDeTeste->nomeDaCélula.texto, "outro : " + grade().célula(0, 1));
    EXPECT_EQ(entrada(), "7");
}

TEST_F(EntradaNaPlanilha, ContaEEsvaziaSóAsCélulasDeDados) {
    grade().escrever(1, 0, "1");
    grade().escrever(1, 1, "a");
    grade().escrever(2, 2, "b");
    EXPECT_EQ(textoDePreenchidas(grade()), "Células preenchidas: 2 de 4");
    esvaziarDados(grade());
    EXPECT_EQ(textoDePreenchidas(grade()), "Células preenchidas: 0 de 4");
    EXPECT_EQ(grade().célula(1, 0), "1");
}

TEST_F(EntradaNaPlanilha, UmaCélulaEscritaÉContadaATela) {
    auto planilha = planilhaDeTeste();
    planilha.aoMudar = [] { anotarEvento("escrita"); };
    eventos.clear();
    entrada() = "7";
    sairDaCélula(planilha);
    EXPECT_EQ(eventos, Eventos{"escrita"});
}

TEST_F(EntradaNaPlanilha, UmBlocoEntraCélulaPorCélulaNoFormatoDeCadaColunaEVoltaAoComeço) {
    entrada() = "não digitado até o fim";
    colar(planilhaDeTeste(), {{"2", "0.1236"}, {"4.005", "1e1"}});
    EXPECT_EQ(grade().célula(1, 1), "2.00");
    EXPECT_EQ(grade().célula(1, 2), "0.124");
    EXPECT_EQ(grade().célula(2, 1), "4.00"); // the double nearest to 4.005 is below it
    EXPECT_EQ(grade().célula(2, 2), "10.000");
    EXPECT_EQ(atual(), (std::pair{1, 1}));
    EXPECT_EQ(entrada(), "2.00");
    EXPECT_EQ(controleComFoco, &telaDeTeste->entrada);
    EXPECT_EQ(caderno, Eventos{});
}

TEST_F(EntradaNaPlanilha, UmBlocoComeçaNaCélulaAtual) {
    irParaCélula(planilhaDeTeste(), 1, 2);
    colar(planilhaDeTeste(), {{"5"}, {"6"}});
    EXPECT_EQ(grade().célula(1, 1), "");
    EXPECT_EQ(grade().célula(1, 2), "5.000");
    EXPECT_EQ(grade().célula(2, 2), "6.000");
    EXPECT_EQ(atual(), (std::pair{1, 2}));
}

TEST_F(EntradaNaPlanilha, UmBlocoQueNãoServeÉRecusadoInteiro) {
    irParaCélula(planilhaDeTeste(), 1, 2);
    grade().escrever(1, 1, "9.00");
    const std::string cabe = "não cabe a partir da célula 1 : Intensidade - i (mm/h)!";
    const std::vector<std::pair<Bloco, std::string>> recusados = {
        {{{"1", "2"}}, "o bloco, de 1 x 2 células, " + cabe},
        {{{"1"}, {"2"}, {"3"}}, "o bloco, de 3 x 1 células, " + cabe},
        {{{"1"}, {"mm"}}, "o valor da célula 2 : Intensidade - i (mm/h) não é um número!"},
        {{{"1,234.5"}}, "o valor da célula 1 : Intensidade - i (mm/h) não é um número!"},
        {{{"1e999"}}, "o valor da célula 1 : Intensidade - i (mm/h) não é um número!"},
        {{{"1"}, {""}}, "o valor da célula 2 : Intensidade - i (mm/h) está vazio!"},
    };
    for (const auto& [bloco, recusa] : recusados) {
        caderno.clear();
        entrada() = "7";
        colar(planilhaDeTeste(), bloco);
        EXPECT_EQ(caderno, Eventos{"mensagem: Nada foi colado: " + recusa});
        EXPECT_EQ(grade().célula(1, 1), "9.00");
        EXPECT_EQ(grade().célula(1, 2), "");
        EXPECT_EQ(grade().célula(2, 2), "");
        EXPECT_EQ(entrada(), "7");
        EXPECT_EQ(atual(), (std::pair{1, 2}));
    }
}

TEST_F(EntradaNaPlanilha, UmBlocoÉContadoÀTelaUmaVezQuandoEstáInteiro) {
    auto planilha = planilhaDeTeste();
    planilha.aoMudar = [] { anotarEvento("escrita " + telaDeTeste->grade.célula(2, 2)); };
    eventos.clear();
    colar(planilha, {{"1", "2"}, {"3", "4"}});
    std::erase(eventos, "entrada");
    EXPECT_EQ(eventos, Eventos{"escrita 4.000"});
}

TEST_F(EntradaNaPlanilha, UmBlocoEsperaUmaContagemNumérica) {
    telaDeTeste->contagem.texto = "dois";
    colar(planilhaDeTeste(), {{"1"}});
    EXPECT_EQ(caderno, Eventos{"mensagem: Insira valores numéricos!"});
    EXPECT_EQ(controleComFoco, &telaDeTeste->contagem);
    EXPECT_EQ(grade().célula(1, 1), "");
}

} // namespace
} // namespace varenta::teste
