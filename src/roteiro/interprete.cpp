#include "roteiro/interprete.h"

#include "comum/arquivo_texto.h"
#include "comum/limites.h"
#include "comum/numeros.h"
#include "roteiro/apresentacao.h"
#include "roteiro/palavras.h"
#include "shell/sistema.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <istream>
#include <map>
#include <new>
#include <ostream>
#include <utility>

namespace varenta {
namespace {

/// The screen and the name that follows its point; nothing follows for a screen alone.
struct Nome {
    TelaBase* tela;
    std::optional<std::string> controle;
};

Nome interpretarNome(const std::string& palavra) {
    const auto ponto = palavra.find('.');
    const auto nomeDaTela = palavra.substr(0, ponto);
    auto* tela = telaDeNome(nomeDaTela);
    if (!tela) throw ErroDeRoteiro{"não há a tela " + entreAspas(nomeDaTela)};
    if (ponto == std::string::npos) return {tela, std::nullopt};
    return {tela, palavra.substr(ponto + 1)};
}

TelaBase& telaDe(const std::string& palavra) {
    if (palavra.find('.') != std::string::npos)
        throw ErroDeRoteiro{palavra + " é um controle: o comando pede uma tela"};
    auto* tela = telaDeNome(palavra);
    if (!tela) throw ErroDeRoteiro{"não há a tela " + entreAspas(palavra)};
    return *tela;
}

const TelaBase& exigirCarregada(const TelaBase& tela) {
    if (!tela.carregada()) throw ErroDeRoteiro{tela.nome() + " não está carregada"};
    return tela;
}

/// The controls that "Controle" or "Controle(3)" names: one, or each element of a control array in their
/// order.
std::vector<Alvo> alvosDeNome(TelaBase& tela, std::string nome) {
    exigirCarregada(tela);
    std::optional<int> índice;
    if (const auto parêntese = nome.find('('); parêntese != std::string::npos && nome.ends_with(')')) {
        índice = lerInteiro(std::string_view{nome}.substr(parêntese + 1, nome.size() - parêntese - 2));
        nome.resize(parêntese);
    }
    std::vector<Alvo> alvos;
    for (auto& elemento : tela.elementos())
        if (elemento.nome == nome) alvos.push_back({&tela, std::move(elemento)});
    if (alvos.empty()) throw ErroDeRoteiro{tela.nome() + " não tem o controle " + entreAspas(nome)};
    if (!índice) return alvos;

    const auto completo = tela.nome() + '.' + nome;
    const auto primeiro = alvos.front().elemento.índice;
    if (!primeiro) throw ErroDeRoteiro{completo + " não tem índices"};
    const auto alvo = std::ranges::find(alvos, índice, [](const Alvo& a) { return a.elemento.índice; });
    if (alvo == alvos.end())
        throw ErroDeRoteiro{completo + " tem índices de " + std::to_string(*primeiro) + " a " +
                            std::to_string(*alvos.back().elemento.índice)};
    return {*alvo};
}

std::vector<Alvo> alvosDe(const std::string& palavra) {
    auto [tela, controle] = interpretarNome(palavra);
    if (!controle) throw ErroDeRoteiro{palavra + " é uma tela: falta o nome do controle"};
    return alvosDeNome(*tela, *std::move(controle));
}

/// The one control that an act is for.
Alvo alvoDe(const std::string& palavra) {
    auto alvos = alvosDe(palavra);
    if (!palavra.ends_with(')') && alvos.front().elemento.índice)
        throw ErroDeRoteiro{palavra + " precisa de um índice"};
    return std::move(alvos.front());
}

template <class Fila>
void exigirLugar(const Fila& fila) {
    if (fila.size() == maisRespostas) throw ErroDeRoteiro{"há respostas demais por usar"};
}

std::string lerTudo(std::istream& entrada) {
    std::string bytes;
    std::array<char, 1 << 16> parte;
    do {
        entrada.read(parte.data(), static_cast<std::streamsize>(parte.size()));
        bytes.append(parte.data(), static_cast<std::size_t>(entrada.gcount()));
        if (bytes.size() > maiorArquivo) throw ErroExecucao{"o texto é grande demais"};
    } while (entrada);
    if (entrada.bad()) throw ErroExecucao{"falha na leitura"};
    return bytes;
}

} // namespace

struct Interprete::Comando {
    std::string_view uso;
    /// How many words follow the command's own.
    std::size_t mínimo, máximo;
    void (Interprete::*executar)(const Palavras&);

    [[noreturn]] void recusarUso() const { throw ErroDeRoteiro{"uso: " + std::string{uso}}; }
};

const Interprete::Comando& Interprete::comandoDeNome(const std::string& nome) {
    static const std::map<std::string_view, Comando> comandos{
        {"clicar", {"clicar Tela.Controle", 1, 1, &Interprete::clicar}},
        {"escolher", {"escolher Tela.Controle TEXTO", 2, 2, &Interprete::escolher}},
        {"digitar", {"digitar Tela.Controle TEXTO", 2, 2, &Interprete::digitar}},
        {"rolar", {"rolar Tela.Controle VALOR", 2, 2, &Interprete::rolar}},
        {"arrastar", {"arrastar Tela.Controle VALOR", 2, 2, &Interprete::arrastar}},
        {"celula", {"celula Tela.Grade LINHA COLUNA TEXTO", 4, 4, &Interprete::celula}},
        {"mover", {"mover Tela.Desenho X Y, ou mover Tela", 1, 3, &Interprete::mover}},
        {"fechar", {"fechar Tela", 1, 1, &Interprete::fechar}},
        {"responder", {"responder sim, ou responder não", 1, 1, &Interprete::responder}},
        {"arquivo", {"arquivo CAMINHO, ou arquivo cancelar", 1, 1, &Interprete::arquivo}},
        {"mostrar", {"mostrar Tela.Controle, ou mostrar Tela", 1, 1, &Interprete::mostrar}},
        {"estado", {"estado Tela.Controle", 1, 1, &Interprete::estado}},
        {"foco", {"foco", 0, 0, &Interprete::foco}},
        {"telas", {"telas", 0, 0, &Interprete::telas}},
    };
    const auto comando = comandos.find(nome);
    if (comando == comandos.end()) throw ErroDeRoteiro{"comando desconhecido: " + nome};
    return comando->second;
}

Interprete::Desfecho Interprete::executarArquivo(const std::string& arquivo) {
    std::string texto;
    try {
        texto = lerTexto(arquivo);
    } catch (const ErroExecucao& e) {
        erros_ << arquivo << ": " << e.what() << '\n';
        return falha;
    }
    return executarTexto(texto, arquivo, std::filesystem::path{arquivo}.parent_path());
}

Interprete::Desfecho Interprete::executarFluxo(std::istream& entrada) {
    std::string texto;
    try {
        texto = decodificar(lerTudo(entrada));
    } catch (const ErroExecucao& e) {
        erros_ << "-: " << e.what() << '\n';
        return falha;
    }
    return executarTexto(texto, "-", {});
}

Interprete::Desfecho Interprete::executarTexto(std::string_view texto, std::string arquivo,
                                               std::filesystem::path pasta) {
    arquivo_ = std::move(arquivo);
    pasta_ = std::move(pasta);
    linha_ = 0;
    encerrado_ = false;
    respostas_.clear();
    arquivos_.clear();

    struct Ativação {
        explicit Ativação(Interprete* interprete) { ativo_ = interprete; }
        Ativação(const Ativação&) = delete;
        Ativação& operator=(const Ativação&) = delete;
        ~Ativação() { ativo_ = nullptr; }
    } const ativação{this};

    try {
        iniciarSistema();
        executarLinhas(texto);
        atos::soltar();
        esvaziarSaída();
        avisarDeRespostasNãoUsadas();
        return concluído;
    } catch (const ErroDeRoteiro& e) {
        acusar(e.what());
        return erroNoRoteiro;
    } catch (const AtoRecusado& e) {
        acusar(e.what());
        return erroNoRoteiro;
    } catch (const FalhaDeSaída& e) {
        acusar(e.what());
        return falha;
    } catch (const std::bad_alloc&) {
        acusar("memória insuficiente");
        return falha;
    }
}

void Interprete::executarLinhas(std::string_view texto) {
    while (!texto.empty()) {
        ++linha_;
        const auto quebra = std::min(texto.find('\n'), texto.size());
        auto linha = texto.substr(0, quebra);
        texto.remove_prefix(std::min(quebra + 1, texto.size()));
        if (linha.ends_with('\r')) linha.remove_suffix(1);
        if (linha.size() > maiorLinha) throw ErroDeRoteiro{"a linha é longa demais"};
        // No message that repeats a word would come out whole, and no keyboard types it.
        if (linha.find('\0') != std::string_view::npos) throw ErroDeRoteiro{"a linha tem um caractere nulo"};
        if (const auto palavras = separarPalavras(linha); !palavras.empty()) executarComando(palavras);
    }
}

void Interprete::executarComando(const Palavras& palavras) {
    if (encerrado_) throw ErroDeRoteiro{"o programa foi encerrado"};
    const auto& comando = comandoDeNome(palavras[0]);
    const auto argumentos = palavras.size() - 1;
    if (argumentos < comando.mínimo || argumentos > comando.máximo) comando.recusarUso();
    (this->*comando.executar)(palavras);
    esvaziarSaída();
    if (depoisDeCadaComando) depoisDeCadaComando();
}

void Interprete::clicar(const Palavras& palavras) { atos::clicar(alvoDe(palavras[1])); }

void Interprete::escolher(const Palavras& palavras) { atos::escolher(alvoDe(palavras[1]), palavras[2]); }

void Interprete::digitar(const Palavras& palavras) {
    atos::digitar(alvoDe(palavras[1]), palavras[2]);
    atos::confirmar();
}

void Interprete::rolar(const Palavras& palavras) {
    atos::rolar(alvoDe(palavras[1]), lerInteiro(palavras[2]));
}

void Interprete::arrastar(const Palavras& palavras) {
    atos::arrastar(alvoDe(palavras[1]), lerInteiro(palavras[2]));
}

void Interprete::celula(const Palavras& palavras) {
    atos::preencherCélula(alvoDe(palavras[1]), lerInteiro(palavras[2]), lerInteiro(palavras[3]), palavras[4]);
}

void Interprete::mover(const Palavras& palavras) {
    if (palavras.size() == 2)
        atos::moverMouse(telaDe(palavras[1]));
    else if (palavras.size() == 4)
        atos::moverMouse(alvoDe(palavras[1]), lerNúmero(palavras[2]), lerNúmero(palavras[3]));
    else
        comandoDeNome(palavras[0]).recusarUso();
}

void Interprete::fechar(const Palavras& palavras) { atos::fechar(telaDe(palavras[1])); }

void Interprete::responder(const Palavras& palavras) {
    const auto& resposta = palavras[1];
    if (resposta != "sim" && resposta != "não") comandoDeNome(palavras[0]).recusarUso();
    exigirLugar(respostas_);
    respostas_.push_back({linha_, "responder " + resposta, resposta == "sim"});
}

void Interprete::arquivo(const Palavras& palavras) {
    const auto& caminho = palavras[1];
    if (!caminho.empty() && !std::filesystem::path{caminho}.has_filename())
        throw ErroDeRoteiro{"o caminho não tem nome de arquivo"};
    std::optional<std::string> resposta;
    if (caminho != "cancelar") resposta = caminho;
    exigirLugar(arquivos_);
    arquivos_.push_back({linha_, "arquivo " + caminho, std::move(resposta)});
}

void Interprete::mostrar(const Palavras& palavras) {
    auto [tela, controle] = interpretarNome(palavras[1]);
    exigirCarregada(*tela);
    if (!controle) {
        for (auto& elemento : tela->elementos()) imprimir(apresentarResumo({tela, std::move(elemento)}));
        if (aoMostrarTela) aoMostrarTela(*tela);
    } else if (*controle == "Caption") {
        imprimir(apresentarTexto(palavras[1], tela->caption()));
    } else {
        constexpr std::string_view itens = ".itens";
        const bool sóItens = controle->ends_with(itens);
        if (sóItens) controle->resize(controle->size() - itens.size());
        for (const auto& alvo : alvosDeNome(*tela, *controle))
            imprimir(sóItens ? apresentarItens(alvo) : apresentarPorInteiro(alvo));
    }
}

void Interprete::estado(const Palavras& palavras) {
    for (const auto& alvo : alvosDe(palavras[1])) imprimir(apresentarEstado(alvo));
}

void Interprete::foco(const Palavras&) {
    std::string nome = "nenhum";
    for (auto* tela : TelaBase::todas())
        for (const auto& elemento : tela->elementos())
            if (elemento.endereço() == controleComFoco) nome = Alvo{tela, elemento}.nomeCompleto();
    imprimir("foco: " + nome + '\n');
}

void Interprete::telas(const Palavras&) {
    for (const auto* tela : telasEmOrdem())
        if (tela->carregada())
            imprimir(tela->nome() + ": " + (tela->visivel ? "visível" : "oculta") +
                     (tela->habilitada ? " habilitada\n" : " desabilitada\n"));
}

void Interprete::mensagem(std::string_view texto) { imprimir("mensagem: " + escapar(texto) + '\n'); }

bool Interprete::perguntar(std::string_view texto) {
    const bool sim = tirarResposta(respostas_, "a pergunta " + entreAspas(escapar(texto)));
    imprimir("pergunta: " + escapar(texto) + (sim ? " -> sim\n" : " -> não\n"));
    return sim;
}

void Interprete::avisar(std::string_view texto) { imprimir("aviso: " + escapar(texto) + '\n'); }

void Interprete::erroDeExecucao(std::string_view texto) { imprimir("erro: " + escapar(texto) + '\n'); }

void Interprete::ajuda(std::optional<int> tópico) {
    imprimir("ajuda: " + (tópico ? std::to_string(*tópico) : std::string{"índice"}) + '\n');
}

void Interprete::progresso(double valor, std::string_view texto) {
    if (mostrarProgresso) imprimir("progresso: " + paraTexto(valor) + ' ' + escapar(texto) + '\n');
}

std::optional<std::string> Interprete::arquivoParaAbrir() {
    const auto caminho = tirarResposta(arquivos_, "o diálogo do arquivo para abrir");
    imprimir("arquivo para abrir: " + caminho.value_or("cancelado") + '\n');
    if (!caminho) return std::nullopt;
    return caminhoCompleto(*caminho);
}

std::optional<std::string> Interprete::arquivoParaSalvar(const plataforma::DialogoArquivo& diálogo) {
    auto caminho = tirarResposta(arquivos_, "o diálogo do arquivo para salvar");
    if (caminho && !caminho->empty() && !diálogo.extensãoPadrão.empty() &&
        !std::filesystem::path{*caminho}.has_extension())
        *caminho += '.' + diálogo.extensãoPadrão;
    imprimir("arquivo para salvar: " + caminho.value_or("cancelado") + '\n');
    if (!caminho) return std::nullopt;
    return caminhoCompleto(*caminho);
}

template <class Valor>
Valor Interprete::tirarResposta(std::deque<Resposta<Valor>>& fila, const std::string& pedido) {
    if (fila.empty()) throw ErroDeRoteiro{pedido + " não tem resposta na fila"};
    auto valor = std::move(fila.front().valor);
    fila.pop_front();
    return valor;
}

void Interprete::imprimir(std::string_view linhas) { saída_ << linhas; }

void Interprete::esvaziarSaída() {
    saída_.flush();
    if (!saída_) throw FalhaDeSaída{"a saída não pôde ser gravada"};
}

void Interprete::acusar(std::string_view motivo) {
    saída_.flush();
    erros_ << arquivo_ << ':' << linha_ << ": " << motivo << '\n';
}

void Interprete::avisarDeRespostasNãoUsadas() {
    std::map<int, std::string> comandos;
    for (const auto& r : respostas_) comandos[r.linha] = r.comando;
    for (const auto& a : arquivos_) comandos[a.linha] = a.comando;
    for (const auto& [linha, comando] : comandos)
        erros_ << arquivo_ << ':' << linha << ": aviso: resposta não usada: " << comando << '\n';
}

} // namespace varenta
