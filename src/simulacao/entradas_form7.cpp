#include "simulacao/entradas_form7.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "simulacao/form7.h"

#include <algorithm>

namespace varenta {
namespace {

bool velocidadeForaDaFaixa(const std::string& texto) {
    const double v = lerEstrito(texto);
    return v <= 0 || v > 300;
}

bool éEspaçamento(const std::string& texto) {
    constexpr std::array espaçamentos = {1.5, 2.0, 3.0, 6.0};
    try {
        return std::ranges::count(espaçamentos, lerPrefixo(texto)) > 0;
    } catch (const ErroExecucao&) {
        return false; // past the largest double, it is none of them
    }
}

bool espaçamentoVálido() {
    if (éEspaçamento(form7->Combo2.texto)) return true;
    plataforma::mensagem("O valor de espaçamento entre coletores deve ser 1.5 m, 2.0 m, 3.0 m ou 6.0 m!");
    escolherItem(form7->Combo2, 1);
    return false;
}

bool velocidadeVálida() {
    const char* recusa = primeiraRecusa(verificaçõesDaVelocidade, form7->Text1.texto);
    if (!recusa) return true;
    plataforma::mensagem(recusa);
    definirTexto(form7->Text1, "50");
    return false;
}

bool parâmetrosVálidos() {
    auto& f = *form7.operator->();
    char letra = 'A';
    for (auto* caixa : {&f.Text2, &f.Text3, &f.Text4, &f.Text5, &f.Text6, &f.Text7}) {
        const bool recusado =
            std::ranges::any_of(recusasDeParâmetro, [&](const auto recusa) { return recusa(caixa->texto); });
        if (recusado) {
            plataforma::mensagem(std::string{"Insira um valor numérico para o parâmetro "} + letra + "!");
            definirTexto(*caixa, "");
            focar(*caixa);
            return false;
        }
        ++letra;
    }
    return true;
}

} // namespace

const std::array<VerificaçãoDeTexto, 3> verificaçõesDaVelocidade = {
    {{nãoÉNumérico, "Insira um valor numérico de velocidade do aspersor!"},
     {éVazio, "Valor de velocidade do aspersor inválido!"},
     {velocidadeForaDaFaixa,
      "O valor de velocidade do aspersor deve ser maior que zero e menor que 300 m/h!"}}};

const std::array<bool (*)(const std::string&), 2> recusasDeParâmetro = {nãoÉNumérico, éVazio};

bool entradasDaSimulaçãoVálidas() { return espaçamentoVálido() && velocidadeVálida() && parâmetrosVálidos(); }

} // namespace varenta
