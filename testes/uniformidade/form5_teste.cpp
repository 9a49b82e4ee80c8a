#include "uniformidade/form5.h"

#include "apoio/faixa_feita_a_mao.h"
#include "comum/numeros.h"

#include <algorithm>
#include <functional>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

constexpr auto pedeCi =
    "mensagem: Insira um valor de comprimento inicial (Ci) de faixa, entre 0 e o raio de alcance!";
constexpr auto pedeCf =
    "mensagem: Insira um valor de comprimento final (Cf) de faixa, entre 0 e o raio de alcance!";
constexpr auto valorInválido = "mensagem: Valor Inválido!";
constexpr auto foraDoRaio = "mensagem: Valor deve estar: entre zero e o raio de alcance!";
constexpr auto nãoNumérico = "mensagem: Insira um valor numérico!";

class AoLongoDaFaixa : public FaixaFeitaÀMão {
  protected:
    /// `CUC`, mean and `UD` as shown.
    static Textos início() { return {form5->Label2.texto, form5->Label1.texto, form5->Label58.texto}; }
    static Textos final() { return {form5->Label3.texto, form5->Label4.texto, form5->Label60.texto}; }
    static Textos centro() { return {form5->Label5.texto, form5->Label7.texto, form5->Label66.texto}; }
    static Textos toda() { return {form5->Label6.texto, form5->Label8.texto, form5->Label63.texto}; }

    static void resultados(bool habilitados) {
        for (const auto* botão : {&form5->Command3, &form5->Command12, &form5->Command15})
            EXPECT_EQ(botão->habilitado, habilitados) << botão->texto;
    }
    /// Calculates, and requires that the event then disables the buttons of the results.
    template <class Evento>
    void exigirQueDesabilite(Evento&& evento) {
        calcular();
        resultados(true);
        evento();
        resultados(false);
    }
    static void carregadas(std::initializer_list<TelaBase*> esperadas) {
        for (auto* tela : TelaBase::todas())
            EXPECT_EQ(tela->carregada(), std::ranges::count(esperadas, tela) == 1) << tela->nome();
    }
    static const Linha& traço(std::size_t n) { return std::get<Linha>(form5->Picture2.traços.at(n)); }
    /// 27 + 14 thin and 10 + 5 heavy lines.
    static constexpr std::size_t traçosDaMalha = 56;
};

TEST_F(AoLongoDaFaixa, AbreComOsDadosDasTelasAnterioresEListasNoSegundoItem) {
    abrirForm5();
    EXPECT_EQ(form5->Caption, "Uniformidade ao Longo da Faixa Irrigada com Vento - Aspersor KELMO-TX 15");
    EXPECT_EQ(centro(), (Textos{form4->Label16.texto, form4->Label17.texto, form4->Label33.texto}));
    EXPECT_EQ(form5->Label43.texto, "6.0");
    EXPECT_EQ(form5->Label37.texto, form4->Label1.texto);
    EXPECT_EQ(form5->Label38.texto, form4->Label2.texto);
    EXPECT_EQ(form5->Label40.texto, "Ângulo: 240 graus");
    EXPECT_EQ(form5->Label39.texto, "Espaçamento: " + form4->cmbEspaçamento.texto + " m");
    EXPECT_EQ(form5->Label50.texto, form4->Label8.texto);
    EXPECT_EQ(form5->Label51.texto, form4->Label7.texto);
    EXPECT_EQ(form5->Label52.texto, "Velocidade: 50 m/h");
    EXPECT_EQ(form5->Label53.texto, "Velocidade do Vento: 0.0 m/s");
    EXPECT_EQ(form5->Label54.texto, "Direção do Vento: 0º");
    EXPECT_EQ(form5->Label68.texto, "E = " + form4->cmbEspaçamento.texto + " m");
    EXPECT_EQ(form5->Label69.texto, "240º");
    EXPECT_EQ(form5->txtMan.texto, "300");
    EXPECT_EQ(form5->Combo1.texto, "Início da Movimentação");
    EXPECT_EQ(form5->Combo2.texto, "Fim da Movimentação");
    EXPECT_EQ(form5->txtOutro.texto, "0");
    EXPECT_EQ(form5->Text3.texto, "0");
    resultados(false);
    EXPECT_TRUE(form5->Command15.visivel);
    for (const auto* botão : {&form5->Command9, &form5->Command11, &form5->Command16})
        EXPECT_FALSE(botão->visivel) << botão->texto;
    EXPECT_EQ(form5->Picture2.traços.size(), traçosDaMalha);
    EXPECT_FALSE(form4.visivel);
    EXPECT_TRUE(form5.visivel);
}

TEST_F(AoLongoDaFaixa, OTítuloTemONomeDoAspersorEscolhido) {
    abrirForm5("TX20B");
    EXPECT_EQ(form5->Caption, "Uniformidade ao Longo da Faixa Irrigada com Vento - Aspersor KELMO-TX 20");
    abrirForm5("TX30B");
    EXPECT_EQ(form5->Caption, "Uniformidade ao Longo da Faixa Irrigada com Vento - Aspersor KELMO-TX 30");
}

TEST_F(AoLongoDaFaixa, FeitaÀMãoSemParadas) {
    form4->Label16.texto = "91.00";
    form4->Label17.texto = "0.60";
    form4->Label33.texto = "81.00";
    calcular();
    // Rows 3 and 4: 0 0 0.5 0.5, whose lowest quarter is 0 and whose deviations of 1 are all their sum.
    EXPECT_EQ(início(), (Textos{"0.00", "0.25", "0.00"}));
    // Row 7 alone: 0.5 0.5.
    EXPECT_EQ(final(), (Textos{"100.00", "0.50", "100.00"}));
    EXPECT_EQ(centro(), (Textos{"91.00", "0.60", "81.00"}));
    // Rows 3 to 7: 0 0 0.5 0.5 1 1 1 1 0.5 0.5, mean 0.6; a quarter of 10 is 2.5, so 0 0 0.5; deviations 3.2
    // of 6.
    EXPECT_EQ(toda(), (Textos{"46.67", "0.60", "27.78"}));
    EXPECT_EQ(form8->Label1.texto, "CUC = 46.67 %");
    EXPECT_EQ(form8->Label2.texto, "Imédio = 0.60 mm");
    EXPECT_EQ(form8->Label3.texto, "UD = 27.78 %");
    EXPECT_EQ(form8->Label4.texto, "Início da Faixa Irrigada: 1 m"); // (3 - 2.5) x 2
    EXPECT_EQ(form8->Label5.texto, "Final da Faixa Irrigada: 9 m");
    resultados(true);
}

TEST_F(AoLongoDaFaixa, FeitaÀMãoComParadas) {
    pararNasPontas();
    calcular();
    // Depths of the rows 1 to 9: 0 0 2 2.5 1 1 5.5 5 0, twice each. Rows 2 to 4: mean 1.5, deviations 6 of 9.
    EXPECT_EQ(início(), (Textos{"33.33", "1.50", "0.00"}));
    // Rows 7 to 9: mean 3.5, deviations 14 of 21.
    EXPECT_EQ(final(), (Textos{"33.33", "3.50", "0.00"}));
    // Rows 2 to 9: mean 2.125, deviations 26.5 of 34, the lowest four all 0.
    EXPECT_EQ(toda(), (Textos{"22.06", "2.13", "0.00"}));
    EXPECT_EQ(form8->Label4.texto, "Início da Faixa Irrigada: -1 m");
    EXPECT_EQ(form8->Label5.texto, "Final da Faixa Irrigada: 13 m");
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(AoLongoDaFaixa, OGráficoTemAsEscalasACurvaEAsMarcas) {
    calcular();
    // The largest mean 1 makes sixths of 0.2; 16 m from -3 to 13 make eighths of 2 and one more.
    EXPECT_EQ(textos(form5->Label34), (Textos{"0.0", "0.2", "0.4", "0.6", "0.8", "1.0", "1.2"}));
    EXPECT_EQ(textos(form5->Label33), (Textos{"-3", "0", "3", "6", "9", "12", "15", "18", "21"}));
    ASSERT_EQ(form5->Picture2.traços.size(), traçosDaMalha + 8 + 2);
    const auto exigir = [](const Linha& l, double x1, double y1, double x2, double y2, Cor cor) {
        EXPECT_NEAR(l.x1, x1, 1e-9);
        EXPECT_NEAR(l.y1, y1, 1e-9);
        EXPECT_NEAR(l.x2, x2, 1e-9);
        EXPECT_NEAR(l.y2, y2, 1e-9);
        EXPECT_EQ(l.cor, cor);
        EXPECT_EQ(l.largura, 2);
    };
    const auto x = [](double y) { return 56 + 385 * (y + 3) / 24; };
    exigir(traço(traçosDaMalha), 56, 217, x(-1), 217, cores::azul);
    exigir(traço(traçosDaMalha + 3), x(3), 217 - 87.5, x(5), 42, cores::azul); // 0.5 and 1 of 1.2
    exigir(traço(traçosDaMalha + 7), x(11), 217, x(13), 217, cores::azul);
    // At 0 m the curve is still at 0; at 10 m, halfway from 0.5 to 0, at 0.25.
    exigir(traço(traçosDaMalha + 8), x(0), 217, x(0), 217, cores::vermelho);
    exigir(traço(traçosDaMalha + 9), x(10), 217, x(10), 217 - 43.75, cores::vermelho);
}

TEST_F(AoLongoDaFaixa, UmaFaixaMaisLongaDoQueAMovimentaçãoTemAsMarcasForaDela) {
    escolher("Combo1", "Outro Valor");
    escolher("Combo2", "Outro Valor");
    digitar("txtOutro", "2");
    digitar("Text3", "1");
    calcular();
    ASSERT_EQ(form5->Picture2.traços.size(), traçosDaMalha + 8 + 2);
    const double início = lerPrefixo(form5->Label33.front().texto),
                 fim = lerPrefixo(form5->Label33.back().texto);
    EXPECT_NEAR(traço(traçosDaMalha + 8).x1, 56 + 385 * (-2 - início) / (fim - início), 1e-9);
    EXPECT_NEAR(traço(traçosDaMalha + 9).x1, 56 + 385 * (11 - início) / (fim - início), 1e-9);
}

TEST_F(AoLongoDaFaixa, IgualAoRaioNãoTemMarca) {
    escolher("Combo1", "Igual ao Raio");
    calcular();
    EXPECT_EQ(form5->Picture2.traços.size(), traçosDaMalha + 8 + 1);
    escolher("Combo2", "Igual ao Raio");
    calcular();
    EXPECT_EQ(form5->Picture2.traços.size(), traçosDaMalha + 8);
}

TEST_F(AoLongoDaFaixa, ALeituraDoGráficoSegueAsLegendas) {
    calcular();
    const auto mouse = [](double x, double y) { atos::moverMouse(alvo(form5, "Picture2"), x, y); };
    mouse(56, 217);
    EXPECT_EQ(form5->lblEf.texto, "Ef = -3.000 m");
    EXPECT_EQ(form5->lblI.texto, "I = 0.000 mm");
    EXPECT_EQ(form5.ponteiro, Ponteiro::cruz);
    mouse(441, 7);
    EXPECT_EQ(form5->lblEf.texto, "Ef = 21.000 m");
    EXPECT_EQ(form5->lblI.texto, "I = 1.200 mm");
    mouse(442, 7);
    EXPECT_EQ(form5->lblEf.texto, "");
    EXPECT_EQ(form5->lblI.texto, "");
    EXPECT_EQ(form5.ponteiro, Ponteiro::padrão);
}

TEST_F(AoLongoDaFaixa, OVolumeAplicadoEODoCampoDiferemPoucosPorCentoComCadaModelo) {
    for (const char* item : {"TX15B", "TX20B", "TX30B"}) {
        abrirForm5(item, "2.0");
        clicar("Command10");
        clicar("Command12");
        const std::string prefixo = "Erro Volumétrico: ";
        ASSERT_TRUE(form9->Label5.texto.starts_with(prefixo)) << form9->Label5.texto;
        EXPECT_LT(lerPrefixo(form9->Label5.texto.substr(prefixo.size())), 4) << item;
    }
}

// Which lists, boxes and checks act, and what they disable.

TEST_F(AoLongoDaFaixa, IgualAoRaioMostraORaioInteiroEDesligaAParada) {
    form1->lblRaioAlcance.texto = "42.70";
    escolher("Combo1", "Igual ao Raio");
    escolher("Combo2", "Igual ao Raio");
    EXPECT_EQ(form5->txtOutro.texto, "43");
    EXPECT_EQ(form5->Text3.texto, "43");
    for (const auto* caixa : {&form5->txtOutro, &form5->Text3, &form5->txtParada, &form5->Text4})
        EXPECT_FALSE(caixa->habilitado);
    for (const auto* parada : {&form5->chkParada, &form5->Check2}) EXPECT_FALSE(parada->habilitado);
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(AoLongoDaFaixa, OutroValorEsvaziaHabilitaEPedeOComprimento) {
    escolher("Combo1", "Outro Valor");
    EXPECT_EQ(form5->txtOutro.texto, "");
    EXPECT_TRUE(form5->txtOutro.habilitado);
    EXPECT_TRUE(form5->chkParada.habilitado);
    EXPECT_FALSE(form5->chkParada.marcada);
    EXPECT_FALSE(form5->Text3.habilitado);
    escolher("Combo2", "Outro Valor");
    EXPECT_EQ(form5->Text3.texto, "");
    EXPECT_TRUE(form5->Text3.habilitado);
    EXPECT_TRUE(form5->Check2.habilitado);
    EXPECT_EQ(caderno, (Textos{pedeCi, pedeCf}));
}

TEST_F(AoLongoDaFaixa, AMovimentaçãoMostraZeroEDesligaAParadaSemOutraMensagem) {
    pararNasPontas();
    escolher("Combo1", "Início da Movimentação");
    escolher("Combo2", "Fim da Movimentação");
    EXPECT_EQ(form5->txtOutro.texto, "0");
    EXPECT_EQ(form5->Text3.texto, "0");
    for (const auto* parada : {&form5->chkParada, &form5->Check2}) {
        EXPECT_FALSE(parada->marcada);
        EXPECT_FALSE(parada->habilitado);
    }
    // The nested Click emptied and disabled the times.
    for (const auto* tempo : {&form5->txtParada, &form5->Text4}) {
        EXPECT_EQ(tempo->texto, "");
        EXPECT_FALSE(tempo->habilitado);
    }
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(AoLongoDaFaixa, MarcarAParadaSugereOTempoHabilitaACaixaELevaOFocoAEla) {
    escolher("Combo1", "Outro Valor");
    digitar("txtOutro", "2");
    caderno.clear();
    clicar("chkParada");
    // 2 m at 40 m/h.
    EXPECT_EQ(caderno, Textos{"mensagem: Insira um valor de tempo de parada! O programa sugere: 3 min!"});
    EXPECT_TRUE(form5->txtParada.habilitado);
    EXPECT_TRUE(form5->lblTpi.habilitado);
    EXPECT_TRUE(form5->lblTpiUnidade.habilitado);
    EXPECT_EQ(controleComFoco, &form5->txtParada);
    EXPECT_FALSE(form5->Text4.habilitado);
    digitar("txtParada", "7");
    caderno.clear();
    clicar("chkParada");
    EXPECT_EQ(caderno, Textos{});
    EXPECT_EQ(form5->txtParada.texto, "");
    EXPECT_FALSE(form5->txtParada.habilitado);
    EXPECT_FALSE(form5->lblTpi.habilitado);
    EXPECT_FALSE(form5->lblTpiUnidade.habilitado);
}

TEST_F(AoLongoDaFaixa, MarcarAParadaDoFimTemOsSeusPrópriosControles) {
    escolher("Combo2", "Outro Valor");
    digitar("Text3", "3");
    caderno.clear();
    clicar("Check2");
    // 3 m at 40 m/h take 4.5 min, a tie that goes away from 0.
    EXPECT_EQ(caderno, Textos{"mensagem: Insira um valor de tempo de parada! O programa sugere: 5 min!"});
    EXPECT_TRUE(form5->Text4.habilitado);
    EXPECT_TRUE(form5->lblTpf.habilitado);
    EXPECT_TRUE(form5->lblTpfUnidade.habilitado);
    EXPECT_EQ(controleComFoco, &form5->Text4);
    EXPECT_FALSE(form5->txtParada.habilitado);
}

TEST_F(AoLongoDaFaixa, MarcarAParadaSemComprimentoADesligaComUmaSóMensagem) {
    escolher("Combo1", "Outro Valor");
    escolher("Combo2", "Outro Valor");
    caderno.clear();
    clicar("chkParada");
    clicar("Check2");
    EXPECT_EQ(caderno,
              (Textos{"mensagem: Insira uma distância inicial!", "mensagem: Insira uma distância final!"}));
    for (const auto* parada : {&form5->chkParada, &form5->Check2}) EXPECT_FALSE(parada->marcada);
    for (const auto* tempo : {&form5->txtParada, &form5->Text4}) EXPECT_FALSE(tempo->habilitado);
}

TEST_F(AoLongoDaFaixa, CadaEventoDasEntradasDesabilitaOsResultados) {
    exigirQueDesabilite([&] { digitar("txtMan", "12"); });
    exigirQueDesabilite([&] { escolher("Combo1", form5->Combo1.texto); });
    exigirQueDesabilite([&] { escolher("Combo2", form5->Combo2.texto); });
    exigirQueDesabilite([&] { pararNasPontas(); });
    exigirQueDesabilite([&] { digitar("txtOutro", "1"); });
    exigirQueDesabilite([&] { digitar("txtParada", "1"); });
    exigirQueDesabilite([&] { digitar("Text3", "1"); });
    exigirQueDesabilite([&] { digitar("Text4", "1"); });
    exigirQueDesabilite([&] { clicar("chkParada"); });
    exigirQueDesabilite([&] { clicar("Check2"); });
    exigirQueDesabilite([&] {
        clicar("chkParada");
        clicar("chkParada");
    });
    calcular();
    resultados(true);
}

TEST_F(AoLongoDaFaixa, ParadaMarcadaSemComprimentoTambémDesabilitaOsResultados) {
    escolher("Combo1", "Outro Valor");
    digitar("txtOutro", "2");
    calcular();
    form5->txtOutro.texto.clear();
    clicar("chkParada");
    EXPECT_FALSE(form5->chkParada.marcada);
    resultados(false);
}

TEST_F(AoLongoDaFaixa, OsBotõesDoOutroAspersorFicamDesabilitados) {
    calcular();
    EXPECT_FALSE(form5->Command11.habilitado);
    EXPECT_FALSE(form5->Command16.habilitado);
}

// What is refused, and what stands after it.

class RecusasDaFaixa : public AoLongoDaFaixa {
  protected:
    /// Both buttons that check refuse with these messages, and change no result.
    void exigirRecusa(const Textos& mensagens, const std::function<void()>& preparar) {
        for (const char* botão : {"Command10", "Command15"}) {
            preparar();
            form5->Command15.habilitado = true; // as a calculation before the change had left it
            form5->Label1.texto = "antes";
            caderno.clear();
            ampulhetas.clear();
            clicar(botão);
            EXPECT_EQ(caderno, mensagens);
            EXPECT_EQ(form5->Label1.texto, "antes");
            EXPECT_FALSE(form_grafFinal.carregada());
            EXPECT_FALSE(form5->Command3.habilitado);
            EXPECT_FALSE(form5->Command12.habilitado);
            EXPECT_EQ(form5.ponteiro, Ponteiro::padrão);
            EXPECT_EQ(std::ranges::count(ampulhetas, true), std::ranges::count(ampulhetas, false));
        }
    }
    void comParada(const char* tempo) {
        escolher("Combo1", "Outro Valor");
        digitar("txtOutro", "2");
        if (!form5->chkParada.marcada) clicar("chkParada");
        digitar("txtParada", tempo);
    }
};

TEST_F(RecusasDaFaixa, ParadaSemTempoÉDesligadaEOCálculoSegue) {
    pararNasPontas();
    digitar("txtParada", "");
    digitar("Text4", "");
    calcular();
    EXPECT_FALSE(form5->chkParada.marcada);
    EXPECT_FALSE(form5->Check2.marcada);
    EXPECT_FALSE(form5->txtParada.habilitado);
    EXPECT_FALSE(form5->Text4.habilitado);
    EXPECT_EQ(caderno, Textos{});
    // Without the stops row 3 is dry: rows 2 to 4 hold 0 0 0 0 0.5 0.5.
    EXPECT_EQ(form5->Label1.texto, "0.17");
    resultados(true);
}

TEST_F(RecusasDaFaixa, TempoQueNãoÉNúmero) {
    exigirRecusa({nãoNumérico}, [&] { comParada("doze"); });
    EXPECT_EQ(form5->txtParada.texto, "doze");
}

TEST_F(RecusasDaFaixa, TempoDoFimQueNãoÉNúmero) {
    exigirRecusa({nãoNumérico}, [&] {
        escolher("Combo2", "Outro Valor");
        digitar("Text3", "2");
        clicar("Check2");
        digitar("Text4", "1 h");
    });
}

TEST_F(RecusasDaFaixa, TempoNegativo) {
    exigirRecusa({"mensagem: O tempo de parada não pode ser negativo!"}, [&] { comParada("-1"); });
}

TEST_F(RecusasDaFaixa, CarreadorVazioNãoDizNada) {
    exigirRecusa({}, [&] { digitar("txtMan", ""); });
    EXPECT_EQ(form5->txtMan.texto, "");
}

TEST_F(RecusasDaFaixa, CarreadorQueNãoÉNúmero) {
    exigirRecusa({nãoNumérico}, [&] { digitar("txtMan", "longo"); });
    EXPECT_EQ(form5->txtMan.texto, "longo");
}

TEST_F(RecusasDaFaixa, VelocidadeEEspaçamentoVaziosQueNenhumCaminhoDeixa) {
    exigirRecusa({"mensagem: Entre com valor de velocidade!"}, [&] {
        form7->Text1.texto.clear();
        form4->cmbEspaçamento.texto.clear();
    });
    exigirRecusa({"mensagem: Entre com valor de espaçamento!"},
                 [&] { form7->Text1.texto = std::string("40"); });
}

TEST_F(RecusasDaFaixa, CarreadorDeMilMetrosVoltaATrezentos) {
    exigirRecusa({"mensagem: O comprimento do carreador deve ser menor que 1000 m!"},
                 [&] { digitar("txtMan", "1000"); });
    EXPECT_EQ(form5->txtMan.texto, "300");
}

TEST_F(RecusasDaFaixa, CarreadorCurtoDizOMenorEVoltaATrezentos) {
    // 2 x 2 x (1 + 1).
    exigirRecusa({"mensagem: O comprimento do carreador deve ser maior ou igual a: 8 m!"},
                 [&] { digitar("txtMan", "7.99"); });
    EXPECT_EQ(form5->txtMan.texto, "300");
    digitar("txtMan", "8");
    caderno.clear();
    calcular();
    EXPECT_EQ(caderno, Textos{});
    resultados(true);
}

TEST_F(RecusasDaFaixa, AsVerificaçõesSeguemUmaOrdem) {
    // The stop's time comes before the lane, the lane before the length of an end.
    comParada("doze");
    digitar("txtMan", "longo");
    form5->txtOutro.texto = std::string("99");
    form7->Text1.texto.clear();
    caderno.clear();
    calcular();
    EXPECT_EQ(caderno, Textos{nãoNumérico});
    digitar("txtParada", "12");
    calcular();
    digitar("txtMan", "1");
    calcular();
    form7->Text1.texto = std::string("40");
    calcular();
    calcular();
    EXPECT_EQ(caderno,
              (Textos{nãoNumérico, nãoNumérico, "mensagem: Entre com valor de velocidade!",
                      "mensagem: O comprimento do carreador deve ser maior ou igual a: 8 m!", foraDoRaio}));
}

TEST_F(RecusasDaFaixa, OutroValorVazio) {
    exigirRecusa({valorInválido}, [&] { escolher("Combo1", "Outro Valor"); });
    exigirRecusa({valorInválido}, [&] {
        digitar("txtOutro", "2");
        escolher("Combo2", "Outro Valor");
    });
}

TEST_F(RecusasDaFaixa, OutroValorForaDoRaio) {
    escolher("Combo1", "Outro Valor");
    escolher("Combo2", "Outro Valor");
    exigirRecusa({foraDoRaio}, [&] { digitar("txtOutro", "3.01"); });
    exigirRecusa({foraDoRaio}, [&] { digitar("txtOutro", "-0.01"); });
    digitar("txtOutro", "3");
    exigirRecusa({foraDoRaio}, [&] { digitar("Text3", "3.01"); });
    digitar("Text3", "0");
    caderno.clear();
    calcular();
    EXPECT_EQ(caderno, Textos{});
    resultados(true);
}

// What a run-time error leaves.

TEST_F(AoLongoDaFaixa, SóZerosÉEstouroDepoisDaTabela) {
    secarAspersor();
    form5->Label1.texto = "antes";
    calcular();
    EXPECT_EQ(caderno, Textos{"erro: Estouro"});
    EXPECT_EQ(form8->flexGrid_C.linhas, 10);
    EXPECT_EQ(form8->flexGrid_C.célula(5, 1), "0.000");
    EXPECT_EQ(form5->Label1.texto, "antes");
    EXPECT_EQ(form5->Picture2.traços.size(), traçosDaMalha);
    resultados(false);
    EXPECT_EQ(ampulhetas, (std::vector<bool>{true, false}));
    EXPECT_EQ(form5.ponteiro, Ponteiro::padrão);
}

TEST_F(AoLongoDaFaixa, IgualAoRaioUmaLinhaAlémDoCampoÉÍndiceForaEOInícioFica) {
    form1->lblRaioAlcance.texto = "5.05";
    calcularPerfilTransversal();
    ASSERT_EQ(form7->flexA.linhas, 7);
    digitar("txtMan", "13.96");
    escolher("Combo2", "Igual ao Raio");
    form4->Label16.texto = "não copiado";
    const auto centroAntes = centro();
    ampulhetas.clear();
    calcular();
    EXPECT_EQ(caderno, Textos{"erro: Índice fora dos limites"});
    // The rows 4 to 6 hold 2, 4 and 6 steps of 0.5 mm, twice each: mean 2, lowest 1 1, deviations 4 of 12.
    EXPECT_EQ(início(), (Textos{"66.67", "2.00", "50.00"}));
    EXPECT_EQ(final(), (Textos{"", "", ""}));
    EXPECT_EQ(centro(), centroAntes);
    EXPECT_EQ(toda(), (Textos{"", "", ""}));
    EXPECT_EQ(form8->flexGrid_C.linhas, 13);
    EXPECT_EQ(form8->Label4.texto, "");
    resultados(false);
    EXPECT_EQ(ampulhetas, (std::vector<bool>{true, false}));
}

TEST_F(AoLongoDaFaixa, EscalaDeTopoZeroÉErroDepoisDosNúmeros) {
    // A mean of 0.2 mm at most makes the sixth 0.03, written "0.0".
    usar("2");
    calcular();
    EXPECT_EQ(caderno, Textos{"erro: Estouro"}); // the first row is dry: 0 / 0
    EXPECT_EQ(toda(), (Textos{"46.67", "0.12", "27.78"}));
    EXPECT_EQ(form5->Label34[6].texto, "0.0");
    EXPECT_EQ(form5->Picture2.traços.size(), traçosDaMalha);
    resultados(false);
}

TEST_F(AoLongoDaFaixa, AAmpulhetaVaiEVoltaEmCadaCálculo) {
    calcular();
    clicar("Command12");
    clicar("Command15");
    EXPECT_EQ(ampulhetas, (std::vector<bool>{true, false, true, false, true, false}));
    EXPECT_EQ(form5.ponteiro, Ponteiro::padrão);
}

TEST_F(AoLongoDaFaixa, AvisaEmQuantosPontosOModeloNãoMereceConfiança) {
    abrirForm7();
    atos::rolar(alvo(form7, "HScroll2"), 100);
    atos::rolar(alvo(form7, "HScroll1"), 60);
    for (const char* nome : {"Command2", "cmdUniformidade"}) atos::clicar(alvo(form7, nome));
    for (const char* nome : {"Command8", "Command9", "Command5"}) atos::clicar(alvo(form4, nome));
    ASSERT_FALSE(form7->lblAviso.texto.empty());
    const auto avisos = caderno;
    caderno.clear();
    clicar("Command10");
    EXPECT_EQ(caderno, avisos);
    EXPECT_EQ(form5->lblAviso.texto, form7->lblAviso.texto);
}

// Which screens are there after each way.

TEST_F(AoLongoDaFaixa, VisualizarValoresMostraATabelaComONomeDoAspersorNoTítulo) {
    calcular();
    EXPECT_FALSE(form8.visivel);
    clicar("Command3");
    EXPECT_TRUE(form8.visivel);
    EXPECT_TRUE(form5.visivel);
    EXPECT_EQ(form8->Caption, "Distribuição de Água na Faixa Irrigada - Aspersor KELMO-TX 15");
}

TEST_F(AoLongoDaFaixa, VoltarDescarregaAFaixaEOsSeusResultadosEMostraForm4) {
    calcular();
    clicar("Command3");
    clicar("Command12");
    clicar("Command15");
    carregadas({&form3, &form1, &form7, &form4, &form5, &form8, &form9, &form_grafFinal});
    clicar("Command5");
    carregadas({&form3, &form1, &form7, &form4});
    EXPECT_TRUE(form4.visivel);
    // On again, everything is as new.
    atos::clicar(alvo(form4, "Command5"));
    EXPECT_EQ(form5->txtMan.texto, "300");
    EXPECT_EQ(toda(), (Textos{"", "", ""}));
    resultados(false);
}

TEST_F(AoLongoDaFaixa, FecharTerminaOCaminhoTodo) {
    calcular();
    clicar("Command3");
    clicar("Command12");
    clicar("Command15");
    clicar("Command2");
    carregadas({&form3});
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

TEST_F(AoLongoDaFaixa, ACaixaDeFecharTambém) {
    calcular();
    atos::fechar(form5);
    carregadas({&form3});
    EXPECT_TRUE(form3.visivel);
}

} // namespace
} // namespace varenta::teste
