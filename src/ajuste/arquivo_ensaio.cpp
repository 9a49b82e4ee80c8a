#include "ajuste/arquivo_ensaio.h"

#include "ajuste/cabecalhos.h"
#include "comum/arquivo_texto.h"
#include "comum/erro_execucao.h"
#include "comum/limites.h"
#include "comum/numeros.h"

namespace varenta {
namespace {

[[noreturn]] void recusar() { throw EnsaioRecusado{"O arquivo não pode ser aberto, consulte a ajuda!"}; }

double númeroEntre(const std::string& linha, double menor, double maior) {
    const double x = lerEstrito(linha);
    if (x < menor || x > maior) recusar();
    return x;
}

double númeroNãoNulo(const std::string& linha) {
    const double x = lerEstrito(linha);
    if (x == 0) recusar();
    return x;
}

double espaçamento(const std::string& linha) {
    númeroNãoNulo(linha);
    return númeroEntre(linha, -maiorEspaçamento, maiorEspaçamento);
}

constexpr auto grandeDemais = "O arquivo é muito grande!";

/// A count of collectors or lines, at least 1.
int contagem(const std::string& linha) {
    const double x = lerEstrito(linha);
    if (x < 1 || x != Int(x)) recusar();
    if (x > maiorContagem) throw EnsaioRecusado{grandeDemais};
    return paraInteiro(x);
}

std::string nãoVazia(std::string linha) {
    if (linha.empty()) recusar();
    return linha;
}

/// The mode of the readings, 1 to `maior`.
int modo(const std::string& linha, int maior) {
    const double m = númeroEntre(linha, 1, maior);
    if (m != Int(m)) recusar();
    return paraInteiro(m);
}

bool emBranco(const std::string& linha) { return linha.find_first_not_of(" \t") == std::string::npos; }

std::vector<std::string> camposDe(const std::string& linha) {
    std::vector<std::string> campos{""};
    for (const char c : linha) {
        if (c == '\t')
            campos.emplace_back();
        else
            campos.back() += c;
    }
    return campos;
}

std::vector<std::string> lerLinhaDeLeituras(const std::string& linha, int colunas) {
    if (emBranco(linha))
        throw EnsaioRecusado{"O número de coletores em cada linha excede aos valores de dados do arquivo!"};
    auto campos = camposDe(linha);
    if (campos.size() != static_cast<std::size_t>(colunas))
        throw EnsaioRecusado{"O número de dados de entrada deve ser igual: " + std::to_string(colunas) +
                             " !"};
    for (auto& campo : campos) campo = Format(lerEstrito(campo), "0.000");
    return campos;
}

/// The rest of the file: so many rows of so many readings.
std::vector<std::vector<std::string>> lerLeituras(LeitorDeLinhas& leitor, int linhas, int colunas) {
    const auto quantas = static_cast<std::size_t>(linhas);
    std::vector<std::vector<std::string>> leituras;
    while (!leitor.sóRestaBranco()) {
        const auto linha = leitor.próxima();
        if (leituras.size() == quantas) throw EnsaioRecusado{grandeDemais};
        leituras.push_back(lerLinhaDeLeituras(linha, colunas));
    }
    if (leituras.size() < quantas)
        throw EnsaioRecusado{"O número de linhas de coletores do arquivo não coicide com o número de linhas "
                             "especificado!"};
    return leituras;
}

void lerAspersor(LeitorDeLinhas& leitor, ArquivoDeEnsaio& arquivo) {
    arquivo.modelo = leitor.próxima();
    arquivo.bocais = leitor.próxima();
    arquivo.pressão = leitor.próxima();
    leitor.próxima(); // jet angle
    leitor.próxima(); // flow
}

void lerVento(LeitorDeLinhas& leitor, ArquivoDeEnsaio& arquivo) {
    arquivo.W = númeroEntre(leitor.próxima(), 0, 10);
    arquivo.direção = paraInteiro(númeroEntre(leitor.próxima(), 0, 360));
}

ArquivoDeMalha lerMalha(LeitorDeLinhas& leitor) {
    ArquivoDeMalha arquivo;
    lerAspersor(leitor, arquivo);
    arquivo.N = contagem(leitor.próxima());
    arquivo.e = espaçamento(leitor.próxima());
    lerVento(leitor, arquivo);
    arquivo.modo = modo(leitor.próxima(), 3);
    if (arquivo.modo >= 2) arquivo.tempo = nãoVazia(leitor.próxima());
    if (arquivo.modo == 3) arquivo.diâmetro = nãoVazia(leitor.próxima());
    arquivo.leituras = lerLeituras(leitor, arquivo.N, arquivo.N);
    return arquivo;
}

ArquivoMóvelComVento lerMóvel(LeitorDeLinhas& leitor) {
    ArquivoMóvelComVento arquivo;
    lerAspersor(leitor, arquivo);
    arquivo.velocidade = leitor.próxima();
    númeroNãoNulo(arquivo.velocidade);
    arquivo.anguloGiro = númeroEntre(leitor.próxima(), 180, 360);
    arquivo.linhas = contagem(leitor.próxima());
    arquivo.eL = espaçamento(leitor.próxima());
    arquivo.cadaLado = contagem(leitor.próxima());
    arquivo.eC = espaçamento(leitor.próxima());
    lerVento(leitor, arquivo);
    arquivo.modo = modo(leitor.próxima(), 2);
    if (arquivo.modo == 2) arquivo.diâmetro = nãoVazia(leitor.próxima());
    arquivo.leituras = lerLeituras(leitor, 2 * arquivo.cadaLado, arquivo.linhas);
    return arquivo;
}

/// Whatever else goes wrong while a file is read is a file that can't be opened.
template <class Arquivo>
Arquivo lerArquivo(const std::string& caminho, Arquivo (*ler)(LeitorDeLinhas&)) {
    LeitorDeLinhas leitor;
    try {
        try {
            leitor.abrir(caminho);
            return ler(leitor);
        } catch (const ErroExecucao&) {
            recusar();
        }
    } catch (EnsaioRecusado& recusa) {
        recusa.onde = leitor.onde();
        throw;
    }
}

} // namespace

ArquivoDeMalha lerArquivoDeMalha(const std::string& caminho) { return lerArquivo(caminho, lerMalha); }

ArquivoMóvelComVento lerArquivoMóvel(const std::string& caminho) { return lerArquivo(caminho, lerMóvel); }

} // namespace varenta
