#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form9_Load();
void form9_MouseMove();
void form9_Esconder();
void form9_Command1_Click();
void form9_Picture1_MouseMove(double x, double y);
void form9_Picture2_MouseMove(double x, double y);

/// Required depths: the area that gets them, and how well the water is used.
struct RegistroForm9 {
    std::string Caption = "Análise das Eficiâncias";

    /// What tells the strip that was analysed, for the figures.
    std::vector<std::string> faixaAnalisada;

    Rotulo Label3{.texto = "Volume Total Aplicado: "};
    Rotulo Label4{.texto = "Tempo de Irrigação: "};
    Rotulo Label5{.texto = "Erro Volumétrico: "};
    Rotulo Label6{.texto = "Volume Perdido nas Extremidades: "};

    Grade flexA{.linhas = 2,
                .colunas = 7,
                .células = std::vector<std::string>(14),
                .alinhamentos = std::vector<Alinhamento>(7, Alinhamento::centro)};
    /// Required depth against the area, with the tick captions of the depth.
    Desenho Picture1{.aoMoverMouse = form9_Picture1_MouseMove};
    std::array<Rotulo, 7> Label26;
    Rotulo lblIr1{.texto = "Ir ="};
    Rotulo lblAD{.texto = "ADobs. e ADest. ="};
    /// Efficiencies against the required depth, with the tick captions of the depth.
    Desenho Picture2{.aoMoverMouse = form9_Picture2_MouseMove};
    std::array<Rotulo, 11> Label27;
    Rotulo lblIr2{.texto = "Ir ="};
    Rotulo lblEf{.texto = "Ef. Apl. ou Ef. Arm. ="};

    Botao Command1{.texto = "&Salvar", .aoClicar = form9_Command1_Click};
    Botao Command2{.texto = "&Fechar", .aoClicar = form9_Esconder};
    Botao Command3{.texto = "<< &Voltar", .aoClicar = form9_Esconder};
    Botao Command4{.texto = "&Ajuda", .aoClicar = mostrarAjuda<topicos::form9>};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label3", Label3);
        visita("Label4", Label4);
        visita("Label5", Label5);
        visita("Label6", Label6);
        visita("flexA", flexA);
        visita("Picture1", Picture1);
        visita("Label26", Label26, 0);
        visita("lblIr1", lblIr1);
        visita("lblAD", lblAD);
        visita("Picture2", Picture2);
        visita("Label27", Label27, 0);
        visita("lblIr2", lblIr2);
        visita("lblEf", lblEf);
        visita("Command1", Command1);
        visita("Command2", Command2);
        visita("Command3", Command3);
        visita("Command4", Command4);
    }
};

inline Tela<RegistroForm9> form9{"Form9",
                                 {.aoCarregar = form9_Load,
                                  .aoFechar = form9_Esconder,
                                  .aoMoverMouse = form9_MouseMove,
                                  .tópicoDaAjuda = topicos::form9}};

} // namespace varenta
