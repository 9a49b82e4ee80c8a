#pragma once

#include "com_janelas.h"

#include "ajuste/comparar.h"
#include "ajuste/form_ajcar.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_ajven.h"
#include "ajuste/form_ajvenou.h"
#include "ajuste/form_e.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_mie.h"
#include "ajuste/form_migraf.h"
#include "ajuste/operacoes_ensaio.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "campo/form_unifo.h"
#include "shell/form6.h"
#include "simulacao/form_grafven.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

namespace varenta::teste {

/// One window of each kind, with the data of a road.
class TodasAsJanelas : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        clicarMenu("TX20B");
        clicar(form1, "Command3");
        clicar(form7, "Command2");
        clicar(form7, "Command3");
        form7.habilitada = true;
        janelas->atualizar();
        clicar(form7, "cmdUniformidade");
        clicar(form4, "Command8");
        clicar(form4, "Command9");
        clicar(form4, "Command5");
        for (const auto* nome : {"Command10", "Command3", "Command12", "Command15"}) clicar(form5, nome);
        abrirTelasDoAjuste();
        abrirTelasDosEnsaios();
        form7.mostrar();
        janelas->atualizar();
    }

    void abrirArquivo(const TelaBase& tela, const char* opção, const char* arquivo) {
        respostas = {true};
        arquivos = {exemplo(arquivo)};
        clicar(tela, opção);
    }

    /// A test of each kind with its results, and then with all entries in sight.
    void abrirTelasDoAjuste() {
        abrirFormAjVen(modeloTX20, Método::malha);
        janelas->atualizar();
        clicar(form_AjVen, "Command4");
        abrirArquivo(form_E1, "Option5", "ensaio_malha_1.txt");
        clicar(form_AjVen, "Command5");
        clicar(form_AjVen, "Command8");
        clicar(form_graf1, "Command2");
        varenta::abrirEnsaio({form_MiE1, *form_MiE1.operator->(), 1}, Aspersor::doCatálogo);
        janelas->atualizar();
        abrirArquivo(form_MiE1, "Option5", "ensaio_movel_1.txt");
        preencherMIgraf(Aspersor::doCatálogo, 1);
        visualizarValoresMóvel(Aspersor::doCatálogo, 1);
        for (const auto* tela :
             {static_cast<const TelaBase*>(&form_E1), static_cast<const TelaBase*>(&form_MiE1)})
            for (const auto* nome : {"Option2", "Option3"}) clicar(*tela, nome);
        form_AjCar.mostrar();
        janelas->atualizar();
    }

    /// A measured sprinkler and a field test with what follows from them, and then with all entries in sight,
    /// and of the buttons that lie on one another those of one road.
    void abrirTelasDosEnsaios() {
        for (auto avançar : {"Command6", "Command8"}) {
            perfilForm.mostrar();
            janelas->atualizar();
            abrirArquivo(perfilForm, "Option2", "ensaio_radial_ml.txt");
            clicar(perfilForm, avançar);
        }
        perfilForm->Command6.visivel = perfilForm->Command7.visivel = false;
        formEC.mostrar();
        janelas->atualizar();
        abrirArquivo(formEC, "Option2", "ensaio_movel_mm.txt");
        clicar(formEC, "Command4");
        formEC->Command4.visivel = false;
        form6.mostrar();
        perfilForm.mostrar();
        formEC.mostrar();
        janelas->atualizar();
        for (const auto* tela :
             {static_cast<const TelaBase*>(&perfilForm), static_cast<const TelaBase*>(&formEC)})
            clicar(*tela, "Option1");
    }

    /// The screens of the road after the main window, in the state that they have on it.
    static std::vector<TelaBase*> telas() {
        return {&form1,      &form7,          &form_grafVen, &form4,          &form5,      &form8,
                &form9,      &form_grafFinal, &form_AjVen,   &form_E1,        &form_MiE1,  &form_AjCar,
                &form_graf1, &form_MIgraf1,   &form_ajuste1, &form_MIajuste1, &perfilForm, &perfil,
                &formEC,     &formUnifo,      &form_AjvenOu, &form6};
    }

    std::vector<QWidget*> todas() const {
        std::vector<QWidget*> janelas{&janela(form3)};
        for (const auto* tela : telas()) janelas.push_back(&janela(*tela));
        return janelas;
    }

    void mostrarTodas() {
        for (auto* rótulo :
             {&form7->lblAviso, &form_grafVen->lblAviso, &form5->lblAviso, &form_grafFinal->lblAviso})
            rótulo->texto = "Aviso: em 12 de 3600 pontos o modelo de vento não convergiu; os valores podem "
                            "não ter sentido físico.";
        for (auto* tela : telas()) tela->mostrar();
        janelas->atualizar();
    }

    static bool éParte(const QWidget* widget) {
        return widget->objectName().isEmpty() || widget->objectName().startsWith("qt_");
    }
};

} // namespace varenta::teste
