#include "uniformidade/entradas_form5.h"

#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "comum/verificacoes.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"

namespace varenta {
namespace {

bool tempoVálido(const ExtremoDaFaixa& extremo) {
    if (!extremo.parada.marcada) return true;
    const char* mensagem = nullptr;
    if (nãoÉNumérico(extremo.tempo.texto))
        mensagem = "Insira um valor numérico!";
    else if (lerPrefixo(extremo.tempo.texto) < 0)
        mensagem = "O tempo de parada não pode ser negativo!";
    if (mensagem) plataforma::mensagem(mensagem);
    return mensagem == nullptr;
}

bool carreadorVálido(double R) {
    auto& caixa = form5->txtMan;
    const auto mensagem = recusaDoCarreador(lerPrefixo(caixa.texto), R, espaçamentoDosColetores());
    if (mensagem.empty()) return true;
    plataforma::mensagem(mensagem);
    definirTexto(caixa, "300");
    return false;
}

/// How far the strip reaches beyond the cart's way at this end.
double alémDaMovimentação(const ExtremoDaFaixa& extremo, double R) {
    switch (modoDo(extremo)) {
    case ModoDoExtremo::igualAoRaio:
        return R;
    case ModoDoExtremo::movimentação:
        return 0;
    case ModoDoExtremo::outroValor:
        break;
    }
    return lerPrefixo(extremo.comprimento.texto);
}

} // namespace

ExtremoDaFaixa extremoInicial() {
    auto& f = *form5.operator->();
    return {f.Combo1,
            f.txtOutro,
            f.chkParada,
            f.txtParada,
            {&f.lblTpi, &f.lblTpiUnidade},
            "Insira um valor de comprimento inicial (Ci) de faixa, entre 0 e o raio de alcance!",
            "Insira uma distância inicial!"};
}

ExtremoDaFaixa extremoFinal() {
    auto& f = *form5.operator->();
    return {f.Combo2,
            f.Text3,
            f.Check2,
            f.Text4,
            {&f.lblTpf, &f.lblTpfUnidade},
            "Insira um valor de comprimento final (Cf) de faixa, entre 0 e o raio de alcance!",
            "Insira uma distância final!"};
}

ModoDoExtremo modoDo(const ExtremoDaFaixa& extremo) {
    return static_cast<ModoDoExtremo>(índiceDoItem(extremo.modo, extremo.modo.texto));
}

std::string sugestãoDeParada(ModoDoExtremo modo, double comprimento, double V) {
    if (modo == ModoDoExtremo::movimentação)
        return "Insira um valor de tempo de parada! O programa não sugere tempo de parada!";
    return "Insira um valor de tempo de parada! O programa sugere: " +
           Format(dividir(60 * comprimento, V), "#0") + " min!";
}

const char* recusaDosComprimentos(double R) {
    for (const auto& extremo : {extremoInicial(), extremoFinal()}) {
        if (modoDo(extremo) != ModoDoExtremo::outroValor) continue;
        const auto& texto = extremo.comprimento.texto;
        if (nãoÉNumérico(texto)) return "Valor Inválido!";
        const double comprimento = lerPrefixo(texto);
        if (comprimento < 0 || comprimento > R) return "Valor deve estar: entre zero e o raio de alcance!";
    }
    return nullptr;
}

double menorCarreador(double R, double s) { return s * 2 * (1 + Int(dividir(R, s))); }

std::string recusaDoCarreador(double Cc, double R, double s) {
    if (Cc >= 1000) return "O comprimento do carreador deve ser menor que 1000 m!";
    const double L = menorCarreador(R, s);
    if (Cc < L) return "O comprimento do carreador deve ser maior ou igual a: " + paraTexto(L) + " m!";
    return {};
}

const char* recusaDasCondições(const std::string& velocidade, const std::string& espaçamento) {
    if (velocidade.empty()) return "Entre com valor de velocidade!";
    if (espaçamento.empty()) return "Entre com valor de espaçamento!";
    return nullptr;
}

bool entradasDaFaixaVálidas(double R) {
    const std::array extremos{extremoInicial(), extremoFinal()};
    for (const auto& extremo : extremos)
        if (extremo.parada.marcada && extremo.tempo.texto.empty()) marcar(extremo.parada, false);
    for (const auto& extremo : extremos)
        if (!tempoVálido(extremo)) return false;
    if (form5->txtMan.texto.empty()) return false;
    if (nãoÉNumérico(form5->txtMan.texto)) {
        plataforma::mensagem("Insira um valor numérico!");
        return false;
    }
    if (const char* recusa = recusaDasCondições(form7->Text1.texto, form4->cmbEspaçamento.texto)) {
        plataforma::mensagem(recusa);
        return false;
    }
    return carreadorVálido(R);
}

BandasDaFaixa lerBandas(int N, double s, double R) {
    const double Cc = lerPrefixo(form5->txtMan.texto);
    return bandasDaFaixa(N, s, R, Cc, -alémDaMovimentação(extremoInicial(), R),
                         Cc + alémDaMovimentação(extremoFinal(), R));
}

std::vector<std::string> descriçãoDaFaixa() {
    const auto& f = *form5.operator->();
    std::vector<std::string> textos{f.lblCi.texto, f.lblCc.texto, f.lblCf.texto};
    for (const auto& extremo : {extremoInicial(), extremoFinal()})
        if (!extremo.tempo.texto.empty())
            textos.push_back(extremo.rótulosDoTempo[0]->texto + " " + extremo.tempo.texto + " min");
    return textos;
}

} // namespace varenta
