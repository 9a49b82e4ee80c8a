#include "fuzz/apoio_fuzz.h"

#include "comum/plataforma.h"
#include "roteiro/interprete.h"
#include "shell/form3.h"
#include "shell/sistema.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/mman.h>
#include <unistd.h>

namespace varenta::fuzz {

std::vector<std::string> caderno;
std::string caminhoParaAbrir;

void acusar(std::string_view motivo) {
    std::string texto{motivo};
    for (const auto& anotado : caderno) texto += "\n    " + anotado;
    throw Defeito{texto};
}

const std::string& pastaDeRascunho() {
    struct Pasta {
        std::string caminho;
        Pasta() {
            const std::filesystem::path memória = "/dev/shm";
            const auto raiz =
                ::access(memória.c_str(), W_OK) == 0 ? memória : std::filesystem::temp_directory_path();
            caminho = (raiz / "varenta-fuzz-XXXXXX").string();
            if (!::mkdtemp(caminho.data())) throw std::runtime_error{"no temporary folder"};
        }
        Pasta(const Pasta&) = delete;
        Pasta& operator=(const Pasta&) = delete;
        ~Pasta() {
            std::error_code ignorado;
            std::filesystem::remove_all(caminho, ignorado);
        }
    };
    static const Pasta pasta;
    return pasta.caminho;
}

std::string caminhoParaSalvar() { return pastaDeRascunho() + "/salvo.TXT"; }

ArquivoNaMemória::ArquivoNaMemória()
    : descritor_{::memfd_create("varenta", MFD_CLOEXEC)}, caminho_{"/proc/self/fd/"} {
    if (descritor_ < 0) throw std::runtime_error{"no file in memory"};
    caminho_ += std::to_string(descritor_);
}

ArquivoNaMemória::~ArquivoNaMemória() { ::close(descritor_); }

const std::string& ArquivoNaMemória::gravar(std::string_view bytes) {
    if (::ftruncate(descritor_, 0) != 0 ||
        ::pwrite(descritor_, bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
        throw std::runtime_error{"no room for a file in memory"};
    return caminho_;
}

void recomeçar() {
    // What `iniciarSistema` does, but for the main window, which takes longest and holds nothing.
    for (auto* tela : TelaBase::todas())
        if (tela != &form3) tela->descarregar();
    telaPrincipal = &form3;
    voltarAoMenu();
    controleComFoco = nullptr;
    caderno.clear();
}

std::string bytesDoArquivo(const std::string& caminho) {
    std::ifstream arquivo{caminho, std::ios::binary};
    return {std::istreambuf_iterator<char>{arquivo}, {}};
}

void Fotógrafo::número(double x) {
    std::array<char, sizeof x> bytes;
    std::copy_n(reinterpret_cast<const char*>(&x), bytes.size(), bytes.begin());
    foto_.append(bytes.begin(), bytes.end());
}

void Fotógrafo::ver(const Rolagem& rolagem) { foto_ += std::to_string(rolagem.valor); }
void Fotógrafo::ver(const Barra& barra) { número(barra.valor); }

void Fotógrafo::ver(const Grade& grade) {
    for (const int n : {grade.linhas, grade.colunas, grade.linhaAtual, grade.colunaAtual}) {
        foto_ += std::to_string(n);
        foto_ += ' ';
    }
    for (const auto& célula : grade.células) {
        foto_ += célula;
        foto_ += '\t';
    }
}

void Fotógrafo::ver(const Desenho& desenho) {
    for (const auto& traço : desenho.traços) {
        foto_ += ' ';
        if (const auto* l = std::get_if<Linha>(&traço))
            for (const double x : {l->x1, l->y1, l->x2, l->y2}) número(x);
        if (const auto* c = std::get_if<CaixaCheia>(&traço))
            for (const double x : {c->x1, c->y1, c->x2, c->y2}) número(x);
        if (const auto* a = std::get_if<Arco>(&traço))
            for (const double x : {a->cx, a->cy, a->raio, a->início, a->fim}) número(x);
    }
}

void exigirIguais(const std::string& antes, const std::string& depois, std::string_view quando) {
    if (antes == depois) return;
    const auto diferença = std::ranges::mismatch(antes, depois);
    const auto linha = [](const std::string& texto, std::string::const_iterator lugar) {
        const auto n = static_cast<std::size_t>(lugar - texto.begin());
        const auto início = n == 0 ? std::string::npos : texto.rfind('\n', n - 1);
        const auto primeiro = início == std::string::npos ? 0 : início + 1;
        return texto.substr(primeiro, std::min<std::size_t>(texto.find('\n', n), n + 80) - primeiro);
    };
    acusar("the state differs " + std::string{quando} + ":\n  <" + linha(antes, diferença.in1) + ">\n  <" +
           linha(depois, diferença.in2) + ">");
}

std::optional<Numeral> numeralNoInício(std::string_view texto) {
    const auto é = [&](std::size_t p, std::string_view quais) {
        return p < texto.size() && quais.find(texto[p]) != std::string_view::npos;
    };
    constexpr std::string_view algarismos = "0123456789";
    std::size_t p = 0;
    while (é(p, " \t")) ++p;
    const auto início = p;
    if (é(p, "+-")) ++p;
    bool algum = false;
    for (; é(p, algarismos); ++p) algum = true;
    if (é(p, "."))
        ++p;
    else if (!algum)
        return std::nullopt;
    for (; é(p, algarismos); ++p) algum = true;
    if (!algum) return std::nullopt;
    if (é(p, "eE")) {
        auto q = p + 1;
        if (é(q, "+-")) ++q;
        if (é(q, algarismos)) {
            while (é(q, algarismos)) ++q;
            p = q;
        }
    }
    // The C library's, whatever the locale has for a decimal point.
    static const locale_t deC = ::newlocale(LC_ALL_MASK, "C", nullptr);
    const double valor = ::strtod_l(std::string{texto.substr(início, p - início)}.c_str(), nullptr, deC);
    return Numeral{valor, std::isinf(valor), texto.substr(p)};
}

std::optional<double> númeroDe(std::string_view texto) {
    const auto numeral = numeralNoInício(texto);
    if (!numeral || numeral->estoura || numeral->resto.find_first_not_of(" \t") != std::string_view::npos)
        return std::nullopt;
    return numeral->valor;
}

bool mostra(std::string_view célula, double valor, std::size_t casas) {
    const auto mostrado = númeroDe(célula);
    if (!mostrado || célula.find_first_not_of("-0123456789.") != std::string_view::npos) return false;
    const auto ponto = célula.find('.');
    if (ponto == std::string_view::npos || célula.size() - ponto - 1 != casas) return false;
    const double meio = 0.5 * std::pow(10, -static_cast<double>(casas));
    return std::abs(*mostrado - valor) <= meio * (1 + 1e-9) + std::abs(valor) * 1e-15;
}

bool emBranco(const std::string& linha) { return linha.find_first_not_of(" \t") == std::string::npos; }

std::vector<std::string> colunasDe(std::string_view linha) {
    std::vector<std::string> colunas{""};
    for (const char c : linha) {
        if (c == '\t')
            colunas.emplace_back();
        else
            colunas.back() += c;
    }
    return colunas;
}

const std::string& Cursor::preenchida() {
    const auto& texto = linha();
    if (texto.empty()) throw LinhaRecusada{};
    return texto;
}

double Cursor::número() {
    const auto valor = númeroDe(linha());
    if (!valor) throw LinhaRecusada{};
    return *valor;
}

double Cursor::númeroEntre(double menor, double maior) {
    const double valor = número();
    if (valor < menor || valor > maior) throw LinhaRecusada{};
    return valor;
}

double Cursor::númeroNãoNulo() {
    const double valor = número();
    if (valor == 0) throw LinhaRecusada{};
    return valor;
}

double Cursor::espaçamento() {
    const double valor = númeroNãoNulo();
    if (valor < -1000 || valor > 1000) throw LinhaRecusada{};
    return valor;
}

double Cursor::númeroPositivo() {
    const double valor = número();
    if (valor <= 0) throw LinhaRecusada{};
    return valor;
}

int Cursor::contagem(int maior) {
    const double valor = númeroEntre(1, maior);
    if (valor != std::floor(valor)) throw LinhaRecusada{};
    return static_cast<int>(valor);
}

std::vector<double> Cursor::leituras(std::size_t quantas) {
    const auto colunas = colunasDe(linha());
    if (colunas.size() != quantas) throw LinhaRecusada{};
    std::vector<double> leituras;
    for (const auto& coluna : colunas) {
        const auto valor = númeroDe(coluna);
        if (!valor) throw LinhaRecusada{};
        leituras.push_back(*valor);
    }
    return leituras;
}

void Cursor::exigirFim(bool (*vazia)(const std::string&)) {
    while (!fim())
        if (!vazia(linha())) throw LinhaRecusada{};
}

namespace {

void anotar(const char* tipo, std::string_view texto) {
    caderno.push_back(tipo);
    caderno.back() += texto;
}

/// A script reads and writes in the scratch folder alone, whatever path it gives.
std::optional<std::string> noRascunho(std::optional<std::string> caminho) {
    if (!caminho || caminho->empty()) return caminho;
    return pastaDeRascunho() + '/' + std::filesystem::path{*caminho}.filename().string();
}

} // namespace
} // namespace varenta::fuzz

/// The platform of the trials: the notebook answers, or the script that runs.
namespace varenta::plataforma {

using namespace fuzz;

void mensagem(std::string_view texto, std::string_view) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->mensagem(texto);
    anotar("mensagem: ", texto);
}

bool perguntar(std::string_view texto) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->perguntar(texto);
    anotar("pergunta: ", texto);
    return true;
}

void avisar(std::string_view texto) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->avisar(texto);
    anotar("aviso: ", texto);
}

/// A trial of a script is one of its reader: a simulation would take longer than a thousand others.
void mostrarAmpulheta(bool mostrar) {
    if (mostrar && Interprete::ativo()) throw ErroDeRoteiro{"uma operação demorada"};
}

void erroDeExecucao(std::string_view texto) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->erroDeExecucao(texto);
    anotar("erro: ", texto);
}

std::optional<std::string> arquivoParaAbrir(const DialogoArquivo& diálogo) {
    if (auto* roteiro = Interprete::ativo()) return noRascunho(roteiro->arquivoParaAbrir());
    anotar("abrir: ", diálogo.filtro);
    return caminhoParaAbrir;
}

std::optional<std::string> arquivoParaSalvar(const DialogoArquivo& diálogo) {
    if (auto* roteiro = Interprete::ativo()) return noRascunho(roteiro->arquivoParaSalvar(diálogo));
    anotar("salvar: ", diálogo.filtro);
    return caminhoParaSalvar();
}

void ajuda(std::optional<int> tópico) {
    if (auto* roteiro = Interprete::ativo()) return roteiro->ajuda(tópico);
    anotar("ajuda: ", tópico ? std::to_string(*tópico) : "índice");
}

void respirar() {}
void progresso(double, std::string_view) {
    if (Interprete::ativo()) throw ErroDeRoteiro{"uma operação demorada"};
}

void encerrar() {
    if (auto* roteiro = Interprete::ativo()) roteiro->encerrar();
}

} // namespace varenta::plataforma
