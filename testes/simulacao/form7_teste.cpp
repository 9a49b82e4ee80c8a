#include "simulacao/form7.h"

#include "apoio/pasta_temporaria.h"
#include "apoio/simulacao_feita_a_mao.h"
#include "comum/ajuda.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

class TelaDoPerfilTransversal : public testing::Test {
  protected:
    void SetUp() override { abrirForm7(); }
    void TearDown() override { atos::soltar(); }

    void clicar(std::string_view nome) { atos::clicar(alvo(form7, nome)); }
    void digitar(std::string_view nome, std::string texto) {
        atos::digitar(alvo(form7, nome), std::move(texto));
    }
    void rolar(std::string_view nome, int valor) { atos::rolar(alvo(form7, nome), valor); }
    void arrastar(std::string_view nome, int valor) { atos::arrastar(alvo(form7, nome), valor); }
    void mouse(double x, double y) { atos::moverMouse(alvo(form7, "Picture2"), x, y); }

    /// `Command7`, `cmdUniformidade`, `Command3`, `Command9`: "1" for enabled.
    static std::string caminho() {
        std::string estado;
        for (const auto* botão :
             {&form7->Command7, &form7->cmdUniformidade, &form7->Command3, &form7->Command9})
            estado += botão->habilitado ? '1' : '0';
        return estado;
    }
    /// The state of the four after `ato`, which found them all enabled.
    template <class Ato>
    static std::string caminhoApós(Ato&& ato) {
        for (auto* botão : {&form7->Command7, &form7->cmdUniformidade, &form7->Command3, &form7->Command9})
            botão->habilitado = true;
        ato();
        return caminho();
    }
};

TEST_F(TelaDoPerfilTransversal, NasceComOsSeusPadrões) {
    form7.descarregar();
    form7.carregar();
    EXPECT_EQ(form7->Caption, "Perfil Transversal de Aplicação de Água - Com Vento");
    EXPECT_EQ(form7->Text1.texto, "50");
    EXPECT_EQ((Textos{form7->Text2.texto, form7->Text3.texto, form7->Text4.texto, form7->Text5.texto,
                      form7->Text6.texto, form7->Text7.texto}),
              (Textos{"0.0362", "0.0131", "-0.0097", "0.0026", "0.4003", "-0.3361"}));
    EXPECT_EQ((Textos{form7->Label2.texto, form7->Label17.texto, form7->Label29.texto}),
              (Textos{"0", "0.0", "Vento: 0.0 m/s"}));
    EXPECT_EQ(
        (Textos{form7->Label24.texto, form7->Label33.texto, form7->Label35.texto, form7->Label36.texto}),
        (Textos{"60", "60", "240", "0"}));
    EXPECT_EQ(form7->Label23.texto, "Velocidade = 50 m/h");
    EXPECT_EQ(form7->Labelang.texto, "240º");
    EXPECT_EQ(form7->Label14d.texto, "d =");
    EXPECT_EQ(form7->Label14I.texto, "I =");
    EXPECT_EQ(caminho(), "0000");
}

TEST_F(TelaDoPerfilTransversal, AsFaixasDasBarras) {
    const auto faixa = [](const Rolagem& r) { return std::vector{r.valor, r.mínimo, r.máximo}; };
    EXPECT_EQ(faixa(form7->HScroll1), (std::vector{0, 0, 360}));
    EXPECT_EQ(faixa(form7->HScroll2), (std::vector{0, 0, 100}));
    EXPECT_EQ(faixa(form7->HScroll3), (std::vector{60, 0, 178}));
    EXPECT_EQ(faixa(form7->HScroll4), (std::vector{60, 0, 178}));
    EXPECT_EQ(faixa(form7->HScroll5), (std::vector{0, -360, 360}));
}

TEST_F(TelaDoPerfilTransversal, OsPadrõesDaRotaçãoEDoÂnguloSecoSeEscrevemDiferenteDepoisDeUmEvento) {
    EXPECT_EQ(form7->Label37.texto, "Rotação = 0º");
    EXPECT_EQ(form7->Label39.texto, " 60º");
    EXPECT_EQ(form7->Label41.texto, "60º");
    rolar("HScroll5", 1);
    rolar("HScroll5", 0);
    rolar("HScroll3", 61);
    rolar("HScroll3", 60);
    EXPECT_EQ(form7->Label37.texto, "Rotação: 0º");
    EXPECT_EQ(form7->Label39.texto, "60º");
}

TEST_F(TelaDoPerfilTransversal, OsTextosDosBotões) {
    EXPECT_EQ(form7->Command1.texto, "Abrir Arquivo");
    EXPECT_EQ(form7->Command2.texto, "&Calcular Lâminas");
    EXPECT_EQ(form7->Command8.texto, "&Calcular Lâminas");
    EXPECT_EQ(form7->Command3.texto, "&Gráfico Intensidades");
    EXPECT_EQ(form7->Command7.texto, "&Gráfico Intensidades");
    EXPECT_EQ(form7->cmdUniformidade.texto, "&Avançar >>");
    EXPECT_EQ(form7->Command9.texto, "&Avançar >>");
    EXPECT_EQ(form7->Command4.texto, "<< &Voltar");
    EXPECT_EQ(form7->Command6.texto, "<< &Voltar");
    EXPECT_EQ(form7->Command5.texto, "Ajuda");
    EXPECT_EQ(form7->cmdSair.texto, "&Fechar");
}

TEST_F(TelaDoPerfilTransversal, CarregarNomeiaAAjudaEDesenhaODiagrama) {
    form7.descarregar();
    arquivoDeAjuda.clear();
    form7.carregar();
    EXPECT_EQ(arquivoDeAjuda, "C:\\Arquivos de programas\\Varenta\\VARENTA VERSÃO 5.0.hlp");
    EXPECT_FALSE(form7->Picture1.traços.empty());
}

TEST_F(TelaDoPerfilTransversal, ADireçãoDoVentoVaiParaALegendaEODiagrama) {
    rolar("HScroll1", 225);
    EXPECT_EQ(form7->Label2.texto, "225");
    // A wind not from straight ahead has its sector at the rose, which comes first.
    EXPECT_TRUE(std::holds_alternative<Arco>(form7->Picture1.traços.front()));
}

TEST_F(TelaDoPerfilTransversal, AVelocidadeDoVentoÉUmDécimoDaBarra) {
    rolar("HScroll2", 25);
    EXPECT_EQ(form7->Label17.texto, "2.5");
    EXPECT_EQ(form7->Label29.texto, "Vento: 2.5 m/s");
    rolar("HScroll2", 100);
    EXPECT_EQ(form7->Label17.texto, "10.0");
    arrastar("HScroll2", 7);
    EXPECT_EQ(form7->Label17.texto, "0.7");
    EXPECT_EQ(form7->Label29.texto, "Vento: 0.7 m/s");
}

TEST_F(TelaDoPerfilTransversal, ComAmbosOsÂngulosSecosEm178OGiroÉ4) {
    rolar("HScroll3", 178);
    EXPECT_EQ(form7->Label24.texto, "178");
    EXPECT_EQ(form7->Label39.texto, "178º");
    EXPECT_EQ(form7->Label35.texto, "122");
    rolar("HScroll4", 178);
    EXPECT_EQ(form7->Label33.texto, "178");
    EXPECT_EQ(form7->Label41.texto, "178º");
    EXPECT_EQ(form7->Label35.texto, "4");
    EXPECT_EQ(form7->Labelang.texto, "4º");
}

TEST_F(TelaDoPerfilTransversal, ARotaçãoPodeSerNegativa) {
    rolar("HScroll5", -15);
    EXPECT_EQ(form7->Label36.texto, "-15");
    EXPECT_EQ(form7->Label37.texto, "Rotação: -15º");
}

TEST_F(TelaDoPerfilTransversal, AVelocidadeDigitadaVaiParaODiagrama) {
    digitar("Text1", "75.5");
    EXPECT_EQ(form7->Label23.texto, "Velocidade = 75.5 m/h");
}

TEST_F(TelaDoPerfilTransversal, ODiagramaÉRedesenhadoPorTodasAsBarrasMenosADaVelocidadeDoVento) {
    const auto redesenha = [&](std::string_view barra, int valor) {
        const auto antes = form7->Picture1.versão;
        arrastar(barra, valor);
        const bool noArrasto = form7->Picture1.versão != antes;
        const auto depois = form7->Picture1.versão;
        rolar(barra, valor + 1);
        EXPECT_EQ(form7->Picture1.versão != depois, noArrasto) << barra;
        return noArrasto;
    };
    EXPECT_TRUE(redesenha("HScroll1", 10));
    EXPECT_FALSE(redesenha("HScroll2", 10));
    EXPECT_TRUE(redesenha("HScroll3", 10));
    EXPECT_TRUE(redesenha("HScroll4", 10));
    EXPECT_TRUE(redesenha("HScroll5", 10));
}

TEST_F(TelaDoPerfilTransversal, MudarUmParâmetroDesabilitaOCaminhoEAdianteSóCommand2OHabilita) {
    for (const char* caixa : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"})
        EXPECT_EQ(caminhoApós([&] { digitar(caixa, "0.02"); }), "0000") << caixa;
    clicar("Command2");
    EXPECT_EQ(caminho(), "0110");
}

TEST_F(TelaDoPerfilTransversal, MudarOEspaçamentoDesabilitaOCaminho) {
    EXPECT_EQ(caminhoApós([&] { atos::escolher(alvo(form7, "Combo2"), "3.0"); }), "0000");
    EXPECT_EQ(caminhoApós([&] { atos::escolher(alvo(form7, "Combo2"), "3.0"); }), "0000");
    EXPECT_EQ(caminhoApós([&] { digitar("Combo2", "6"); }), "0000");
}

TEST_F(TelaDoPerfilTransversal, OChangeDeCadaBarraDesabilitaOCaminho) {
    for (const char* barra : {"HScroll1", "HScroll2", "HScroll3", "HScroll4", "HScroll5"})
        EXPECT_EQ(caminhoApós([&] { rolar(barra, 5); }), "0000") << barra;
}

TEST_F(TelaDoPerfilTransversal, OScrollDeCadaBarraDesabilitaOCaminhoMasODaVelocidadeDeixaCommand9) {
    for (const char* barra : {"HScroll1", "HScroll3", "HScroll4", "HScroll5"}) {
        EXPECT_EQ(caminhoApós([&] { arrastar(barra, 5); }), "0000") << barra;
        atos::soltar();
    }
    EXPECT_EQ(caminhoApós([&] { arrastar("HScroll2", 5); }), "0001");
    // Let go elsewhere than it began, the Change disables it as well.
    atos::soltar();
    EXPECT_EQ(caminho(), "0000");
}

TEST_F(TelaDoPerfilTransversal, PôrUmControleNoValorQueJáTemNãoDesabilitaNada) {
    EXPECT_EQ(caminhoApós([&] { rolar("HScroll3", 60); }), "1111");
    EXPECT_EQ(caminhoApós([&] { digitar("Text1", "50"); }), "1111");
    EXPECT_EQ(caminhoApós([&] { digitar("Text2", "0.0362"); }), "1111");
}

TEST_F(TelaDoPerfilTransversal, CalcularMudaATabelaEMarcaMcaNaTelaDoAspersor) {
    atos::clicar(alvo(form7, "Command4"));
    atos::clicar(alvo(form1, "optKPA"));
    atos::clicar(alvo(form1, "Command3"));
    const auto antes = form7->flexA.célula(10, 2);
    digitar("Text1", "25");
    clicar("Command2");
    EXPECT_TRUE(form1->optMCA.marcada);
    EXPECT_FALSE(form1->optKPA.marcada);
    EXPECT_EQ(form1->lblPressão.texto, "50");
    EXPECT_NE(form7->flexA.célula(10, 2), antes);
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(TelaDoPerfilTransversal, ErroNoCálculoDeixaOCaminhoDesabilitadoEATabelaEscrita) {
    aspersorDeTrêsMetros("0.01");
    form7->cmdUniformidade.habilitado = form7->Command3.habilitado = false;
    clicar("Command2");
    ASSERT_EQ(caderno.size(), 1u);
    EXPECT_TRUE(caderno[0].starts_with("erro: ")) << caderno[0];
    EXPECT_EQ(form7->flexA.célula(2, 2), "0.001");
    EXPECT_EQ(caminho(), "0000");
    EXPECT_EQ(form7.ponteiro, Ponteiro::padrão);
}

TEST_F(TelaDoPerfilTransversal, AsLeiturasDoMouseVêmDasLegendasDosEixos) {
    // The axes reach 3.0 m to both sides and 1.5 mm upwards.
    aspersorDeTrêsMetros("10");
    clicar("Command2");
    mouse(68, 203);
    EXPECT_EQ(form7->Label14d.texto, "d = -3.000 m");
    EXPECT_EQ(form7->Label14I.texto, "I = 0.000 mm");
    EXPECT_EQ(form7.ponteiro, Ponteiro::cruz);
    mouse(208, 28);
    EXPECT_EQ(form7->Label14d.texto, "d = 0.000 m");
    EXPECT_EQ(form7->Label14I.texto, "I = 1.500 mm");
    mouse(243, 115.5);
    EXPECT_EQ(form7->Label14d.texto, "d = 0.750 m");
    EXPECT_EQ(form7->Label14I.texto, "I = 0.750 mm");
    mouse(348, 28);
    EXPECT_EQ(form7->Label14d.texto, "d = 3.000 m");
}

TEST_F(TelaDoPerfilTransversal, OMouseForaDoRetânguloMostraZeroNasDuasLeituras) {
    for (const auto& [x, y] : {std::pair{349.0, 100.0}, {67.0, 100.0}, {200.0, 27.0}, {200.0, 204.0}}) {
        mouse(100, 100);
        EXPECT_EQ(form7.ponteiro, Ponteiro::cruz);
        mouse(x, y);
        EXPECT_EQ(form7->Label14d.texto, "d = 0.000 m");
        EXPECT_EQ(form7->Label14I.texto, "I = 0.000 mm");
        EXPECT_EQ(form7.ponteiro, Ponteiro::padrão);
    }
}

TEST_F(TelaDoPerfilTransversal, OMouseForaDosDesenhosDevolveOPonteiro) {
    mouse(100, 100);
    atos::moverMouse(form7);
    EXPECT_EQ(form7.ponteiro, Ponteiro::padrão);
}

TEST_F(TelaDoPerfilTransversal, VoltarMostraOAspersorComoFoiDeixadoEDesabilitaATelaPrincipal) {
    atos::clicar(alvo(form7, "Command4"));
    EXPECT_FALSE(form7.carregada());
    EXPECT_TRUE(form1.visivel);
    EXPECT_EQ(form1->Combo1.texto, "18 mm");
    EXPECT_FALSE(form3.habilitada);
    EXPECT_FALSE(form3.visivel);
}

TEST_F(TelaDoPerfilTransversal, DepoisDeVoltarATelaRecomeçaDosPadrões) {
    rolar("HScroll3", 0);
    digitar("Text1", "100");
    atos::clicar(alvo(form7, "Command4"));
    atos::clicar(alvo(form1, "Command3"));
    EXPECT_EQ(form7->HScroll3.valor, 60);
    EXPECT_EQ(form7->Text1.texto, "50");
}

TEST_F(TelaDoPerfilTransversal, FecharDescarregaAsDuasTelasEDevolveATelaPrincipal) {
    clicar("cmdSair");
    EXPECT_FALSE(form7.carregada());
    EXPECT_FALSE(form1.carregada());
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

TEST_F(TelaDoPerfilTransversal, FecharPelaCaixaDevolveATelaPrincipal) {
    atos::fechar(form7);
    EXPECT_FALSE(form7.carregada());
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

constexpr auto perguntaDoArquivo =
    "pergunta: O arquivo deve estar na extensão: *.TXT separado por tabulações!";
constexpr auto filtroDoArquivo = "abrir: Arquivos Texto (*.TXT)|*.TXT";

TEST_F(TelaDoPerfilTransversal, AbrirArquivoRespondidoComNãoNãoMudaNada) {
    respostas = {false};
    clicar("Command1");
    EXPECT_EQ(caderno, Textos{perguntaDoArquivo});
    EXPECT_EQ(form7->Text2.texto, "0.0362");
    EXPECT_EQ(caminho(), "0110");
}

TEST_F(TelaDoPerfilTransversal, AbrirArquivoEsvaziaOsParâmetrosAntesDeEscolher) {
    for (const auto& escolha : {std::optional<std::string>{}, std::optional<std::string>{""}}) {
        abrirForm7();
        respostas = {true};
        arquivos = {escolha};
        clicar("Command1");
        EXPECT_EQ(caderno, (Textos{perguntaDoArquivo, filtroDoArquivo}));
        for (const auto* caixa :
             {&form7->Text2, &form7->Text3, &form7->Text4, &form7->Text5, &form7->Text6, &form7->Text7})
            EXPECT_EQ(caixa->texto, "");
        EXPECT_EQ(form7->Label20.texto, "ASPERSOR: KELMO-TX15");
        EXPECT_EQ(caminho(), "0000");
    }
}

TEST_F(TelaDoPerfilTransversal, AbrirArquivoLêOEscolhido) {
    const PastaTemporaria pasta;
    respostas = {true};
    arquivos = {pasta.gravar("p.TXT", "Novo\r\n20\r\n40\r\n30\r\n35\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n")};
    clicar("Command1");
    EXPECT_EQ(caderno, (Textos{perguntaDoArquivo, filtroDoArquivo}));
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: Novo");
    EXPECT_EQ(form7->Text2.texto, "1.0000");
    EXPECT_EQ(form7->Text7.texto, "6.0000");
    EXPECT_EQ(caminho(), "0000");
}

TEST_F(TelaDoPerfilTransversal, AbrirArquivoQueFalhaMantémOsParâmetrosLidosEORestoVazio) {
    const PastaTemporaria pasta;
    respostas = {true};
    arquivos = {pasta.gravar("p.TXT", "Novo\r\n20\r\n40\r\n30\r\n35\r\n1\r\n2\r\nx\r\n")};
    clicar("Command1");
    EXPECT_EQ(caderno.back(), "mensagem: Parâmetro C inválido!");
    EXPECT_EQ(form7->Text2.texto, "1.0000");
    EXPECT_EQ(form7->Text3.texto, "2.0000");
    EXPECT_EQ(form7->Text4.texto, "");
    EXPECT_EQ(form7->Text7.texto, "");
}

} // namespace
} // namespace varenta::teste
