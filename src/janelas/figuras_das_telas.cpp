#include "janelas/figuras_das_telas.h"

#include "ajuste/form_graf.h"
#include "ajuste/form_migraf.h"
#include "comum/tela.h"
#include "janelas/widget_desenho.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

#include <QLabel>

#include <algorithm>
#include <string_view>
#include <type_traits>

using namespace varenta;

namespace {

/// Texts of figures. What stands between braces is the text of a control, "{Tela.Controle}" or "{Controle}"
/// of the drawing's own screen, of a fixed label of its window, or of the option that is set in a group; "*"
/// is the number of the own screen. A text with an empty place, or one of a screen that isn't loaded, is left
/// out.
using Textos = std::vector<const char*>;

/// What a figure has besides its drawing.
struct ModeloDeFigura {
    const char* tela;
    const char* desenho;
    const char* título;
    Textos dados;
    /// Data that are inputs of the screen: they belong to what is drawn only as long as one of the buttons
    /// that a change of them disables can be used.
    Textos entradas = {};
    Textos botõesDoResultado = {};
    /// The drawing that is a map's colour scale.
    const char* cores = nullptr;
    /// The top of a colour scale that is no drawing of the core.
    const char* topoDasCores = nullptr;
    /// What no caption by itself tells.
    QStringList (*dadosPróprios)(TelaBase& tela) = nullptr;
    /// Curves that the layout names beside the drawing, as `WidgetDesenho` has them.
    Textos legenda = {};
};

constexpr const char* entradasMudaram = "As entradas mudaram depois do cálculo que a figura mostra.";

Textos operator+(Textos primeiros, const Textos& outros) {
    primeiros.insert(primeiros.end(), outros.begin(), outros.end());
    return primeiros;
}

const Textos aspersorDeForm7 = {"{Form7.Label20}", "{Form7.Label19}", "{Form7.Label18}", "{Form7.Label27}",
                                "{Form7.Label28}"};

const Textos percursoDeForm7 = {
    "Velocidade: {Form7.Text1} m/h",
    "Espaçamento entre Coletores: {Form7.Combo2} m",
    "Velocidade do Vento: {Form7.Label17} m/s",
    "Direção do Vento: {Form7.Label2}º",
    "Ângulo Seco I: {Form7.Label24}º",
    "Ângulo Seco II: {Form7.Label33}º",
    "Rotação: {Form7.Label36}º",
    "Ângulo de Giro: {Form7.Label35}º",
    ("Parâmetros do Vento (A/R a F/R): {Form7.Text2}; {Form7.Text3}; {Form7.Text4}; {Form7.Text5}; "
     "{Form7.Text6}; {Form7.Text7}"),
};

const Textos dadosDeForm4 = {
    "{Form7.Label20}", "{Label2}", "{Label1}",  "{Label8}",  "{Label7}",
    "{Label4}",        "{Label3}", "{Label37}", "{Label38}", "Espaçamento entre Coletores: {Form7.Combo2} m"};

const Textos dadosDeForm5 = {"{Form7.Label20}",
                             "{Form5.Label38}",
                             "{Form5.Label37}",
                             "{Form5.Label50}",
                             "{Form5.Label51}",
                             "{Form5.Label52}",
                             "{Form5.Label40}",
                             "{Form5.Label53}",
                             "{Form5.Label54}",
                             "{Form5.Label39}",
                             "Espaçamento entre Coletores: {Form5.Label43} m"};

const Textos extremosDeForm5 = {"{lblCi}", "{lblCc}", "{lblCf}", "{lblTpi} {txtParada} min",
                                "{lblTpf} {Text4} min"};

const Textos dadosDeForm9 = dadosDeForm5 + Textos{"{Label3}", "{Label4}", "{Label5}", "{Label6}"};

const Textos dadosDoEnsaio = {"{Label20}", "{Label19}", "{Label18}", "Velocidade do Vento: {Label17} m/s",
                              "Direção do Vento: {Label2}º"};

const Textos desviosDoEnsaio = {"{Label11}", "{Label12}º", "{Label17}", "{Label16}"};
const Textos dadosDeGraf =
    Textos{"{Form_E*.Label20}", "{Form_E*.Label19}", "{Form_E*.Label18}"} + desviosDoEnsaio;
const Textos dadosDeMIgraf =
    Textos{"{Form_MiE*.Label20}", "{Form_MiE*.Label19}", "{Form_MiE*.Label18}"} + desviosDoEnsaio;

const Textos dadosDeFormUnifo = {
    "{lblAspersor}", "{Label2}",  "{Label1}",
    "{Label8}",      "{Label4}",  "{Label3}",
    "{Label37}",     "{Label38}", "Espaçamento entre Coletores: {Form_EC.Combo4} m"};

QString qtexto(std::string_view texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

/// The text that a person reads in a control; empty where it is out of sight, or an option that isn't set.
std::string textoDo(const Elemento& elemento) {
    if (!estáVisível(elemento)) return {};
    return std::visit(
        [](const auto* controle) -> std::string {
            using Controle = std::remove_cvref_t<decltype(*controle)>;
            if constexpr (requires { controle->marcada; })
                return controle->marcada ? controle->texto : std::string{};
            else if constexpr (std::is_same_v<Controle, Desenho> || std::is_same_v<Controle, Grade> ||
                               std::is_same_v<Controle, Rolagem> || std::is_same_v<Controle, Barra>)
                return {};
            else
                return controle->texto;
        },
        elemento.controle);
}

/// The option of a group that is set.
std::string opçãoDoGrupo(TelaBase& tela, std::string_view grupo) {
    for (const auto& elemento : tela.elementos())
        if (const auto* const* opção = std::get_if<Opcao*>(&elemento.controle);
            opção && (*opção)->grupo == grupo && (*opção)->marcada)
            return (*opção)->texto;
    return {};
}

/// A control of a screen, its title or a group of options.
std::string textoDaTela(TelaBase& tela, std::string_view nome) {
    if (!tela.carregada()) return {};
    if (nome == "Caption") return tela.caption();
    const auto elemento = tela.achar(nome, std::nullopt);
    return elemento ? textoDo(*elemento) : opçãoDoGrupo(tela, nome);
}

/// The title tells the spacing once the button has overlapped one; before that it is the best one of the
/// list.
QStringList espaçamentoSobreposto(TelaBase& tela) {
    const auto título = qtexto(tela.caption());
    const auto texto = título.startsWith(QStringLiteral("Sobreposição para o Espaçamento: "))
                           ? título
                           : QStringLiteral("Espaçamento: ") + qtexto(textoDaTela(tela, "lblE")).simplified();
    return {texto};
}

QStringList qtextos(const std::vector<std::string>& textos) {
    QStringList prontos;
    for (const auto& texto : textos) prontos << qtexto(texto);
    return prontos;
}

/// "3" of "Form_graf3"; empty for a screen without a number.
QString númeroDa(const TelaBase& tela) {
    const auto nome = qtexto(tela.nome());
    return nome.back().isDigit() ? QString{nome.back()} : QString{};
}

// What was drawn may have been changed on its screen since.
QStringList malhaComparada(TelaBase& tela) {
    return qtextos(form_graf(númeroDa(tela).toInt())->ensaioComparado);
}
QStringList móvelComparado(TelaBase& tela) {
    return qtextos(form_MIgraf(númeroDa(tela).toInt())->ensaioComparado);
}
QStringList faixaAnalisada(TelaBase&) { return qtextos(form9->faixaAnalisada); }
QStringList faixaDesenhada(TelaBase&) { return qtextos(form_grafFinal->faixaDesenhada); }

const ModeloDeFigura modelos[] = {
    {.tela = "form1",
     .desenho = "Picture1",
     .título = "Perfil radial do aspersor",
     .dados = {"{Caption}", "Bocal Principal: {Combo1}", "Bocal Auxiliar: {Combo2}",
               "Pressão: {lblPressão} {unidade}", "Vazão: {lblVazão} m³/h",
               "Raio de Alcance: {lblRaioAlcance} m", "Intensidade Média: {lblInt} mm/h",
               "Ângulo do Jato: {Label12}º"}},
    {.tela = "Perfil",
     .desenho = "Picture1",
     .título = "Perfil radial do aspersor",
     .dados = {"{Label11}", "{Label13}", "{Label1}", "Vazão: {Label2} m³/h", "Raio de Alcance: {Label17} m",
               "{lblInt}", "{Label12}"}},
    {.tela = "form_AjVen",
     .desenho = "Picture1",
     .título = "Perfil radial do aspersor",
     .dados = {"{Caption}", "Bocal Principal: {Combo1}", "Bocal Auxiliar: {Combo2}",
               "Pressão: {lblPressão} {unidade}", "Vazão: {lblVazão} m³/h",
               "Raio de Alcance: {lblRaioAlcance} m", "Intensidade Média: {lblInt} mm/h",
               "Ângulo do Jato: {Label11}º"}},
    {.tela = "Form_AjvenOu",
     .desenho = "Picture1",
     .título = "Perfil radial do aspersor",
     .dados = {"{lblAspersor}", "{lblBocais}", "{lblPressão}", "Vazão: {Label17} m³/h",
               "Raio de Alcance: {lblRaioAlcance} m", "Ângulo do Jato: {Label11}º"}},
    {.tela = "PerfilForm",
     .desenho = "Picture1",
     .título = "Coletores do ensaio radial",
     .dados = {"Aspersor: {Text7}", "Bocais: {Text9} mm", "Pressão: {Text2} m.c.a.", "Vazão: {Text1} m³/h",
               "Ângulo do Jato: {Text8}º", "Número de Dados: {Text5}", "{fixoSimbolos}"}},
    {.tela = "Form_EC",
     .desenho = "Picture1",
     .título = "Coletores do ensaio de campo",
     .dados = {"Aspersor: {Text6}", "Bocais: {Text8} mm", "Pressão: {Text13} m.c.a.", "Vazão: {Text12} m³/h",
               "Velocidade: {Text11} m/h", "Ângulo de Giro: {Text9}º", "Ângulo do Jato: {Text1}º",
               "Velocidade do Vento: {Text2} m/s", "Direção do Vento: {Text3}º", "{lblEspaço}",
               "{lblDistância}", "{fixoSimbolos}"}},
    {.tela = "Form7",
     .desenho = "Picture1",
     .título = "Esquema do aspersor, do carreador e dos coletores",
     .dados = aspersorDeForm7 + percursoDeForm7},
    {.tela = "Form7",
     .desenho = "Picture2",
     .título = "Perfil transversal de aplicação de água",
     .dados = aspersorDeForm7 + Textos{"{lblAviso}"},
     .entradas = percursoDeForm7,
     .botõesDoResultado = {"cmdUniformidade", "Command9"}},
    {.tela = "Form_grafVen",
     .desenho = "Picture1",
     .título = "Precipitações estimadas sobre o terreno",
     .dados = aspersorDeForm7 + percursoDeForm7 + Textos{"{Label7}", "{fixoSimbolos}", "{lblAviso}"},
     .cores = "Picture2"},
    {.tela = "Form4",
     .desenho = "Picture2",
     .título = "Uniformidade no centro da faixa e espaçamento entre carreadores",
     .dados = dadosDeForm4 + Textos{"Maior CUC: {Label6} %", "{Label5}"}},
    {.tela = "Form4",
     .desenho = "Picture1",
     .título = "Sobreposição das lâminas entre dois carreadores",
     .dados = dadosDeForm4 + Textos{"CUC: {Label16} %", "UD: {Label33} %", "I médio: {Label17} mm"},
     .entradas = {"Espaçamento entre Carreadores: {cmbEspaçamento} m"},
     .botõesDoResultado = {"Command5", "Command10"}},
    {.tela = "Form5",
     .desenho = "Picture3",
     .título = "Esquema da faixa irrigada",
     .dados = dadosDeForm5 + Textos{"{lblTpi} {txtParada} min", "{lblTpf} {Text4} min"}},
    {.tela = "Form5",
     .desenho = "Picture2",
     .título = "Lâmina ao longo da faixa irrigada",
     .dados = dadosDeForm5 + Textos{"Início da faixa: CUC {Label2} %, UD {Label58} %, I médio {Label1} mm",
                                    "Centro da faixa: CUC {Label5} %, UD {Label66} %, I médio {Label7} mm",
                                    "Fim da faixa: CUC {Label3} %, UD {Label60} %, I médio {Label4} mm",
                                    "Toda a faixa: CUC {Label6} %, UD {Label63} %, I médio {Label8} mm",
                                    "{lblAviso}"},
     .entradas = extremosDeForm5,
     .botõesDoResultado = {"Command12", "Command11"}},
    {.tela = "Form9",
     .desenho = "Picture1",
     .título = "Área adequadamente irrigada",
     .dados = dadosDeForm9,
     .dadosPróprios = faixaAnalisada},
    {.tela = "Form9",
     .desenho = "Picture2",
     .título = "Eficiências de aplicação e de armazenamento",
     .dados = dadosDeForm9,
     .dadosPróprios = faixaAnalisada},
    {.tela = "Form_grafFinal",
     .desenho = "Picture1",
     .título = "Lâminas sobre a faixa irrigada",
     .dados = dadosDeForm5 + Textos{"{Label16}", "{Label2}", "{Label17}", "{Label15}",
                                    "Lâmina média: {Label7}", "{lblAviso}"},
     .cores = "Picture2",
     .dadosPróprios = faixaDesenhada},
    {.tela = "Form_E*", .desenho = "Picture2", .título = "Vento no ensaio *", .dados = dadosDoEnsaio},
    {.tela = "Form_MiE*", .desenho = "Picture2", .título = "Vento no ensaio *", .dados = dadosDoEnsaio},
    {.tela = "Form_graf*",
     .desenho = "Picture1",
     .título = "Precipitações observadas no ensaio *",
     .dados = dadosDeGraf + Textos{"{Label13}"},
     .topoDasCores = "{Label14}",
     .dadosPróprios = malhaComparada},
    {.tela = "Form_graf*",
     .desenho = "Picture2",
     .título = "Precipitações estimadas no ensaio *",
     .dados = dadosDeGraf + Textos{"{Label15}"},
     .topoDasCores = "{Label14}",
     .dadosPróprios = malhaComparada},
    {.tela = "Form_MIgraf*",
     .desenho = "Picture1",
     .título = "Lâminas observadas e estimadas no ensaio *",
     .dados = dadosDeMIgraf + Textos{"{Label15}", "{Label20}"},
     .dadosPróprios = móvelComparado,
     .legenda = {"{Label18}=#0000ff", "{Label19}=#ff0000:pontos"}},
    {.tela = "Form_MIgraf*",
     .desenho = "Picture2",
     .título = "Precipitações estimadas no ensaio *",
     .dados = dadosDeMIgraf + Textos{"{Label13}"},
     .topoDasCores = "{Label14}",
     .dadosPróprios = móvelComparado},
    {.tela = "FormUnifo",
     .desenho = "Picture2",
     .título = "Uniformidade e espaçamento entre carreadores",
     .dados = dadosDeFormUnifo + Textos{"Espaçamento de Maior CUC: {lblE}"}},
    {.tela = "FormUnifo",
     .desenho = "Picture1",
     .título = "Sobreposição das lâminas entre dois carreadores",
     .dados =
         dadosDeFormUnifo + Textos{"CUC: {Label16} %", "UD: {Label33} %", "I médio coletado: {Label17} mm",
                                   "I médio calculado: {lblCalculado} mm"},
     .dadosPróprios = espaçamentoSobreposto},
};

const ModeloDeFigura* modeloDe(const WidgetDesenho& desenho, const TelaBase& tela) {
    const auto nome = desenho.objectName();
    const auto modelo = std::ranges::find_if(modelos, [&](const ModeloDeFigura& m) {
        return qtexto(m.tela).replace(QLatin1Char{'*'}, númeroDa(tela)) == qtexto(tela.nome()) &&
               (qtexto(m.desenho) == nome || (m.cores && qtexto(m.cores) == nome));
    });
    return modelo == std::end(modelos) ? nullptr : &*modelo;
}

/// Fills in the texts of a figure from a drawing's screen and the others.
class Preenchimento {
  public:
    Preenchimento(TelaBase& tela, const QWidget& janela) : tela_{tela}, janela_{janela} {}

    /// Empty where the text is to be left out.
    QString texto(const char* modelo) const {
        auto resto = qtexto(modelo).replace(QLatin1Char{'*'}, númeroDa(tela_));
        QString pronto;
        for (qsizetype abre = 0; (abre = resto.indexOf(QLatin1Char{'{'})) >= 0;) {
            const auto fecha = resto.indexOf(QLatin1Char{'}'}, abre);
            const auto valor = lugar(resto.sliced(abre + 1, fecha - abre - 1));
            if (valor.isEmpty()) return {};
            pronto += resto.first(abre) + valor;
            resto = resto.sliced(fecha + 1);
        }
        return (pronto + resto).simplified();
    }

    QStringList textos(const Textos& modelos) const {
        QStringList prontos;
        for (const auto* modelo : modelos)
            if (const auto texto = this->texto(modelo); !texto.isEmpty()) prontos << texto;
        return prontos;
    }

  private:
    QString lugar(const QString& nome) const {
        const auto ponto = nome.indexOf(QLatin1Char{'.'});
        if (ponto < 0) {
            const auto* fixo = janela_.findChild<QLabel*>(nome);
            const bool éFixo = fixo && nome.startsWith(QLatin1String{"fixo"});
            return éFixo ? fixo->text() : qtexto(textoDaTela(tela_, nome.toStdString()));
        }
        const auto tela = nome.first(ponto).toStdString();
        const auto outra = std::ranges::find(TelaBase::todas(), tela, &TelaBase::nome);
        return outra == TelaBase::todas().end()
                   ? QString{}
                   : qtexto(textoDaTela(**outra, nome.sliced(ponto + 1).toStdString()));
    }

    TelaBase& tela_;
    const QWidget& janela_;
};

DesenhoDaFigura desenhoDaFigura(const WidgetDesenho& desenho) {
    DesenhoDaFigura pronto{desenho.conteúdo(), {}, desenho.linhasDeAltura()};
    for (const auto* rótulo : desenho.findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        const auto âncora = rótulo->property("ancora");
        if (!âncora.isValid() || rótulo->isHidden() || rótulo->text().isEmpty()) continue;
        // Else its colour is the window's, which a dark theme makes a light one.
        const bool comCor = rótulo->testAttribute(Qt::WA_SetPalette);
        pronto.textos.push_back({rótulo->text(), âncora.toPointF(), rótulo->alignment(),
                                 comCor ? rótulo->palette().color(QPalette::WindowText) : QColor{},
                                 rótulo->font().bold()});
    }
    return pronto;
}

/// The scale beside the maps of a comparison, which in their window is a gradient.
DesenhoDaFigura coresEmDegradê(const QString& topo) {
    constexpr int degraus = 64;
    static const auto traços = [] {
        Desenho desenho;
        // Each box reaches to the top, so that no gap shows between two of them.
        for (int k = 0; k < degraus; ++k) {
            const auto claro = static_cast<unsigned>(255 - 255 * k / (degraus - 1));
            desenho.caixaCheia(0, 0, 1, degraus - k, corDe(claro, claro, 255));
        }
        return desenho.traços;
    }();
    return {{.eixos = {0, 0, 1, degraus},
             .escalaY = {QStringLiteral("0.0 mm/h"), topo},
             .tituloY = QStringLiteral("Precipitação"),
             .traços = traços},
            {}};
}

bool algumHabilitado(TelaBase& tela, const Textos& botões) {
    return std::ranges::any_of(botões, [&](const char* nome) {
        const auto botão = tela.achar(nome, std::nullopt);
        return botão && estáHabilitado(*botão);
    });
}

} // namespace

bool temDados(const WidgetDesenho& desenho, const TelaBase& tela) { return modeloDe(desenho, tela); }

Figura figuraDaTela(const WidgetDesenho& desenho, TelaBase& tela) {
    const auto* modelo = modeloDe(desenho, tela);
    if (!modelo) return {{}, desenhoDaFigura(desenho), {}, {}};

    const auto& janela = *desenho.window();
    const auto doNome = [&](const char* nome) {
        return desenhoDaFigura(*janela.findChild<WidgetDesenho*>(qtexto(nome)));
    };
    const Preenchimento preenchimento{tela, janela};
    Figura figura{preenchimento.texto(modelo->título), doNome(modelo->desenho), {}, {}};
    if (modelo->cores) figura.cores = doNome(modelo->cores);
    if (modelo->topoDasCores) figura.cores = coresEmDegradê(preenchimento.texto(modelo->topoDasCores));
    figura.desenho.conteúdo.legenda += preenchimento.textos(modelo->legenda);

    const bool vazio = figura.desenho.conteúdo.traços.empty();
    figura.dados = preenchimento.textos(modelo->dados);
    if (modelo->dadosPróprios && !vazio) figura.dados += modelo->dadosPróprios(tela);
    if (vazio || algumHabilitado(tela, modelo->botõesDoResultado))
        figura.dados += preenchimento.textos(modelo->entradas);
    else if (!modelo->entradas.empty())
        figura.dados << qtexto(entradasMudaram);
    return figura;
}
