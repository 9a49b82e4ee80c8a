#include "campo/form_ec.h"

#include "campo/arquivo_movel.h"
#include "campo/desenho_ensaio.h"
#include "campo/form_unifo.h"
#include "campo/leituras_ec.h"
#include "campo/perfil_do_movel.h"
#include "campo/sobreposicao_movel.h"
#include "campo/verificacoes_ec.h"
#include "comum/ajuda.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"

namespace varenta {
namespace {

/// "Ce3 = 5 m" on the left, "Cd3 = 5 m" on the right.
std::string nomeDoColetor(const char* lado, int coletor, double espaço) {
    return lado + std::to_string(coletor) + " = " + paraTexto((coletor - 0.5) * espaço) + " m";
}

void escreverCabeçalhos(int linhas, int coletores, double espaço) {
    auto& f = *formEC.operator->();
    const std::string unidade = f.Option3.marcada ? " - I(ml)" : " - I(mm)";
    std::string formato;
    for (int k = 1; k <= linhas; ++k) formato.append("|^Linha ").append(std::to_string(k)).append(unidade);
    f.flex_A.formato(formato);
    // The farthest collector of the left side stands at the top.
    for (int j = 1; j <= coletores; ++j) {
        f.flex_A.escrever(coletores + 1 - j, 0, nomeDoColetor("Ce", j, espaço));
        f.flex_A.escrever(coletores + j, 0, nomeDoColetor("Cd", j, espaço));
    }
}

double númeroDe(const Lista& lista) {
    return explicarErro("o número escrito na lista é grande demais", [&] { return lerPrefixo(lista.texto); });
}

/// The entry line is in sight while the grid is typed into; the lists are only free then, too.
void mostrarEntrada(bool mostrada) {
    auto& f = *formEC.operator->();
    f.Text5.visivel = f.Label6.visivel = f.Label7.visivel = mostrada;
    for (auto* lista : {&f.Combo1, &f.Combo2, &f.Combo3, &f.Combo4}) lista->habilitado = mostrada;
}

} // namespace

Planilha formEC_planilha() {
    auto& f = *formEC.operator->();
    return {.grade = f.flex_A,
            .entrada = f.Text5,
            .nomeDaCélula = f.Label6,
            .contagem = nullptr,
            .digitação = f.Text5.visivel,
            .padrãoDaColuna = [](int) -> std::string_view { return "0.000"; },
            .aoMudar = formEC_flex_A_Change};
}

void formEC_flex_A_Change() { formEC->lblPreenchidas.texto = textoDePreenchidas(formEC->flex_A); }

void gerarPlanilhaEC() {
    auto& f = *formEC.operator->();
    const auto planilha = formEC_planilha();
    sairDaCélula(planilha);
    const double linhasPedidas = númeroDe(f.Combo1), coletoresPedidos = númeroDe(f.Combo3);
    const double distância = númeroDe(f.Combo2), espaço = númeroDe(f.Combo4);
    if (linhasPedidas <= 0 || coletoresPedidos <= 0) return;
    if (const auto recusa = recusaDoTamanho(2 * coletoresPedidos, linhasPedidas); !recusa.empty()) {
        plataforma::mensagem(recusa);
        return;
    }
    const int linhas = paraInteiro(linhasPedidas), coletores = paraInteiro(coletoresPedidos);
    if (linhas < 1 || coletores < 1) return;
    if (f.flex_A.linhas != 2 * coletores + 1 || f.flex_A.colunas != linhas + 1) {
        // Emptied before it takes the old one's place: one left half empty would have its size already, and
        // the next time nothing would empty it.
        auto grade = f.flex_A;
        grade.dimensionar(2 * coletores + 1, linhas + 1);
        esvaziarDados(grade);
        grade.linhaAtual = grade.colunaAtual = 1;
        f.flex_A = std::move(grade);
        if (planilha.digitação) definirTexto(f.Text5, "");
    }
    escreverCabeçalhos(linhas, coletores, espaço);
    nomearCélula(planilha);
    formEC_flex_A_Change();
    f.lblEspaço.texto = "eC = " + f.Combo4.texto + " m";
    f.lblDistância.texto = "eL = " + f.Combo2.texto + " m";
    desenharEnsaioMóvel(f.Picture1,
                        {.linhas = linhas, .coletores = coletores, .distância = distância, .espaço = espaço});
}

void formEC_Load() {
    associarAjuda();
    auto& f = *formEC.operator->();
    for (int k = 1; k <= 10; ++k) f.Combo1.itens.push_back(std::to_string(k));
    for (int k = 1; k <= 12; ++k) f.Combo2.itens.push_back(Format(k, "0.0"));
    for (int k = 3; k <= 40; ++k) f.Combo3.itens.push_back(std::to_string(k));
    f.Combo4.itens = {"1.0", "1.5", "2.0", "3.0", "6.0"};
    escolherListasPadrão();
}

void formEC_Fechar() {
    formEC.descarregar();
    voltarAoMenu();
}

void formEC_Option1_Click() {
    voltarADigitar(formEC_planilha());
    mostrarEntrada(true);
}

void formEC_Option2_Click() {
    abrirOuVoltar(
        [] {
            sairDaCélula(formEC_planilha());
            mostrarEntrada(false);
            return abrirArquivoMóvel();
        },
        [] {
            marcar(formEC, formEC->Option1);
            focar(formEC->Option1);
        });
}

bool formEC_Text5_KeyPress(int tecla) { return teclar(formEC_planilha(), tecla); }

void formEC_Command1_Click() {
    sairDaCélula(formEC_planilha());
    if (podeSalvarEnsaio()) salvarArquivoDeDados(textoDoEnsaio(), falhaAoSalvarDados);
}

void formEC_Command2_Click() {
    auto& f = *formEC.operator->();
    for (auto* caixa : {&f.Text6, &f.Text8, &f.Text13, &f.Text11, &f.Text12, &f.Text9, &f.Text1, &f.Text7,
                        &f.Text2, &f.Text3, &f.Text5})
        definirTexto(*caixa, "");
    esvaziarDados(f.flex_A);
    formEC_flex_A_Change();
}

void formEC_Command4_Click() {
    sairDaCélula(formEC_planilha());
    if (!podeSobrepor()) return;
    prepararSobreposicao();
    formEC.esconder();
    formUnifo.mostrar();
}

void formEC_Command6_Click() {
    sairDaCélula(formEC_planilha());
    if (podeGerarPerfil()) perfilRadialDoMovel();
}

} // namespace varenta
