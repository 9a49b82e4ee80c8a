#include "uniformidade/form9.h"

#include "apoio/faixa_feita_a_mao.h"
#include "apoio/pasta_temporaria.h"
#include "comum/numeros.h"

#include <algorithm>
#include <cmath>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

const Textos cabeçalho{"No",
                       "Lâmina (mm)",
                       "Área Ad. Irrigada (%)",
                       "Ef. Aplicação (%)",
                       "Ef. Armazenamento (%)",
                       "Vol. Excesso (m³)",
                       "Vol. Déficit (m³)"};

/// The strip of 1000 mm/h: depths of 50 and 100 mm on cells of 4 m², mean 60 and deviation 37.42 over the
/// rows 3 to 7. 10 m³/h for 10 m at 40 m/h make 2.5 m³, of which the field holds 600 mm x 4 m² = 2.4.
class Eficiências : public FaixaFeitaÀMão {
  protected:
    void SetUp() override {
        FaixaFeitaÀMão::SetUp();
        usar("1000");
        form1->lblVazão.texto = "10";
    }
    /// With the mean depth `Ic` at the centre.
    void analisarCom(std::string Ic) {
        form4->Label17.texto = std::move(Ic);
        calcular();
        clicar("Command12");
    }
    static Textos linha(int l) {
        Textos células;
        for (int c = 0; c < form9->flexA.colunas; ++c) células.push_back(form9->flexA.célula(l, c));
        return células;
    }
    static Textos legendas() {
        return {form9->Label3.texto, form9->Label4.texto, form9->Label5.texto, form9->Label6.texto};
    }
    /// 19 + 11 thin and 9 + 5 heavy lines; 19 + 9 and 9 + 4.
    static constexpr std::size_t malha1 = 44, malha2 = 41;
};

TEST_F(Eficiências, OsVolumesFeitosÀMão) {
    analisarCom("60.00");
    EXPECT_EQ(legendas(), (Textos{"Volume Total Aplicado: 2.50 m³", "Tempo de Irrigação: 0.25 h",
                                  "Erro Volumétrico: 4.00 %", "Volume Perdido nas Extremidades: 0.00 m³"}));
    EXPECT_EQ(form9->Caption, "Análise das Eficiâncias");
    EXPECT_TRUE(form9.visivel);
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(Eficiências, AsParadasSomamTempoEOQueFicaForaDaFaixaSePerde) {
    pararNasPontas();
    digitar("txtOutro", "0");
    digitar("Text3", "0");
    analisarCom("60.00");
    // 0.25 + 0.2 + 0.5 h; depths 200 250 100 100 550 500 on the rows 3 to 8 of the field, the strip's last
    // row is 7: of 3400 mm x 4 m² = 13.6 m³ the 1000 mm of row 8 are lost.
    EXPECT_EQ(legendas(), (Textos{"Volume Total Aplicado: 9.50 m³", "Tempo de Irrigação: 0.95 h",
                                  "Erro Volumétrico: 43.16 %", "Volume Perdido nas Extremidades: 4.00 m³"}));
}

TEST_F(Eficiências, ATabelaComeçaNaPrimeiraCandidataQueNãoPassaDoCentro) {
    analisarCom("60.00");
    // 60.93 at x = 0.51, 59.07 at 0.49: rows 26 to 49.
    EXPECT_EQ(form9->flexA.linhas, 25);
    EXPECT_EQ(linha(0), cabeçalho);
    EXPECT_EQ(linha(1), (Textos{"1", "59.07", "40.00", "69.80", "73.86", "0.65", "0.62"}));
    EXPECT_EQ(linha(2), (Textos{"2", "57.20", "40.00", "68.61", "74.96", "0.68", "0.57"}));
    EXPECT_EQ(linha(24)[0], "24");
    EXPECT_EQ(linha(24)[1], "-3.63"); // below 0, so all cells get it
    EXPECT_EQ(linha(24)[2], "100.00");
    EXPECT_EQ(form9->flexA.alinhamentos, std::vector(7, Alinhamento::centro));
}

TEST_F(Eficiências, CentroAcimaDeTodasMostraTodasAsCandidatas) {
    analisarCom("200.00");
    EXPECT_EQ(form9->flexA.linhas, 50);
    // No cell gets 147.45 mm: all water is useful, 96 % of the volume applied.
    EXPECT_EQ(linha(1), (Textos{"1", "147.45", "0.00", "96.00", "40.69", "0.00", "3.50"}));
    EXPECT_EQ(linha(49)[0], "49");
}

TEST_F(Eficiências, CentroAbaixoDeTodasNãoMostraNenhumaEOsGráficosFicamSóComOsEixos) {
    analisarCom("-10.00");
    EXPECT_EQ(form9->flexA.linhas, 1);
    EXPECT_EQ(linha(0), cabeçalho);
    EXPECT_EQ(form9->Picture1.traços.size(), malha1);
    EXPECT_EQ(form9->Picture2.traços.size(), malha2);
    EXPECT_TRUE(form9.visivel);
}

TEST_F(Eficiências, OsEixosAlcançamTodasAsLâminasMostradas) {
    const auto exigir = [](const Rotulo& início, const Rotulo& fim) {
        const double menor = lerPrefixo(linha(form9->flexA.linhas - 1)[1]), maior = lerPrefixo(linha(1)[1]);
        EXPECT_LE(lerPrefixo(início.texto), std::min(menor, 0.0));
        EXPECT_GE(lerPrefixo(fim.texto), maior);
    };
    for (const char* Ic : {"200.00", "60.00", "5.00"}) {
        analisarCom(Ic);
        exigir(form9->Label26.front(), form9->Label26.back());
        exigir(form9->Label27.front(), form9->Label27.back());
    }
}

TEST_F(Eficiências, AbaixoDeZeroOPassoDoEixoÉOMenorDécimoInteiroQueCabe) {
    analisarCom("200.00");
    const double menor = lerPrefixo(linha(form9->flexA.linhas - 1)[1]), maior = lerPrefixo(linha(1)[1]);
    ASSERT_LT(menor, 0);
    const double passo = lerPrefixo(form9->Label26[1].texto) - lerPrefixo(form9->Label26[0].texto);
    // The first tick lies up to a step below the least depth.
    const auto divisões = static_cast<double>(form9->Label26.size()) - 2;
    EXPECT_GT(passo * divisões, maior - menor);
    EXPECT_LE((passo - 0.1) * divisões, maior - menor + 1e-9);
}

/// How far along the axis with these tick captions a depth lies, from 0 to 1.
double fração(std::span<const Rotulo> rótulos, double Ir) {
    const double início = lerPrefixo(rótulos.front().texto), fim = lerPrefixo(rótulos.back().texto);
    return (Ir - início) / (fim - início);
}

TEST_F(Eficiências, OGráficoDaÁreaTemACurvaEstimadaEmAzulEOsPontosObservadosEmVermelho) {
    analisarCom("60.00");
    const auto& traços = form9->Picture1.traços;
    ASSERT_EQ(traços.size(), malha1 + 23 + 24);
    const auto& curva = std::get<Linha>(traços[malha1]);
    EXPECT_EQ(curva.cor, cores::azul);
    EXPECT_EQ(curva.largura, 2);
    EXPECT_NEAR(curva.x1, 67 + 350 * 0.50993, 0.01);
    EXPECT_NEAR(curva.x2, 67 + 350 * 0.52980, 0.01);
    EXPECT_NEAR(curva.y1, 217 - 210 * fração(form9->Label26, 59.0683), 0.001);
    const auto& ponto = std::get<Arco>(traços[malha1 + 23]);
    EXPECT_EQ(ponto.cor, cores::vermelho);
    EXPECT_NEAR(ponto.cx, 67 + 350 * 0.4, 1e-9);
    EXPECT_NEAR(ponto.cy, curva.y1, 1e-9);
    EXPECT_TRUE(ponto.preenchido);
}

TEST_F(Eficiências, OGráficoDasEficiênciasTemUmaCurvaComPontosParaCadaUma) {
    analisarCom("60.00");
    const auto& traços = form9->Picture2.traços;
    ASSERT_EQ(traços.size(), malha2 + 2 * (23 + 24));
    const auto exigir = [&](std::size_t n, double eficiência, Cor cor) {
        const auto& curva = std::get<Linha>(traços[n]);
        EXPECT_EQ(curva.cor, cor);
        EXPECT_EQ(curva.largura, 2);
        EXPECT_NEAR(curva.x1, 67 + 350 * fração(form9->Label27, 59.0683), 0.001);
        EXPECT_NEAR(curva.y1, 217 - 210 * eficiência / 100, 0.001);
        const auto& ponto = std::get<Arco>(traços[n + 23]);
        EXPECT_EQ(ponto.cor, cores::vermelho);
        EXPECT_NEAR(ponto.cy, curva.y1, 1e-9);
    };
    exigir(malha2, 69.8037, cores::azul);
    exigir(malha2 + 47, 73.8591, cores::verde);
}

TEST_F(Eficiências, AsLeiturasSeguemAsLegendasEForaFicamVazias) {
    analisarCom("60.00");
    const auto mouse = [](const char* desenho, double x, double y) {
        atos::moverMouse(alvo(form9, desenho), x, y);
    };
    mouse("Picture1", 417, 7);
    EXPECT_EQ(form9->lblIr1.texto, "Ir = " + form9->Label26.back().texto + "00 mm");
    EXPECT_EQ(form9->lblAD.texto, "ADobs. e ADest. = 1.000");
    EXPECT_EQ(form9.ponteiro, Ponteiro::cruz);
    mouse("Picture1", 137, 217); // 70 of 350
    EXPECT_EQ(form9->lblIr1.texto, "Ir = " + form9->Label26.front().texto + "00 mm");
    EXPECT_EQ(form9->lblAD.texto, "ADobs. e ADest. = 0.200");
    mouse("Picture1", 66.9, 100);
    EXPECT_EQ(form9->lblIr1.texto, "");
    EXPECT_EQ(form9->lblAD.texto, "");
    EXPECT_EQ(form9.ponteiro, Ponteiro::padrão);
    mouse("Picture2", 417, 7);
    EXPECT_EQ(form9->lblIr2.texto, "Ir = " + form9->Label27.back().texto + "00 mm");
    EXPECT_EQ(form9->lblEf.texto, "Ef. Apl. ou Ef. Arm. = 100.000 %");
    EXPECT_EQ(form9.ponteiro, Ponteiro::cruz);
    mouse("Picture2", 67, 175); // 42 of 210
    EXPECT_EQ(form9->lblIr2.texto, "Ir = " + form9->Label27.front().texto + "00 mm");
    EXPECT_EQ(form9->lblEf.texto, "Ef. Apl. ou Ef. Arm. = 20.000 %");
    mouse("Picture2", 100, 217.1);
    EXPECT_EQ(form9->lblIr2.texto, "");
    EXPECT_EQ(form9->lblEf.texto, "");
    EXPECT_EQ(form9.ponteiro, Ponteiro::padrão);
}

TEST_F(Eficiências, UmaMudançaEmForm5DesabilitaSalvarAtéANovaAnálise) {
    analisarCom("60.00");
    EXPECT_TRUE(form9->Command1.habilitado);
    digitar("txtMan", "12");
    EXPECT_FALSE(form9->Command1.habilitado);
    calcular();
    EXPECT_FALSE(form9->Command1.habilitado);
    clicar("Command12");
    EXPECT_TRUE(form9->Command1.habilitado);
}

TEST_F(Eficiências, OutroValorRecusadoDeixaForm9ComoEstavaESemAbrir) {
    calcular();
    const auto recusar = [&](const char* comprimento, const char* mensagem) {
        caderno.clear();
        // As the list and the box stand after a change; the button is still on from the calculation.
        form5->Combo1.texto = "Outro Valor";
        form5->txtOutro.texto = comprimento;
        clicar("Command12");
        EXPECT_EQ(caderno, Textos{mensagem});
        EXPECT_FALSE(form9.carregada());
    };
    recusar("", "mensagem: Valor Inválido!");
    recusar("3.01", "mensagem: Valor deve estar: entre zero e o raio de alcance!");
    recusar("-1", "mensagem: Valor deve estar: entre zero e o raio de alcance!");
}

TEST_F(Eficiências, FaixaUniformeÉEstouroComOsVolumesJáEscritos) {
    calcular();
    auto& grade = form8->flexGrid_C;
    for (int a = 1; a < grade.linhas; ++a)
        for (int P = 1; P < grade.colunas; ++P) grade.escrever(a, P, "12.500");
    ampulhetas.clear();
    clicar("Command12");
    EXPECT_EQ(caderno, Textos{"erro: Estouro"});
    // 18 cells of 12.5 mm hold 0.9 m³, the 8 of the rows 1, 2, 8 and 9 among them 0.4.
    EXPECT_EQ(legendas(), (Textos{"Volume Total Aplicado: 2.50 m³", "Tempo de Irrigação: 0.25 h",
                                  "Erro Volumétrico: 64.00 %", "Volume Perdido nas Extremidades: 0.40 m³"}));
    EXPECT_EQ(form9->flexA.linhas, 2); // as the screen is born
    EXPECT_FALSE(form9.visivel);
    EXPECT_EQ(ampulhetas, (std::vector<bool>{true, false}));
    EXPECT_EQ(form5.ponteiro, Ponteiro::padrão);
}

TEST_F(Eficiências, MédiaNegativaÉArgumentoInválido) {
    calcular();
    form8->flexGrid_C.escrever(5, 1, "-2000.000");
    clicar("Command12");
    EXPECT_EQ(caderno, Textos{"erro: Chamada de procedimento ou argumento inválido"});
    EXPECT_FALSE(form9.visivel);
}

TEST_F(Eficiências, VazãoZeroÉDivisãoPorZero) {
    form1->lblVazão.texto = "0";
    analisarCom("60.00");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero"});
    EXPECT_FALSE(form9.visivel);
}

TEST_F(Eficiências, LêAsLâminasComTrêsDecimaisDaTabela) {
    calcular();
    form8->flexGrid_C.escrever(5, 1, "200.000");
    clicar("Command12");
    // 100 mm x 4 m² more: 2.8 m³.
    EXPECT_EQ(form9->Label5.texto, "Erro Volumétrico: 12.00 %");
}

TEST_F(Eficiências, VoltarFecharEACaixaDeFecharEscondem) {
    analisarCom("60.00");
    for (const char* nome : {"Command3", "Command2"}) {
        atos::clicar(alvo(form9, nome));
        EXPECT_FALSE(form9.visivel) << nome;
        EXPECT_TRUE(form9.carregada()) << nome;
        clicar("Command12");
        EXPECT_TRUE(form9.visivel) << nome;
    }
    atos::fechar(form9);
    EXPECT_FALSE(form9.visivel);
    EXPECT_EQ(form9->flexA.linhas, 25);
    EXPECT_TRUE(form5.visivel);
}

TEST_F(Eficiências, RelatórioTemATabelaDasEficiênciasNoLugarDaDaFaixa) {
    form4->Label16.texto = "91.00";
    for (auto* rótulo : {&form4->Label1, &form4->Label2, &form4->Label3, &form4->Label4, &form4->Label8,
                         &form4->Label7, &form4->Label37, &form4->Label38, &form5->Label39})
        rótulo->texto = "dado";
    // Rows 48 and 49 alone, worked in the same way as the first rows shown above.
    analisarCom("4.00");
    ASSERT_EQ(form9->flexA.linhas, 3);
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("eficiencias.TXT")};
    atos::clicar(alvo(form9, "Command1"));
    EXPECT_EQ(caderno, Textos{"salvar: Text files|*.TXT|All files|*.* TXT"});
    EXPECT_EQ(pasta.bytes("eficiencias.TXT"),
              "VARENTA - Versão 4.0\r\n"
              "Distribuição de Água na Faixa Irrigada\r\n"
              "\r\n"
              "dado\r\ndado\r\ndado\r\ndado\r\ndado\r\ndado\r\ndado\r\n"
              "Início de Faixa:\r\n"
              "Início da Faixa Irrigada: 1 m\r\n"
              "Tempo de Parada - Tpi 0 min\r\n"
              "CUC 0.00 %\r\n"
              "Imédio 25.00 mm\r\n"
              "Fim da Faixa:\r\n"
              "Final da Faixa Irrigada: 9 m\r\n"
              "Tempo de Parada - Tpf 0 min\r\n"
              "CUC 100.00 %\r\n"
              "Imédio 50.00 mm\r\n"
              "Toda Faixa:\r\n"
              "Comprimento Carreador - Cc 10 m\r\n"
              "CUC Centro da Faixa 91.00 %\r\n"
              "Imédio Centro da Faixa 4.00 mm\r\n"
              "CUC Toda Faixa 46.67 %\r\n"
              "Imédio Toda Faixa 60.00 mm\r\n"
              "dado\r\ndado\r\n"
              "No\tLâmina (mm)\tÁrea Ad. Irrigada (%)\tEf. Aplicação (%)\tEf. Armazenamento (%)\t"
              "Vol. Excesso (m³)\tVol. Déficit (m³)\t\r\n"
              "1\t3.25\t80.00\t4.16\t80.00\t2.30\t0.03\t\r\n"
              "2\t-3.63\t100.00\t-5.81\t100.00\t2.55\t0.00\t\r\n"
              "\r\n");
}

TEST_F(Eficiências, SalvarDesistidoNãoEscreve) {
    analisarCom("60.00");
    arquivos = {std::nullopt};
    atos::clicar(alvo(form9, "Command1"));
    EXPECT_EQ(caderno.size(), 1u);
    EXPECT_TRUE(form9.visivel);
}

} // namespace
} // namespace varenta::teste
