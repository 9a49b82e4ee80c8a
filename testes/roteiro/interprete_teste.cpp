#include "apoio/pasta_temporaria.h"
#include "bancada.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace varenta::teste {
namespace {

using InterpreteTexto = ComBancada;
using InterpreteAtos = ComBancada;
using InterpreteRecusa = ComBancada;
using InterpreteRespostas = ComBancada;
using InterpreteSistema = ComBancada;
using InterpreteArquivo = ComBancada;
using InterpreteGanchos = ComBancada;

// The text

TEST_F(InterpreteTexto, VazioNãoFazNada) { EXPECT_EQ(saídaDe(""), ""); }

TEST_F(InterpreteTexto, PassaPorLinhasEmBrancoEComentários) {
    EXPECT_EQ(saídaDe("\n  \n# nada\n  # nada\nmostrar Bancada.caixa\n\n"), "Bancada.caixa = abc\n");
}

TEST_F(InterpreteTexto, LinhasTerminamEmLfOuCrLf) {
    EXPECT_EQ(saídaDe("digitar Bancada.caixa x\r\nmostrar Bancada.caixa\nmostrar Bancada.caixa\r\n"),
              "Bancada.caixa = x\nBancada.caixa = x\n");
}

TEST_F(InterpreteTexto, ÚltimaLinhaDispensaOFimDeLinha) {
    EXPECT_EQ(saídaDe("digitar Bancada.caixa x\nmostrar Bancada.caixa"), "Bancada.caixa = x\n");
}

TEST_F(InterpreteTexto, ContaTodasAsLinhasNoErro) {
    EXPECT_EQ(erroDe("\n# nada\r\n\nmostrar Bancada.caixa\nfazer\n"),
              "caso.roteiro:5: comando desconhecido: fazer\n");
}

TEST_F(InterpreteTexto, ParaNoPrimeiroErroEGuardaOQueJáMostrou) {
    const auto execução = executar("mostrar Bancada.caixa\nfazer\nmostrar Bancada.caixa\n");
    EXPECT_EQ(execução.desfecho, Interprete::erroNoRoteiro);
    EXPECT_EQ(execução.saída, "Bancada.caixa = abc\n");
    EXPECT_EQ(execução.erros, "caso.roteiro:2: comando desconhecido: fazer\n");
}

TEST_F(InterpreteTexto, AcusaUmCaractereNulo) {
    using namespace std::string_literals;
    EXPECT_EQ(erroDe("foco\nmostrar \0Bancada.caixa\n"s), "caso.roteiro:2: a linha tem um caractere nulo\n");
}

TEST_F(InterpreteTexto, AcusaUmaLinhaLongaDemais) {
    EXPECT_EQ(erroDe("foco\n# " + std::string(maiorLinha, 'x')), "caso.roteiro:2: a linha é longa demais\n");
}

TEST_F(InterpreteTexto, AcusaRespostasQueNinguémPediu) {
    std::string texto;
    for (std::size_t n = 0; n < maisRespostas; ++n) texto += "arquivo a\nresponder sim\n";
    EXPECT_EQ(erroDe(texto + "responder não"), "caso.roteiro:2001: há respostas demais por usar\n");
    EXPECT_EQ(erroDe(texto + "arquivo b"), "caso.roteiro:2001: há respostas demais por usar\n");
}

TEST_F(InterpreteTexto, AcusaAspasSemFechamento) {
    EXPECT_EQ(erroDe("digitar Bancada.caixa \"x"), "caso.roteiro:1: aspas sem fechamento\n");
}

TEST_F(InterpreteTexto, PalavrasAMaisOuAMenosLembramOUsoDoComando) {
    const std::vector<std::pair<std::string, std::string>> usos{
        {"clicar", "clicar Tela.Controle"},
        {"clicar Bancada.botão x", "clicar Tela.Controle"},
        {"escolher Bancada.lista", "escolher Tela.Controle TEXTO"},
        {"escolher Bancada.lista dois e meio", "escolher Tela.Controle TEXTO"},
        {"digitar Bancada.caixa", "digitar Tela.Controle TEXTO"},
        {"digitar Bancada.caixa a b", "digitar Tela.Controle TEXTO"},
        {"rolar Bancada.rolagem", "rolar Tela.Controle VALOR"},
        {"rolar Bancada.rolagem 1 2", "rolar Tela.Controle VALOR"},
        {"arrastar Bancada.rolagem", "arrastar Tela.Controle VALOR"},
        {"arrastar Bancada.rolagem 1 2", "arrastar Tela.Controle VALOR"},
        {"celula Bancada.grade 1 1", "celula Tela.Grade LINHA COLUNA TEXTO"},
        {"celula Bancada.grade 1 1 2 3", "celula Tela.Grade LINHA COLUNA TEXTO"},
        {"mover", "mover Tela.Desenho X Y, ou mover Tela"},
        {"mover Bancada.desenho 1", "mover Tela.Desenho X Y, ou mover Tela"},
        {"mover Bancada.desenho 1 2 3", "mover Tela.Desenho X Y, ou mover Tela"},
        {"fechar", "fechar Tela"},
        {"fechar Bancada Bancada", "fechar Tela"},
        {"responder", "responder sim, ou responder não"},
        {"responder talvez", "responder sim, ou responder não"},
        {"responder SIM", "responder sim, ou responder não"},
        {"arquivo", "arquivo CAMINHO, ou arquivo cancelar"},
        {"arquivo meus dados", "arquivo CAMINHO, ou arquivo cancelar"},
        {"mostrar", "mostrar Tela.Controle, ou mostrar Tela"},
        {"mostrar Bancada.caixa Bancada", "mostrar Tela.Controle, ou mostrar Tela"},
        {"estado", "estado Tela.Controle"},
        {"estado Bancada.caixa Bancada", "estado Tela.Controle"},
        {"foco Bancada", "foco"},
        {"telas Bancada", "telas"},
    };
    for (const auto& [texto, uso] : usos)
        EXPECT_EQ(erroDe(texto), "caso.roteiro:1: uso: " + uso + "\n") << texto;
}

// Acts

TEST_F(InterpreteAtos, ClicarAcionaBotãoEItemDeMenu) {
    EXPECT_EQ(saídaDe("clicar Bancada.botão\nclicar Bancada.item\nmostrar Bancada.diário"),
              "Bancada.diário = botão, item\n");
}

TEST_F(InterpreteAtos, ClicarMarcaAOpçãoEDesmarcaAsOutrasDoGrupo) {
    EXPECT_EQ(
        saídaDe(
            "clicar Bancada.opçãoB\nestado Bancada.opçãoA\nestado Bancada.opçãoB\nmostrar Bancada.diário"),
        "Bancada.opçãoA: visível habilitado desmarcado\n"
        "Bancada.opçãoB: visível habilitado marcado\n"
        "Bancada.diário = B\n");
}

TEST_F(InterpreteAtos, ClicarInverteAVerificação) {
    EXPECT_EQ(saídaDe("clicar Bancada.verificação\nestado Bancada.verificação\n"
                      "clicar Bancada.verificação\nestado Bancada.verificação"),
              "Bancada.verificação: visível habilitado marcado\n"
              "Bancada.verificação: visível habilitado desmarcado\n");
}

TEST_F(InterpreteAtos, EscolherPegaOItemPeloTexto) {
    EXPECT_EQ(
        saídaDe("escolher Bancada.lista \"dois e meio\"\nmostrar Bancada.lista\nmostrar Bancada.diário"),
        "Bancada.lista = dois e meio\nBancada.diário = lista\n");
}

TEST_F(InterpreteAtos, DigitarTrocaOTextoDaCaixaEDaListaLivre) {
    EXPECT_EQ(saídaDe("digitar Bancada.caixa \"\"\nmostrar Bancada.caixa\n"
                      "digitar Bancada.livre 2.5\nmostrar Bancada.livre\nmostrar Bancada.diário"),
              "Bancada.caixa = \nBancada.livre = 2.5\nBancada.diário = caixa, livre\n");
}

TEST_F(InterpreteAtos, RolarMudaOValorEDisparaChange) {
    EXPECT_EQ(saídaDe("rolar Bancada.rolagem -10\nmostrar Bancada.rolagem\nmostrar Bancada.diário"),
              "Bancada.rolagem = -10\nBancada.diário = Change\n");
}

TEST_F(InterpreteAtos, ArrastarDisparaScrollEOAtoSeguinteSolta) {
    EXPECT_EQ(saídaDe("arrastar Bancada.rolagem 6\narrastar Bancada.rolagem 7\nmostrar Bancada.diário\n"
                      "estado Bancada.rolagem\nfoco\ntelas\nclicar Bancada.botão\nmostrar Bancada.diário"),
              "Bancada.diário = Scroll, Scroll\n"
              "Bancada.rolagem: visível habilitado\n"
              "foco: Bancada.rolagem\n"
              "Form3: visível habilitada\n"
              "Bancada.diário = Scroll, Scroll, Change, botão\n");
}

TEST_F(InterpreteAtos, FimDoRoteiroSoltaORolo) {
    saídaDe("arrastar Bancada.rolagem 6\n# fim\n");
    EXPECT_EQ(bancada->diário.texto, "Scroll, Change");
}

TEST_F(InterpreteAtos, PerguntaAoSoltarNoFimÉAcusadaNaÚltimaLinha) {
    EXPECT_EQ(erroDe("arrastar Bancada.rolagemQuePergunta 6\nmostrar Bancada.barra\n"),
              "caso.roteiro:2: a pergunta \"Muda?\" não tem resposta na fila\n");
}

TEST_F(InterpreteAtos, CelulaEscreveNoFormatoDaColunaEAvança) {
    EXPECT_EQ(
        saídaDe("celula Bancada.grade 1 1 2.5\nmostrar Bancada.grade\nmostrar Bancada.nomeDaCélula\nfoco"),
        "Bancada.grade: 3 linhas x 3 colunas\nNo\td\ti\n1\t2.50\t\n2\t\t\n"
        "Bancada.nomeDaCélula = 1 : i\n"
        "foco: Bancada.entrada\n");
}

TEST_F(InterpreteAtos, MoverLevaAsCoordenadasAoDesenho) {
    EXPECT_EQ(saídaDe("mover Bancada.desenho 1.5 -2\nmover Bancada\nmostrar Bancada.diário"),
              "Bancada.diário = 1.500000 -2.000000, mouse na tela\n");
}

TEST_F(InterpreteAtos, FecharDescarregaATela) {
    saídaDe("fechar Bancada");
    EXPECT_FALSE(bancada.carregada());
}

TEST_F(InterpreteAtos, ErroDeExecuçãoÉMostradoEORoteiroContinua) {
    EXPECT_EQ(saídaDe("clicar Bancada.falha\nmostrar Bancada.caixa"),
              "erro: Divisão por zero\nBancada.caixa = abc\n");
}

TEST_F(InterpreteAtos, MensagensEAvisosSaemEmUmaLinha) {
    EXPECT_EQ(saídaDe("clicar Bancada.avisa"), "mensagem: duas\\nlinhas\naviso: um aviso\n");
}

TEST_F(InterpreteAtos, FocoÉNenhumAntesDoPrimeiroAto) { EXPECT_EQ(saídaDe("foco"), "foco: nenhum\n"); }

TEST_F(InterpreteAtos, FocoSegueOAto) {
    EXPECT_EQ(saídaDe("digitar Bancada.caixa x\nfoco"), "foco: Bancada.caixa\n");
}

// What is refused

TEST_F(InterpreteRecusa, NomesQueNãoExistem) {
    EXPECT_EQ(erroDe("clicar Tela9.botão"), "caso.roteiro:1: não há a tela \"Tela9\"\n");
    EXPECT_EQ(erroDe("mostrar Tela9"), "caso.roteiro:1: não há a tela \"Tela9\"\n");
    EXPECT_EQ(erroDe("mostrar bancada.caixa"), "caso.roteiro:1: não há a tela \"bancada\"\n");
    EXPECT_EQ(erroDe("fechar Bancada.caixa"),
              "caso.roteiro:1: Bancada.caixa é um controle: o comando pede uma tela\n");
    EXPECT_EQ(erroDe("mostrar Bancada.Caixa"), "caso.roteiro:1: Bancada não tem o controle \"Caixa\"\n");
    EXPECT_EQ(erroDe("clicar Bancada.botao"), "caso.roteiro:1: Bancada não tem o controle \"botao\"\n");
    EXPECT_EQ(erroDe("mostrar Bancada."), "caso.roteiro:1: Bancada não tem o controle \"\"\n");
}

TEST_F(InterpreteRecusa, NomeComAcentoSeparadoDaLetra) {
    EXPECT_EQ(erroDe("clicar Bancada.bota\u0303o"),
              "caso.roteiro:1: Bancada não tem o controle \"bota\u0303o\"\n");
}

TEST_F(InterpreteRecusa, TelaOndeSeEsperaUmControle) {
    EXPECT_EQ(erroDe("clicar Bancada"), "caso.roteiro:1: Bancada é uma tela: falta o nome do controle\n");
    EXPECT_EQ(erroDe("estado Bancada"), "caso.roteiro:1: Bancada é uma tela: falta o nome do controle\n");
}

TEST_F(InterpreteRecusa, ÍndicesErrados) {
    EXPECT_EQ(erroDe("mostrar Bancada.rótulos(0)"), "caso.roteiro:1: Bancada.rótulos tem índices de 1 a 3\n");
    EXPECT_EQ(erroDe("mostrar Bancada.rótulos(4)"), "caso.roteiro:1: Bancada.rótulos tem índices de 1 a 3\n");
    EXPECT_EQ(erroDe("mostrar Bancada.rótulos(x)"), "caso.roteiro:1: \"x\" não é um número inteiro\n");
    EXPECT_EQ(erroDe("mostrar Bancada.rótulos()"), "caso.roteiro:1: \"\" não é um número inteiro\n");
    EXPECT_EQ(erroDe("mostrar Bancada.caixa(0)"), "caso.roteiro:1: Bancada.caixa não tem índices\n");
    EXPECT_EQ(erroDe("clicar Bancada.rótulos"), "caso.roteiro:1: Bancada.rótulos precisa de um índice\n");
}

TEST_F(InterpreteRecusa, ControleQueNãoAdmiteOAto) {
    for (const auto* ato : {"clicar Bancada.caixa", "clicar Bancada.rótulos(1)", "escolher Bancada.caixa x",
                            "digitar Bancada.rolagem x", "rolar Bancada.caixa 1", "arrastar Bancada.barra 1",
                            "celula Bancada.caixa 1 1 x", "mover Bancada.caixa 1 1"}) {
        const auto erro = erroDe(ato);
        EXPECT_NE(erro.find(" não admite "), std::string::npos) << ato << " -> " << erro;
    }
}

TEST_F(InterpreteRecusa, ControleOcultoOuDesabilitado) {
    EXPECT_EQ(erroDe("clicar Bancada.oculto"), "caso.roteiro:1: Bancada.oculto está oculto\n");
    EXPECT_EQ(erroDe("clicar Bancada.desabilitado"),
              "caso.roteiro:1: Bancada.desabilitado está desabilitado\n");
    EXPECT_EQ(bancada->diário.texto, "");
}

TEST_F(InterpreteRecusa, TelaOcultaDesabilitadaOuNãoCarregada) {
    bancada.esconder();
    EXPECT_EQ(erroDe("clicar Bancada.botão"), "caso.roteiro:1: Bancada está oculta\n");
    bancada.mostrar();
    bancada.habilitada = false;
    EXPECT_EQ(erroDe("clicar Bancada.botão"), "caso.roteiro:1: Bancada está desabilitada\n");
    EXPECT_EQ(erroDe("fechar Bancada"), "caso.roteiro:1: Bancada está desabilitada\n");
    bancada.descarregar();
    EXPECT_EQ(erroDe("clicar Bancada.botão"), "caso.roteiro:1: Bancada não está carregada\n");
    EXPECT_EQ(erroDe("fechar Bancada"), "caso.roteiro:1: Bancada não está carregada\n");
}

TEST_F(InterpreteRecusa, OlharEmTelaNãoCarregadaSemACarregar) {
    bancada.descarregar();
    for (const auto* olhar : {"mostrar Bancada", "mostrar Bancada.caixa", "mostrar Bancada.Caption",
                              "mostrar Bancada.lista.itens", "estado Bancada.caixa"})
        EXPECT_EQ(erroDe(olhar), "caso.roteiro:1: Bancada não está carregada\n") << olhar;
    EXPECT_FALSE(bancada.carregada());
}

TEST_F(InterpreteRecusa, OlharEmTelaOcultaÉPermitido) {
    bancada.esconder();
    EXPECT_EQ(saídaDe("mostrar Bancada.caixa\nestado Bancada.caixa"),
              "Bancada.caixa = abc\nBancada.caixa: visível habilitado\n");
}

TEST_F(InterpreteRecusa, ItemQueSóAbreUmSubmenu) {
    EXPECT_EQ(erroDe("clicar Bancada.submenu"), "caso.roteiro:1: Bancada.submenu só abre um submenu\n");
}

TEST_F(InterpreteRecusa, ItemQueAListaNãoTem) {
    EXPECT_EQ(erroDe("escolher Bancada.lista três"),
              "caso.roteiro:1: Bancada.lista não tem o item \"três\"\n");
}

TEST_F(InterpreteRecusa, DigitaçãoEmListaQueNãoAdmite) {
    EXPECT_EQ(erroDe("digitar Bancada.lista um"), "caso.roteiro:1: Bancada.lista não admite digitação\n");
}

TEST_F(InterpreteRecusa, ValorForaDaFaixaOuQueNãoÉInteiro) {
    EXPECT_EQ(erroDe("rolar Bancada.rolagem 11"), "caso.roteiro:1: Bancada.rolagem vai de -10 a 10\n");
    EXPECT_EQ(erroDe("arrastar Bancada.rolagem -11"), "caso.roteiro:1: Bancada.rolagem vai de -10 a 10\n");
    EXPECT_EQ(erroDe("rolar Bancada.rolagem 1.5"), "caso.roteiro:1: \"1.5\" não é um número inteiro\n");
    EXPECT_EQ(erroDe("mover Bancada.desenho 1 dois"), "caso.roteiro:1: \"dois\" não é um número\n");
}

TEST_F(InterpreteRecusa, CélulaForaDaGradeOuGradeSemEntrada) {
    for (const auto* célula : {"0 1", "1 0", "3 1", "1 3", "-1 1"}) {
        const auto erro = erroDe("celula Bancada.grade " + std::string{célula} + " x");
        EXPECT_NE(erro.find("não tem a célula de dados"), std::string::npos) << célula << " -> " << erro;
    }
    EXPECT_EQ(erroDe("celula Bancada.tabela 1 1 x"), "caso.roteiro:1: Bancada.tabela não admite entrada\n");
    EXPECT_EQ(erroDe("celula Bancada.grade um 1 x"), "caso.roteiro:1: \"um\" não é um número inteiro\n");
}

TEST_F(InterpreteRecusa, ItensDoQueNãoÉLista) {
    EXPECT_EQ(erroDe("mostrar Bancada.caixa.itens"), "caso.roteiro:1: Bancada.caixa não é uma lista\n");
}

TEST_F(InterpreteRecusa, TudoDepoisDeFecharATelaPrincipal) {
    for (const auto* comando : {"telas", "mostrar Bancada.caixa", "clicar Bancada.botão", "responder sim"})
        EXPECT_EQ(erroDe("fechar Form3\n\n" + std::string{comando}),
                  "caso.roteiro:3: o programa foi encerrado\n");
}

// Answers

TEST_F(InterpreteRespostas, PerguntasGastamAFilaNaOrdem) {
    EXPECT_EQ(saídaDe("responder não\nresponder sim\nclicar Bancada.pergunta\nclicar Bancada.pergunta\n"
                      "mostrar Bancada.diário"),
              "pergunta: Continua? -> não\npergunta: Continua? -> sim\nBancada.diário = não, sim\n");
}

TEST_F(InterpreteRespostas, PerguntaSemRespostaInterrompeAOperação) {
    const auto execução = executar("\nclicar Bancada.pergunta\nmostrar Bancada.caixa");
    EXPECT_EQ(execução.desfecho, Interprete::erroNoRoteiro);
    EXPECT_EQ(execução.saída, "");
    EXPECT_EQ(execução.erros, "caso.roteiro:2: a pergunta \"Continua?\" não tem resposta na fila\n");
    EXPECT_EQ(bancada->diário.texto, "");
}

TEST_F(InterpreteRespostas, ArquivoRespondeComOCaminhoRelativoÀPastaDoRoteiro) {
    EXPECT_EQ(saídaDe("arquivo dados/a.txt\nclicar Bancada.abre\nmostrar Bancada.diário"),
              "arquivo para abrir: dados/a.txt\nBancada.diário = [pasta/dados/a.txt]\n");
}

TEST_F(InterpreteRespostas, CaminhoAbsolutoFicaComoEstá) {
    EXPECT_EQ(saídaDe("arquivo \"/pasta/meus dados.txt\"\nclicar Bancada.abre\nmostrar Bancada.diário"),
              "arquivo para abrir: /pasta/meus dados.txt\nBancada.diário = [/pasta/meus dados.txt]\n");
}

TEST_F(InterpreteRespostas, ArquivoCancelarCancelaODiálogo) {
    EXPECT_EQ(saídaDe("arquivo cancelar\narquivo cancelar\nclicar Bancada.abre\nclicar Bancada.salva\n"
                      "mostrar Bancada.diário"),
              "arquivo para abrir: cancelado\narquivo para salvar: cancelado\n"
              "Bancada.diário = cancelado, cancelado\n");
}

TEST_F(InterpreteRespostas, NomeParaSalvarSemTerminaçãoGanhaADoDiálogo) {
    EXPECT_EQ(
        saídaDe("arquivo ensaio\narquivo ensaio.dat\narquivo pasta.1/ensaio\n"
                "clicar Bancada.salva\nclicar Bancada.salva\nclicar Bancada.salva\nmostrar Bancada.diário"),
        "arquivo para salvar: ensaio.TXT\narquivo para salvar: ensaio.dat\n"
        "arquivo para salvar: pasta.1/ensaio.TXT\n"
        "Bancada.diário = [pasta/ensaio.TXT], [pasta/ensaio.dat], [pasta/pasta.1/ensaio.TXT]\n");
}

TEST_F(InterpreteRespostas, NomeParaAbrirFicaComoEstá) {
    EXPECT_EQ(saídaDe("arquivo ensaio\nclicar Bancada.abre"), "arquivo para abrir: ensaio\n");
}

TEST_F(InterpreteRespostas, DiálogoDeArquivoSemRespostaÉErro) {
    EXPECT_EQ(erroDe("responder sim\nclicar Bancada.abre"),
              "caso.roteiro:2: o diálogo do arquivo para abrir não tem resposta na fila\n");
    EXPECT_EQ(erroDe("clicar Bancada.salva"),
              "caso.roteiro:1: o diálogo do arquivo para salvar não tem resposta na fila\n");
}

TEST_F(InterpreteRespostas, CaminhoSemNomeDeArquivoÉErro) {
    EXPECT_EQ(erroDe("arquivo dados/"), "caso.roteiro:1: o caminho não tem nome de arquivo\n");
}

TEST_F(InterpreteRespostas, AsQueSobramSãoAvisadasComSuaLinhaNaOrdem) {
    const auto execução = executar("arquivo a.txt\nresponder não\narquivo cancelar\nresponder sim\n"
                                   "clicar Bancada.pergunta\n");
    EXPECT_EQ(execução.desfecho, Interprete::concluído);
    EXPECT_EQ(execução.saída, "pergunta: Continua? -> não\n");
    EXPECT_EQ(execução.erros, "caso.roteiro:1: aviso: resposta não usada: arquivo a.txt\n"
                              "caso.roteiro:3: aviso: resposta não usada: arquivo cancelar\n"
                              "caso.roteiro:4: aviso: resposta não usada: responder sim\n");
}

TEST_F(InterpreteRespostas, AsQueSobramDeUmRoteiroNãoValemParaOSeguinte) {
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    EXPECT_EQ(interprete.executarTexto("responder sim", "a", {}), Interprete::concluído);
    EXPECT_EQ(interprete.executarTexto("clicar Bancada.pergunta", "b", {}), Interprete::erroNoRoteiro);
    EXPECT_EQ(erros.str(), "a:1: aviso: resposta não usada: responder sim\n"
                           "b:1: a pergunta \"Continua?\" não tem resposta na fila\n");
}

// The system

TEST_F(InterpreteSistema, CadaRoteiroComeçaComOSistemaRecémIniciado) {
    EXPECT_EQ(saídaDe("clicar Form3.TX20B\ntelas"),
              "Form3: oculta desabilitada\nform1: visível habilitada\n");
    EXPECT_EQ(saídaDe("telas"), "Form3: visível habilitada\n");
}

TEST_F(InterpreteSistema, EncerramentoNãoPassaAoRoteiroSeguinte) {
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    EXPECT_EQ(interprete.executarTexto("fechar Form3", "a", {}), Interprete::concluído);
    EXPECT_EQ(interprete.executarTexto("telas", "b", {}), Interprete::concluído);
    EXPECT_EQ(saída.str(), "Form3: visível habilitada\n");
}

TEST_F(InterpreteSistema, SóEstáAtivoEnquantoExecuta) {
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    const Interprete* ativo = nullptr;
    interprete.depoisDeCadaComando = [&] { ativo = Interprete::ativo(); };
    EXPECT_EQ(Interprete::ativo(), nullptr);
    interprete.executarTexto("telas", "a", {});
    EXPECT_EQ(ativo, &interprete);
    EXPECT_EQ(Interprete::ativo(), nullptr);
    EXPECT_THROW(plataforma::mensagem("fora de um roteiro"), std::logic_error);
}

// Files

TEST_F(InterpreteArquivo, CaminhosSãoRelativosÀPastaDoArquivo) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.roteiro", "arquivo b.txt\nclicar Bancada.abre\n");
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarArquivo(caminho)), Interprete::concluído);
    EXPECT_EQ(saída.str(), "arquivo para abrir: b.txt\n");
    EXPECT_EQ(bancada->diário.texto, "[" + pasta.caminho("b.txt") + "]");
}

TEST_F(InterpreteArquivo, AceitaMarcaDeOrdemDeBytesECrLf) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.roteiro", "\xEF\xBB\xBF# início\r\nclicar Bancada.botão\r\n");
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarArquivo(caminho)), Interprete::concluído) << erros.str();
    EXPECT_EQ(bancada->diário.texto, "botão");
}

TEST_F(InterpreteArquivo, LêTextoEmWindows1252) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.roteiro", "clicar Bancada.bot\xE3o\n");
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarArquivo(caminho)), Interprete::concluído) << erros.str();
    EXPECT_EQ(bancada->diário.texto, "botão");
}

TEST_F(InterpreteArquivo, ErroTrazOCaminhoComoFoiDado) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.roteiro", "fazer\n");
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarArquivo(caminho)), Interprete::erroNoRoteiro);
    EXPECT_EQ(erros.str(), caminho + ":1: comando desconhecido: fazer\n");
}

TEST_F(InterpreteArquivo, QueNãoPodeSerLidoÉFalha) {
    const PastaTemporaria pasta;
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    EXPECT_EQ(interprete.executarArquivo(pasta.caminho("nada")), Interprete::falha);
    EXPECT_EQ(interprete.executarArquivo(pasta.caminho("")), Interprete::falha);
    EXPECT_EQ(erros.str(), pasta.caminho("nada") + ": o arquivo ou a pasta não existe\n" + pasta.caminho("") +
                               ": é uma pasta, e não um arquivo\n");
}

TEST_F(InterpreteArquivo, FluxoÉLidoComoOArquivoTraço) {
    std::istringstream entrada{"\xEF\xBB\xBF"
                               "arquivo b.txt\nclicar Bancada.abre\nfazer"};
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarFluxo(entrada)), Interprete::erroNoRoteiro);
    EXPECT_EQ(saída.str(), "arquivo para abrir: b.txt\n");
    EXPECT_EQ(bancada->diário.texto, "[b.txt]");
    EXPECT_EQ(erros.str(), "-:3: comando desconhecido: fazer\n");
}

TEST_F(InterpreteArquivo, FluxoQueFalhaNaLeituraÉFalha) {
    std::ifstream pasta{"/"};
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarFluxo(pasta)), Interprete::falha);
    EXPECT_EQ(erros.str(), "-: falha na leitura\n");
}

TEST_F(InterpreteArquivo, SaídaQueNãoPodeSerGravadaÉFalha) {
    std::ofstream cheio{"/dev/full"};
    ASSERT_TRUE(cheio);
    std::ostringstream erros;
    EXPECT_EQ(
        (Interprete{cheio, erros}.executarTexto("\nmostrar Bancada.caixa\nclicar Bancada.botão", "a", {})),
        Interprete::falha);
    EXPECT_EQ(erros.str(), "a:2: a saída não pôde ser gravada\n");
    EXPECT_EQ(bancada->diário.texto, "");
}

TEST_F(InterpreteArquivo, OQueSeDizAoSoltarABarraNoFimTambémTemDeSerGravado) {
    bancada->rolagem.aoMudar = [] { plataforma::mensagem("solta"); };
    std::ofstream cheio{"/dev/full"};
    ASSERT_TRUE(cheio);
    std::ostringstream erros;
    EXPECT_EQ((Interprete{cheio, erros}.executarTexto("arrastar Bancada.rolagem 7", "a", {})),
              Interprete::falha);
    EXPECT_EQ(erros.str(), "a:1: a saída não pôde ser gravada\n");
}

// Hooks

TEST_F(InterpreteGanchos, DepoisDeCadaComandoCorreUmaVezPorComandoExecutado) {
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    std::vector<std::string> saídas;
    interprete.depoisDeCadaComando = [&] { saídas.push_back(saída.str()); };
    interprete.executarTexto("# nada\nmostrar Bancada.barra\nclicar Bancada.botão\nfazer", "a", {});
    const std::string mostrado = "Bancada.barra = 40\n";
    EXPECT_EQ(saídas, (std::vector{mostrado, mostrado}));
}

TEST_F(InterpreteGanchos, AoMostrarTelaCorreSóParaATelaInteira) {
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    std::vector<std::string> telas;
    interprete.aoMostrarTela = [&](TelaBase& tela) { telas.push_back(tela.nome()); };
    interprete.executarTexto("mostrar Bancada.caixa\nmostrar Bancada\nmostrar Form3", "a", {});
    EXPECT_EQ(telas, (std::vector<std::string>{"Bancada", "Form3"}));
}

TEST_F(InterpreteGanchos, GanchoPodeInterromperORoteiro) {
    std::ostringstream saída, erros;
    Interprete interprete{saída, erros};
    interprete.aoMostrarTela = [](TelaBase&) { throw FalhaDeSaída{"a imagem não pôde ser gravada"}; };
    EXPECT_EQ(interprete.executarTexto("mostrar Bancada", "a", {}), Interprete::falha);
    EXPECT_EQ(erros.str(), "a:1: a imagem não pôde ser gravada\n");
}

TEST_F(ComBancada, OsPassosDeUmaOperaçãoLongaSóSeMostramAPedido) {
    for (const bool mostra : {false, true}) {
        std::ostringstream saída, erros;
        Interprete interprete{saída, erros};
        interprete.mostrarProgresso = mostra;
        interprete.executarTexto("clicar Bancada.demora", "a", {});
        EXPECT_EQ(saída.str(), mostra ? "progresso: 0.25 um passo\\tlongo\n" : "");
    }
}

} // namespace
} // namespace varenta::teste
