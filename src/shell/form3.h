#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form3_Load();
void form3_Fechar();
void form3_TX15B_Click();
void form3_TX20B_Click();
void form3_TX30B_Click();
void form3_varenta_Click();
void form3_Ou_aspB_Click();
void form3_Ou_aspC_Click();
void form3_OuAsp_Auto_Click();
void form3_PerfRad_Click();
void form3_EnsCampo_Click();
void form3_TX15c_Click();
void form3_TX20c_Click();
void form3_TX30c_Click();
void form3_TX15d_Click();
void form3_TX20d_Click();
void form3_TX30d_Click();

/// The main window: a picture and the menu from which every use of the system starts.
struct RegistroForm3 {
    std::string Caption = "VARENTA 5.0";

    ItemMenu Simula_Vento{.texto = "&Simulações", .nível = 0, .abreSubmenu = true};
    ItemMenu Asp_KELMOb{.texto = "Aspersores KELMO", .nível = 1, .abreSubmenu = true};
    ItemMenu TX15B{.texto = "TX15", .nível = 2, .aoClicar = form3_TX15B_Click};
    ItemMenu TX20B{.texto = "TX20", .nível = 2, .aoClicar = form3_TX20B_Click};
    ItemMenu TX30B{.texto = "TX30", .nível = 2, .aoClicar = form3_TX30B_Click};
    ItemMenu Ou_aspB{.texto = "Outro Aspersor", .nível = 1, .aoClicar = form3_Ou_aspB_Click};
    ItemMenu EntDa{.texto = "&Ensaios Autopropelido", .nível = 0, .abreSubmenu = true};
    ItemMenu PerfRad{.texto = "Gerar Perfil Radial", .nível = 1, .aoClicar = form3_PerfRad_Click};
    ItemMenu EnsCampo{.texto = "Sobreposição Lateral", .nível = 1, .aoClicar = form3_EnsCampo_Click};
    ItemMenu Ajuste{.texto = "Ajustar Parâmetros - Vento", .nível = 0, .abreSubmenu = true};
    ItemMenu Met_malha{.texto = "Método: Malha", .nível = 1, .abreSubmenu = true};
    ItemMenu Asp_Kc{.texto = "Aspersores KELMO", .nível = 2, .abreSubmenu = true};
    ItemMenu TX15c{.texto = "TX15", .nível = 3, .aoClicar = form3_TX15c_Click};
    ItemMenu TX20c{.texto = "TX20", .nível = 3, .aoClicar = form3_TX20c_Click};
    ItemMenu TX30c{.texto = "TX30", .nível = 3, .aoClicar = form3_TX30c_Click};
    ItemMenu Ou_aspC{.texto = "Outro Aspersor", .nível = 2, .aoClicar = form3_Ou_aspC_Click};
    ItemMenu Met_auto{.texto = "Método: Autopropelido", .nível = 1, .abreSubmenu = true};
    ItemMenu Asp_kelmoD{.texto = "Aspersores KELMO", .nível = 2, .abreSubmenu = true};
    ItemMenu TX15d{.texto = "TX15", .nível = 3, .aoClicar = form3_TX15d_Click};
    ItemMenu TX20d{.texto = "TX20", .nível = 3, .aoClicar = form3_TX20d_Click};
    ItemMenu TX30d{.texto = "TX30", .nível = 3, .aoClicar = form3_TX30d_Click};
    ItemMenu OuAsp_Auto{.texto = "Outro Aspersor", .nível = 2, .aoClicar = form3_OuAsp_Auto_Click};
    ItemMenu ajuda{.texto = "&Ajuda", .nível = 0, .abreSubmenu = true};
    ItemMenu varenta{.texto = "Sobre o Varenta", .nível = 1, .aoClicar = form3_varenta_Click};
    ItemMenu ajudaProg{.texto = "Ajuda do Programa", .nível = 1, .aoClicar = mostrarÍndiceDaAjuda};
    /// The picture in the middle of the window; the front end places it.
    Desenho Picture1;

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Simula_Vento", Simula_Vento);
        visita("Asp_KELMOb", Asp_KELMOb);
        visita("TX15B", TX15B);
        visita("TX20B", TX20B);
        visita("TX30B", TX30B);
        visita("Ou_aspB", Ou_aspB);
        visita("EntDa", EntDa);
        visita("PerfRad", PerfRad);
        visita("EnsCampo", EnsCampo);
        visita("Ajuste", Ajuste);
        visita("Met_malha", Met_malha);
        visita("Asp_Kc", Asp_Kc);
        visita("TX15c", TX15c);
        visita("TX20c", TX20c);
        visita("TX30c", TX30c);
        visita("Ou_aspC", Ou_aspC);
        visita("Met_auto", Met_auto);
        visita("Asp_kelmoD", Asp_kelmoD);
        visita("TX15d", TX15d);
        visita("TX20d", TX20d);
        visita("TX30d", TX30d);
        visita("OuAsp_Auto", OuAsp_Auto);
        visita("ajuda", ajuda);
        visita("varenta", varenta);
        visita("ajudaProg", ajudaProg);
        visita("Picture1", Picture1);
    }
};

inline Tela<RegistroForm3> form3{"Form3", {.aoCarregar = form3_Load, .aoFechar = form3_Fechar}};

} // namespace varenta
