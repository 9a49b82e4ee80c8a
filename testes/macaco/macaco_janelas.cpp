/// Does what a person could do in the windows, with keys and mouse, at random, and looks at the whole system
/// after each movement.
///
///     macaco_janelas [ACTS [SEED]]
///
/// Prints how many movements of each kind were made. Where something is wrong it prints the roteiro that
/// leads there, in which remarks tell the movements of the hand that no roteiro knows, and exits with 1.

#include "apoio/estado.h"
#include "janelas/aplicacao.h"
#include "janelas/dialogos.h"
#include "janelas/janelas.h"
#include "macaco/acaso.h"
#include "macaco/escriba.h"
#include "macaco/exame.h"
#include "macaco/exame_das_janelas.h"
#include "macaco/maos.h"
#include "shell/form3.h"
#include "shell/sistema.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QHashSeed>
#include <QImageReader>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <malloc.h>

namespace varenta::teste {
namespace {

// Too few starts tell nothing of the memory.
constexpr std::ptrdiff_t menosInícios = 30;
// What Qt keeps of its own, glyphs above all, fills up in the course of the first 100,000 acts.
constexpr double maisGuardado = 3 << 20;
constexpr double maiorCrescimento = 8; // bytes an act

/// What went wrong first since it was asked last; Qt's own warnings count.
std::string falha;

void acusar(const std::string& oQuê) {
    if (falha.empty()) falha = oQuê;
}

void ouvirOQt(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    // What the platform without a display and the sending of keys say of themselves.
    if (tipo == QtDebugMsg || tipo == QtInfoMsg ||
        texto.startsWith(QLatin1String{"This plugin does not support"}) ||
        texto.startsWith(QLatin1String{"Keyboard event not accepted"}))
        return;
    acusar("Qt: " + texto.toStdString());
}

std::string ler(const std::string& caminho) {
    std::ifstream arquivo{caminho, std::ios::binary};
    return {std::istreambuf_iterator<char>{arquivo}, {}};
}

/// What is wrong with a file that was saved; empty where nothing is.
std::string exameDoArquivo(const std::string& caminho) {
    const auto bytes = ler(caminho);
    const auto nome = QString::fromStdString(caminho);
    if (bytes.starts_with("\x89PNG"))
        return QImageReader{nome}.read().isNull() ? "an image that can't be read" : "";
    if (bytes.starts_with("%PDF"))
        return bytes.find("%%EOF") == std::string::npos ? "a PDF without its end" : "";
    if (bytes.starts_with("<?xml")) return QSvgRenderer{nome}.isValid() ? "" : "an SVG that can't be read";
    return exameDoTextoSalvo(bytes);
}

/// The program's windows, with boxes and dialogs answered at random.
class Macaco : public QObject, private LeituraDeVolta {
  public:
    explicit Macaco(unsigned semente) : acaso_{semente}, maos_{acaso_, janelas_, escriba_} {
        dialogos() = {.mensagem = [this](const QString& texto, const QString&) { contar(texto); },
                      .perguntar = [this](const QString&) { return responder(); },
                      .erroDeExecucao = [this](const QString& texto) { contarErro(texto); },
                      .arquivoParaAbrir = [this](const QString&) { return escolher(); },
                      .arquivoParaSalvar = [this](const QString& filtros, int,
                                                  const QString&) { return escolherParaSalvar(filtros); },
                      .figuraParaSalvar = [this](const QString&, int) { return escolherFigura(); },
                      .ajuda = [this](std::optional<int> tópico) { abrirAjuda(tópico); }};
        antesDeCadaDialogo = [this] {
            janelas_.atualizar();
            if (noGesto_) maos_.deixarNaFila();
            trabalhando_ = noGesto_;
        };
        qApp->installEventFilter(this);
        recomeçar();
    }
    ~Macaco() override {
        encerrar();
        qApp->removeEventFilter(this);
        antesDeCadaDialogo = nullptr;
        dialogos() = dialogosDoQt();
    }

    /// One movement. Returns what is wrong afterwards; empty where nothing is.
    std::string agir() {
        fazer();
        return std::exchange(falha, {});
    }

    /// What is wrong with the files that were saved since the last start, as at each start.
    std::string encerrarExame() {
        conferirSalvos();
        return std::exchange(falha, {});
    }

  private:
    void fazer() {
        ++gestos_;
        salvo_.reset();
        houveRecado_ = false;
        escriba_.acompanhar(janelas_);
        deixarPintar();
        noGesto_ = true;
        ++feitos_[maos_.agir()];
        noGesto_ = false;
        escriba_.encerrarGesto();
        deixarAndar();
        examinar();
        if (falha.empty() && (!form3.carregada() || gestos_ > maisGestos_)) {
            conferirSalvos();
            if (falha.empty()) recomeçar();
        }
    }

  public:
    const std::vector<std::string>& história() const { return escriba_.linhas(); }
    const std::map<std::string, long>& feitos() const { return feitos_; }
    /// Bytes in use by the program each time that it had no window, in their order.
    const std::vector<double>& memórias() const { return memórias_; }

    bool eventFilter(QObject*, QEvent* evento) override {
        if (!Maos::éDaFila(*evento)) return false;
        // One that waited and came late is dropped here: it would hang on the clock.
        if (noGesto_ && trabalhando_) acusar("what a person did while the program was at work came through");
        return true;
    }

  private:
    /// No boxes within a box.
    class NaCaixa {
      public:
        explicit NaCaixa(Macaco& macaco) : macaco_{macaco} {
            if (std::exchange(macaco_.naCaixa_, true)) acusar("a box within a box");
            // Nothing reaches a window behind a box.
            macaco_.trabalhando_ = false;
            if (auto onde = macaco_.exame_.diferença(); !onde.empty()) acusar("behind a box: " + onde);
        }
        ~NaCaixa() { macaco_.naCaixa_ = false; }
        NaCaixa(const NaCaixa&) = delete;
        NaCaixa& operator=(const NaCaixa&) = delete;

      private:
        Macaco& macaco_;
    };

    void contar(const QString& texto) {
        const NaCaixa agora{*this};
        ++feitos_["message"];
        houveRecado_ = true;
        if (nãoÉNúmero(texto.toStdString())) acusar("no number in a message: " + texto.toStdString());
        recado_ = texto.toStdString();
    }

    /// What the library says of itself is no text for a person.
    void contarErro(const QString& texto) {
        contar(texto);
        if (texto.contains(QLatin1String{"::"}) || texto.startsWith(QLatin1String{"basic_string"}) ||
            texto.startsWith(QLatin1String{"std"}))
            acusar("escaped: " + texto.toStdString());
    }

    bool responder() {
        const NaCaixa agora{*this};
        if (paraLer_) return true;
        const bool sim = !acaso_.umEm(4);
        escriba_.anotarResposta(sim);
        if (!sim) salvo_.reset(); // a file that is there already stays as it is
        return sim;
    }

    std::optional<QString> escolher() {
        const NaCaixa agora{*this};
        if (paraLer_) return QString::fromStdString(*paraLer_);
        const auto caminho = acaso_.arquivo();
        escriba_.anotarArquivo(caminho);
        if (!caminho) return std::nullopt;
        return QString::fromStdString(*caminho);
    }

    /// Tables are saved for other programs.
    std::optional<QString> escolherParaSalvar(const QString& filtros) {
        const auto caminho = escolher();
        if (caminho)
            salvo_ = {caminho->toStdString(), filtros.contains(QLatin1String{"CSV"}) ? "" : telaDoGesto()};
        return caminho;
    }

    std::string telaDoGesto() const {
        for (const auto& modelo : janelasDoPrograma())
            if (janelas_.janela(*modelo.tela) == maos_.última()) return modelo.tela->nome();
        return {};
    }

    std::optional<ArquivoEscolhido> escolherFigura() {
        const NaCaixa agora{*this};
        if (acaso_.umEm(6)) return std::nullopt;
        static constexpr std::array nomes{"figura", "figura.png", "figura.svg", "figura.pdf",
                                          "falta/figura.png"};
        // The largest image takes as long as a thousand other acts.
        const int filtro = acaso_.umEm(20) ? 4 : std::array{1, 2, 5, 6}[acaso_.até(4)];
        const auto nome = acaso_.pasta().caminho(acaso_.algumDe(nomes));
        escriba_.anotarArquivo(nome);
        const auto* terminação = filtro == 5 ? ".svg" : filtro == 6 ? ".pdf" : ".png";
        salvo_ = {std::filesystem::path{nome}.has_extension() ? nome : nome + terminação, ""};
        return ArquivoEscolhido{QString::fromStdString(nome), filtro};
    }

    /// The window of the help is made anew after each start: not at each of the many times that it is asked.
    void abrirAjuda(std::optional<int> tópico) {
        if (acaso_.umEm(40)) dialogosDoQt().ajuda(tópico);
    }

    /// Painting takes longer than all the rest: the windows do it in some of the runs from start to end.
    void deixarPintar() const {
        for (const auto& modelo : janelasDoPrograma())
            if (auto* janela = janelas_.janela(*modelo.tela); janela && janela->updatesEnabled() != pinta_)
                janela->setUpdatesEnabled(pinta_);
    }

    void deixarAndar() {
        if (acaso_.umEm(pausaEntreEventos)) QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void examinar() {
        const bool encerrado = !form3.carregada();
        for (const auto& onde : {exameDosRegistros(encerrado), exame_.diferença(), exame_.sobra()})
            if (!onde.empty()) acusar(onde);
        if (!salvo_ || houveRecado_ || !std::filesystem::is_regular_file(salvo_->caminho)) return;
        ++feitos_["saved"];
        salvos_[salvo_->caminho] = salvo_->tela;
        if (const auto errado = exameDoArquivo(salvo_->caminho); !errado.empty()) acusar(errado);
    }

    void encerrar() {
        fecharTelas();
        form3.descarregar();
        janelas_.atualizar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // What is told when a program ends takes the window of the help with it.
        QTimer::singleShot(0, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }

    void recomeçar() {
        encerrar();
        if (!QApplication::topLevelWidgets().isEmpty()) acusar("windows left over at the end");
        QGuiApplication::clipboard()->clear();
        escriba_.recomeçar();
        exame_.esquecer();
        const auto uso = ::mallinfo2();
        memórias_.push_back(static_cast<double>(uso.uordblks + uso.hblkhd));
        iniciarSistema();
        janelas_.atualizar();
        pinta_ = acaso_.umEm(4);
        gestos_ = 0;
        maisGestos_ = acaso_.entre(100, 3000);
    }

    void conferirSalvos() {
        for (const auto& [caminho, tela] : std::exchange(salvos_, {})) {
            iniciarSistema();
            if (const auto errado = conferir(tela, caminho); !errado.empty())
                return acusar(errado + " (" + caminho + ": " + ler(caminho).substr(0, 300) + ")");
        }
    }

    void preparar(const std::string& caminho) override {
        paraLer_ = caminho;
        recado_.clear();
    }
    std::string recados() override {
        paraLer_.reset();
        return recado_;
    }

    static constexpr std::size_t pausaEntreEventos = 8;

    Acaso acaso_;
    Janelas janelas_;
    Escriba escriba_;
    Maos maos_;
    ExameDasJanelas exame_{janelas_};
    std::map<std::string, long> feitos_;
    std::vector<double> memórias_;
    struct Salvo {
        std::string caminho, tela;
    };
    std::optional<Salvo> salvo_;
    /// Files that were saved, and by which screen.
    std::map<std::string, std::string> salvos_;
    std::optional<std::string> paraLer_;
    std::string recado_;
    int gestos_ = 0, maisGestos_ = 0;
    bool pinta_ = true, noGesto_ = false, trabalhando_ = false, naCaixa_ = false, houveRecado_ = false;
};

/// What is kept for the next time (fields, glyphs) is different at each start without windows, so that the
/// least that was in use counts: from the second third of the run to the last it must not grow as it would
/// with windows, or parts of them, left behind.
std::string exameDaMemória(const std::vector<double>& usos, long atos) {
    const auto inícios = static_cast<std::ptrdiff_t>(usos.size());
    if (inícios < menosInícios) return {};
    const auto menor = [&](std::ptrdiff_t parte, std::ptrdiff_t partes) {
        return *std::min_element(usos.begin() + parte * inícios / partes,
                                 usos.begin() + (parte + 1) * inícios / partes);
    };
    std::printf("in use without windows, the least of each tenth, KiB:");
    for (std::ptrdiff_t parte = 0; parte < 10; ++parte) std::printf(" %.0f", menor(parte, 10) / 1024);
    const double crescimento = menor(2, 3) - menor(1, 3);
    std::printf("; %.0f bytes an act\n", 3 * crescimento / static_cast<double>(atos));
    return crescimento > maisGuardado + maiorCrescimento * static_cast<double>(atos) / 3 ? "memory grows"
                                                                                         : "";
}

int executarMacaco(long atos, unsigned semente) {
    Macaco macaco{semente};
    std::string errado;
    long n = 0;
    while (n < atos && errado.empty()) {
        ++n;
        errado = macaco.agir();
    }
    if (errado.empty()) errado = macaco.encerrarExame();
    if (errado.empty()) errado = exameDaMemória(macaco.memórias(), n);
    if (!errado.empty()) {
        for (const auto& linha : macaco.história()) std::fputs(linha.c_str(), stdout);
        std::printf("# seed %u, act %ld: %s\n", semente, n, errado.c_str());
        // The files that it names stay where they are.
        std::fflush(stdout);
        std::_Exit(1);
    }
    for (const auto& [tipo, quantos] : macaco.feitos()) std::printf("%s %ld\n", tipo.c_str(), quantos);
    std::printf("resident at the end %.0f MiB\n", memóriaResidente());
    return 0;
}

} // namespace
} // namespace varenta::teste

int main(int quantos, char** argumentos) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QHashSeed::setDeterministicGlobalSeed();
    Aplicacao aplicação{quantos, argumentos};
    // What a list looks for while one types, and a cursor that blinks, hang on the clock.
    QApplication::setKeyboardInputInterval(0);
    QApplication::setCursorFlashTime(0);
    // The style would keep the pictures of parts of every size, as much as counts as memory that grows.
    QPixmapCache::setCacheLimit(0);
    qInstallMessageHandler(varenta::teste::ouvirOQt);
    const long atos = quantos > 1 ? std::atol(argumentos[1]) : 10'000;
    const auto semente =
        quantos > 2 ? static_cast<unsigned>(std::atol(argumentos[2])) : std::random_device{}();
    return varenta::teste::executarMacaco(atos, semente);
}
