#include "com_janelas.h"

#include "janelas/roteiro_janelas.h"
#include "roteiro/interprete.h"

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <fstream>
#include <sstream>

namespace varenta::teste {
namespace {

constexpr const char* percurso = R"(clicar Form3.TX30B
mostrar form1
mover form1.Picture1 2000 1000
estado form1.Picture1
foco
clicar form1.Command3
digitar Form7.Text1 abc
clicar Form7.Command2
responder não
clicar Form7.Command1
arrastar Form7.HScroll2 40
rolar Form7.HScroll1 90
foco
clicar Form7.Command2
mostrar Form7
telas
fechar Form7
telas
)";

constexpr const char* percursoDaFaixa = R"(clicar Form3.TX15B
clicar form1.Command3
clicar Form7.Command2
clicar Form7.Command3
mostrar Form_grafVen
telas
clicar Form_grafVen.Command1
clicar Form7.cmdUniformidade
clicar Form4.Command8
clicar Form4.Command9
clicar Form4.Command5
escolher Form5.Combo1 "Outro Valor"
digitar Form5.txtOutro 20
clicar Form5.chkParada
foco
digitar Form5.txtParada 10
clicar Form5.Command10
mover Form5.Picture2 200 100
mostrar Form5
clicar Form5.Command3
mostrar Form8
clicar Form5.Command12
mover Form9.Picture2 200 100
mostrar Form9
clicar Form5.Command15
mostrar Form_grafFinal
telas
clicar Form5.Command5
telas
)";

/// What the same text prints without windows over it.
std::string semJanelas(const char* texto) {
    std::ostringstream saída, erros;
    EXPECT_EQ((Interprete{saída, erros}.executarTexto(texto, "caso.roteiro", ".")), 0) << erros.str();
    return saída.str();
}

class RoteiroNasJanelas : public ComJanelas {
  protected:
    QString gravar(const char* texto) const {
        const auto caminho = pasta.filePath("caso.roteiro");
        std::ofstream{caminho.toStdString()} << texto;
        return caminho;
    }
    QTemporaryDir pasta;
};

TEST_F(RoteiroNasJanelas, imprime_o_mesmo_que_sem_elas) {
    for (const auto* texto : {percurso, percursoDaFaixa}) {
        const auto arquivo = gravar(texto);
        testing::internal::CaptureStdout();
        const int desfecho = executarNasJanelas(*janelas, arquivo, {});
        const auto saída = testing::internal::GetCapturedStdout();
        EXPECT_EQ(desfecho, 0);
        EXPECT_EQ(saída, semJanelas(texto));
        EXPECT_TRUE(caixas.empty());
    }
}

TEST_F(RoteiroNasJanelas, salva_uma_imagem_a_cada_tela_mostrada) {
    const auto imagens = pasta.filePath("a/b");
    testing::internal::CaptureStdout();
    EXPECT_EQ(executarNasJanelas(*janelas, gravar(percurso), imagens), 0);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(QDir{imagens}.entryList(QDir::Files), (QStringList{"01-form1.png", "02-Form7.png"}));
    const QImage imagem{imagens + "/02-Form7.png"};
    EXPECT_GT(imagem.width(), 800);
    EXPECT_GT(imagem.height(), 500);
}

TEST_F(RoteiroNasJanelas, deixa_as_janelas_como_o_último_comando) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(executarNasJanelas(*janelas, gravar("clicar Form3.TX15B\nrolar form1.hsbPressão 35\n"), {}), 0);
    testing::internal::GetCapturedStdout();
    EXPECT_TRUE(janela(form1).isVisible());
    EXPECT_EQ(widget<QLabel>(form1, "lblPressão").text(), "35");
}

TEST_F(RoteiroNasJanelas, aberto_por_uma_pessoa_pergunta_antes_e_fica_onde_parou) {
    const auto arquivo = gravar("clicar Form3.TX15B\nrolar form1.hsbPressão 35\n");
    respostas = {true};
    EXPECT_TRUE(abrirNasJanelas(*janelas, arquivo));
    EXPECT_EQ(caixas, std::vector<QString>{"Executar o roteiro \"caso.roteiro\"? Ele pode salvar arquivos e "
                                           "substituir os que já existem."});
    EXPECT_TRUE(janela(form1).isVisible());
    EXPECT_EQ(widget<QLabel>(form1, "lblPressão").text(), "35");
}

TEST_F(RoteiroNasJanelas, aberto_mas_não_executado_deixa_a_janela_principal) {
    respostas = {false};
    EXPECT_TRUE(abrirNasJanelas(*janelas, gravar("clicar Form3.TX15B\n")));
    EXPECT_TRUE(janela(form3).isVisible());
    EXPECT_FALSE(form1.carregada());
}

TEST_F(RoteiroNasJanelas, aberto_mostra_em_uma_caixa_o_que_deu_errado) {
    const auto arquivo = gravar("clicar Form3.TX15B\nfazer\n");
    respostas = {true, true};
    EXPECT_TRUE(abrirNasJanelas(*janelas, arquivo));
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_EQ(caixas[1], arquivo + ":2: comando desconhecido: fazer\n");
    EXPECT_TRUE(janela(form1).isVisible());

    EXPECT_TRUE(abrirNasJanelas(*janelas, pasta.filePath("ausente.roteiro")));
    ASSERT_EQ(caixas.size(), 4u);
    EXPECT_EQ(caixas[3], pasta.filePath("ausente.roteiro") + ": o arquivo ou a pasta não existe\n");
    EXPECT_TRUE(janela(form3).isVisible());
}

TEST_F(RoteiroNasJanelas, aberto_que_fecha_a_janela_principal_encerra_o_programa) {
    respostas = {true};
    EXPECT_FALSE(abrirNasJanelas(*janelas, gravar("fechar Form3\n")));
    EXPECT_EQ(caixas.size(), 1u);
}

TEST_F(RoteiroNasJanelas, o_que_a_pessoa_faz_enquanto_ele_corre_se_perde) {
    QTimer::singleShot(0, [this] { clicar(form1, "Command3"); });
    respostas = {true};
    EXPECT_TRUE(abrirNasJanelas(*janelas, gravar("clicar Form3.TX15B\nfoco\n")));
    QApplication::processEvents();
    EXPECT_FALSE(form7.carregada());
}

struct Término {
    int código;
    QString saída, erros;
};

Término varenta(const QStringList& argumentos) {
    QProcess processo;
    processo.start(PROGRAMA_VARENTA, argumentos);
    EXPECT_TRUE(processo.waitForFinished(30000));
    return {processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput()),
            QString::fromUtf8(processo.readAllStandardError())};
}

TEST(Programa, com_opção_desconhecida_mostra_o_uso) {
    for (const auto& argumentos :
         {QStringList{"--outra"}, {"a.roteiro", "b.roteiro"}, {"--roteiro"}, {"--imagens", "pasta"}}) {
        const auto término = varenta(argumentos);
        EXPECT_EQ(término.código, 2);
        EXPECT_TRUE(término.erros.contains("Uso: varenta [ARQUIVO]\n"));
        EXPECT_EQ(término.saída, "");
    }
}

TEST(Programa, ajuda_e_versão_nada_abrem) {
    const auto ajuda = varenta({"--help"});
    EXPECT_EQ(ajuda.código, 0);
    EXPECT_TRUE(ajuda.saída.startsWith("Uso: varenta [ARQUIVO]\n"));
    EXPECT_EQ(ajuda.erros, "");
    EXPECT_EQ(varenta({"--version"}).saída, "varenta 5.0\n");
}

TEST(Programa, com_roteiro_termina_com_o_desfecho_dele) {
    QTemporaryDir pasta;
    const auto caminho = pasta.filePath("caso.roteiro");
    std::ofstream{caminho.toStdString()}
        << "clicar Form3.TX20B\nmostrar form1.Caption\nclicar form1.Ausente\n";
    const auto término = varenta({"--roteiro", caminho});
    EXPECT_EQ(término.código, 2);
    EXPECT_EQ(término.saída, "form1.Caption = Características Técnicas do Aspersor KELMO-TX 20\n");
    EXPECT_TRUE(término.erros.contains(":3:"));
    EXPECT_EQ(varenta({"--roteiro", pasta.filePath("não há")}).código, 1);
}

} // namespace
} // namespace varenta::teste
