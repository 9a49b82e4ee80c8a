#include "janelas/telas.h"

#include "aspersor/form1.h"
#include "shell/form3.h"
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
#include "ui_form7.h"
#include "ui_form8.h"
#include "ui_form9.h"
#include "ui_form_graffinal.h"
#include "ui_form_grafven.h"

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
};

} // namespace

std::span<const ModeloDeJanela> janelasDoPrograma() { return modelos; }
