#include "janelas/telas.h"

#include "ajuste/form_ajcar.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_ajven.h"
#include "ajuste/form_ajvenou.h"
#include "ajuste/form_e.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_mie.h"
#include "ajuste/form_migraf.h"
#include "aspersor/form1.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "campo/form_unifo.h"
#include "shell/form3.h"
#include "shell/form6.h"
#include "simulacao/form7.h"
#include "simulacao/form_grafven.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

#include "ui_form1.h"
#include "ui_form3.h"
#include "ui_form4.h"
#include "ui_form5.h"
#include "ui_form6.h"
#include "ui_form7.h"
#include "ui_form8.h"
#include "ui_form9.h"
#include "ui_form_ajcar.h"
#include "ui_form_ajuste1.h"
#include "ui_form_ajven.h"
#include "ui_form_ajvenou.h"
#include "ui_form_e.h"
#include "ui_form_ec.h"
#include "ui_form_graf.h"
#include "ui_form_graffinal.h"
#include "ui_form_grafven.h"
#include "ui_form_miajuste1.h"
#include "ui_form_mie.h"
#include "ui_form_migraf.h"
#include "ui_form_unifo.h"
#include "ui_perfil.h"
#include "ui_perfil_form.h"

#include <array>

namespace {

template <class Janela, class Disposição>
std::unique_ptr<QWidget> criar() {
    auto janela = std::make_unique<Janela>();
    Disposição{}.setupUi(janela.get());
    return janela;
}

const std::array modelos = {
    ModeloDeJanela{&varenta::form3, criar<QMainWindow, Ui::Form3>},
    ModeloDeJanela{&varenta::form1, criar<QWidget, Ui::form1>},
    ModeloDeJanela{&varenta::form7, criar<QWidget, Ui::Form7>},
    ModeloDeJanela{&varenta::form_grafVen, criar<QWidget, Ui::Form_grafVen>},
    ModeloDeJanela{&varenta::form4, criar<QWidget, Ui::Form4>},
    ModeloDeJanela{&varenta::form5, criar<QWidget, Ui::Form5>},
    ModeloDeJanela{&varenta::form8, criar<QWidget, Ui::Form8>},
    ModeloDeJanela{&varenta::form9, criar<QWidget, Ui::Form9>},
    ModeloDeJanela{&varenta::form_grafFinal, criar<QWidget, Ui::Form_grafFinal>},
    ModeloDeJanela{&varenta::form_AjVen, criar<QWidget, Ui::form_AjVen>},
    ModeloDeJanela{&varenta::form_E1, criar<QWidget, Ui::Form_E>},
    ModeloDeJanela{&varenta::form_E2, criar<QWidget, Ui::Form_E>},
    ModeloDeJanela{&varenta::form_E3, criar<QWidget, Ui::Form_E>},
    ModeloDeJanela{&varenta::form_MiE1, criar<QWidget, Ui::Form_MiE>},
    ModeloDeJanela{&varenta::form_MiE2, criar<QWidget, Ui::Form_MiE>},
    ModeloDeJanela{&varenta::form_MiE3, criar<QWidget, Ui::Form_MiE>},
    ModeloDeJanela{&varenta::form_AjCar, criar<QWidget, Ui::Form_AjCar>},
    ModeloDeJanela{&varenta::form_graf1, criar<QWidget, Ui::Form_graf>},
    ModeloDeJanela{&varenta::form_graf2, criar<QWidget, Ui::Form_graf>},
    ModeloDeJanela{&varenta::form_graf3, criar<QWidget, Ui::Form_graf>},
    ModeloDeJanela{&varenta::form_MIgraf1, criar<QWidget, Ui::Form_MIgraf>},
    ModeloDeJanela{&varenta::form_MIgraf2, criar<QWidget, Ui::Form_MIgraf>},
    ModeloDeJanela{&varenta::form_MIgraf3, criar<QWidget, Ui::Form_MIgraf>},
    ModeloDeJanela{&varenta::form_ajuste1, criar<QWidget, Ui::Form_ajuste1>},
    ModeloDeJanela{&varenta::form_MIajuste1, criar<QWidget, Ui::Form_MIajuste1>},
    ModeloDeJanela{&varenta::perfilForm, criar<QWidget, Ui::PerfilForm>},
    ModeloDeJanela{&varenta::perfil, criar<QWidget, Ui::Perfil>},
    ModeloDeJanela{&varenta::formEC, criar<QWidget, Ui::Form_EC>},
    ModeloDeJanela{&varenta::formUnifo, criar<QWidget, Ui::FormUnifo>},
    ModeloDeJanela{&varenta::form_AjvenOu, criar<QWidget, Ui::Form_AjvenOu>},
    ModeloDeJanela{&varenta::form6, criar<QWidget, Ui::Form6>},
};

} // namespace

std::span<const ModeloDeJanela> janelasDoPrograma() { return modelos; }
