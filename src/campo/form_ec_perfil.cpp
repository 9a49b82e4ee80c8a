#include "aspersor/arquivo_radial.h"
#include "aspersor/avancar_perfil_form.h"
#include "aspersor/perfil.h"
#include "campo/form_ec.h"
#include "campo/leituras_ec.h"
#include "campo/perfil_do_movel.h"
#include "campo/vazao_ec.h"
#include "comum/arquivos_de_dados.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "comum/verificacoes.h"

namespace varenta {
namespace {

/// Settles the flow in `Text12`. Where none was given, the volume of a whole hour in litres stands there,
/// whatever the person answers; the question about the difference always follows then.
bool vazãoAceita(double somaV) {
    auto& f = *formEC.operator->();
    if (f.Text12.texto.empty()) {
        plataforma::perguntar(perguntaDaVazão);
        definirTexto(f.Text12, Format(somaV, "0.000"));
    }
    if (const char* recusa = primeiraRecusa(verificaçõesDaVazãoDoEnsaio, f.Text12.texto)) {
        plataforma::mensagem(recusa);
        focar(f.Text12);
        return false;
    }
    if (!vazãoDiverge(somaV / 1000, lerEstrito(f.Text12.texto))) return true;
    if (plataforma::perguntar(perguntaDaDivergência)) return true;
    marcar(formEC, f.Option1);
    return false;
}

PerfilMóvel lerPerfilMóvel() {
    const auto ensaio = lerEnsaio();
    const auto n = static_cast<double>(ensaio.linhas.size());
    PerfilMóvel móvel{{}, {}, ensaio.espaço};
    for (std::size_t j = 0; j < ensaio.coletores; ++j) {
        double esquerda = 0, direita = 0;
        for (const auto& linha : ensaio.linhas) {
            esquerda += linha.esquerda[j];
            direita += linha.direita[j];
        }
        móvel.D.push_back((dividir(esquerda, n) + dividir(direita, n)) / 2);
        móvel.x.push_back(ensaio.espaço * (static_cast<double>(j) + 0.5));
    }
    return móvel;
}

} // namespace

const std::array<VerificaçãoDeTexto, 2> verificaçõesDaVazãoDoEnsaio = {
    {{nãoÉNumérico, "Valor numérico de vazão inválido!"},
     {nãoÉPositivo, "Valor numérico de vazão inválido!"}}};

void perfilRadialDoMovel() {
    constexpr const char* explicação =
        "confira a velocidade e as lâminas: é preciso ter água em duas posições de cada lado, com lâminas "
        "diferentes nas duas últimas";
    const auto móvel = lerPerfilMóvel();
    if (const char* recusa = explicarErro(explicação, [&] { return recusaDoPerfilMóvel(móvel); })) {
        plataforma::mensagem(recusa);
        return;
    }
    auto& f = *formEC.operator->();
    const double alfa = ((360 - lerPrefixo(f.Text9.texto)) / 2) * piDoEnsaioMóvel.pi / 180;
    const auto [R, anéis] = explicarErro(
        explicação, [&] { return inverterPerfilMóvel(móvel, lerEstrito(f.Text11.texto), alfa); });
    const double somaV = volumeSobOPerfil(anéis, piDoEnsaioMóvel);
    if (!vazãoAceita(somaV)) return;

    const double Q = lerEstrito(f.Text12.texto);
    // Points inside the first ring get its value.
    std::vector<PontoMedido> pontos{{0, anéis.front().i}};
    pontos.insert(pontos.end(), anéis.begin(), anéis.end());
    mostrarNoPerfil(perfilMedido(pontos, R, somaV, Q, piDoEnsaioMóvel),
                    {.nome = f.Text6.texto,
                     .bocais = f.Text8.texto,
                     .pressão = f.Text13.texto,
                     .nomeDaPressão = "Pressão de Serviço",
                     .vazão = Format(Q, "0.000"),
                     .anguloJato = "",
                     .padrãoDoRaio = "#0.0",
                     .divisor = 5});
    perfil->Command2.visivel = false;
    formEC.esconder();
    perfil.mostrar();
}

void perfil_Command4_Click() {
    const auto& f = *formEC.operator->();
    ArquivoRadial arquivo{.nome = f.Text6.texto,
                          .bocais = f.Text8.texto,
                          .pressão = f.Text13.texto,
                          .anguloJato = f.Text1.texto,
                          .vazão = f.Text12.texto,
                          .linhas = std::to_string(pontosDoPerfil),
                          .unidade = UnidadeRadial::mmPorHora,
                          .tempo = "",
                          .diâmetro = "",
                          .pontos = {}};
    for (std::size_t k = 1; k <= pontosDoPerfil; ++k)
        arquivo.pontos.push_back({perfil->lblRaio[k].texto, perfil->lblIntensidade[k].texto});
    salvarArquivoDeDados(textoDoArquivo(arquivo), falhaAoSalvarDados);
}

void perfil_Command5_Click() {
    perfil.descarregar();
    formEC.mostrar();
    telaPrincipal->esconder();
}

} // namespace varenta
