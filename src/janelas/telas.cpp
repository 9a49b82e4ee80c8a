#include "janelas/telas.h"

#include "aspersor/form1.h"
#include "shell/form3.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"

#include "ui_form1.h"
#include "ui_form3.h"
#include "ui_form4.h"
#include "ui_form7.h"

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
    ModeloDeJanela{&varenta::form4, criar<QWidget, Ui::Form4>},
};

} // namespace

std::span<const ModeloDeJanela> janelasDoPrograma() { return modelos; }
