#include "com_janelas.h"

#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QMenu>

#include <algorithm>
#include <ostream>
#include <set>

/// How a failed test names its window.
static void PrintTo(const ModeloDeJanela& modelo, std::ostream* saída) { *saída << modelo.tela->nome(); }

namespace varenta::teste {
namespace {

using Nomes = std::set<std::string>;

/// Every screen of the program, loaded, with a window of its own.
class NomesDaTela : public testing::TestWithParam<ModeloDeJanela> {
  protected:
    void SetUp() override {
        telaPrincipal = &form3;
        GetParam().tela->carregar();
        janela_ = GetParam().criar();
    }
    void TearDown() override { GetParam().tela->descarregar(); }

    /// What the layout lays out by name: widgets and menu actions, and arrays named by a property.
    Nomes doLeiaute() const {
        Nomes nomes;
        const auto juntar = [&](const QObject* objeto) {
            const auto nome = objeto->objectName();
            if (!nome.isEmpty() && !nome.startsWith("fixo") && !nome.startsWith("qt_"))
                nomes.insert(nome.toStdString());
        };
        for (const auto* widget : janela_->findChildren<QWidget*>()) juntar(widget);
        for (const auto* ação : janela_->findChildren<QAction*>()) juntar(ação);
        nomes.merge(matrizesDoLeiaute());
        return nomes;
    }

    Nomes matrizesDoLeiaute() const {
        Nomes nomes;
        for (const auto* widget : janela_->findChildren<QWidget*>()) {
            for (const auto* propriedade : {"rotulosX", "rotulosY"})
                if (const auto nome = widget->property(propriedade).toString(); !nome.isEmpty())
                    nomes.insert(nome.toStdString());
            for (const auto& nome : widget->property("matrizes").toStringList())
                nomes.insert(nome.toStdString());
        }
        return nomes;
    }

    Nomes doRegistro(bool sóMatrizes) const {
        Nomes nomes;
        for (const auto& elemento : GetParam().tela->elementos())
            if (elemento.índice || !sóMatrizes) nomes.insert(elemento.nome);
        return nomes;
    }

    std::unique_ptr<QWidget> janela_;
};

TEST_P(NomesDaTela, de_leiaute_e_registro_são_os_mesmos) { EXPECT_EQ(doLeiaute(), doRegistro(false)); }

TEST_P(NomesDaTela, de_matrizes_estão_em_propriedades) { EXPECT_EQ(matrizesDoLeiaute(), doRegistro(true)); }

TEST_P(NomesDaTela, não_se_repetem) {
    std::vector<QString> nomes;
    for (const auto* objeto : janela_->findChildren<QObject*>())
        if ((objeto->isWidgetType() || qobject_cast<const QAction*>(objeto)) &&
            !objeto->objectName().startsWith("qt_") && !objeto->objectName().isEmpty())
            nomes.push_back(objeto->objectName());
    std::ranges::sort(nomes);
    const auto repetido = std::ranges::adjacent_find(nomes);
    EXPECT_EQ(repetido, nomes.end()) << repetido->toStdString();
}

/// A layout for several screens of one kind bears their name without the number.
TEST_P(NomesDaTela, da_janela_é_o_da_tela_ou_o_do_seu_tipo) {
    const auto nome = QString::fromStdString(GetParam().tela->nome());
    const auto leiaute = janela_->objectName();
    EXPECT_TRUE(leiaute == nome || leiaute == nome.chopped(1)) << leiaute.toStdString();
}

INSTANTIATE_TEST_SUITE_P(TodasAsTelas, NomesDaTela,
                         testing::ValuesIn(janelasDoPrograma().begin(), janelasDoPrograma().end()),
                         [](const auto& caso) { return caso.param.tela->nome(); });

TEST(Telas, do_programa_têm_todas_uma_janela) {
    Nomes comJanela, doPrograma;
    for (const auto& modelo : janelasDoPrograma()) comJanela.insert(modelo.tela->nome());
    for (const auto* tela : telasEmOrdem()) doPrograma.insert(tela->nome());
    EXPECT_EQ(comJanela, doPrograma);
}

TEST(Menu, tem_a_árvore_do_registro) {
    form3.carregar();
    const auto janela = janelasDoPrograma().front().criar();
    // The level of each entry, from the submenus that hold it.
    for (const auto& elemento : form3.elementos()) {
        const auto* const* item = std::get_if<ItemMenu*>(&elemento.controle);
        if (!item) continue;
        const auto nome = QString::fromStdString(elemento.nome);
        const QAction* ação = janela->findChild<QAction*>(nome);
        if (const auto* menu = janela->findChild<QMenu*>(nome)) ação = menu->menuAction();
        ASSERT_NE(ação, nullptr) << elemento.nome;
        int nível = 0;
        while (true) {
            const QMenu* acima = nullptr;
            for (const auto* objeto : ação->associatedObjects())
                if (const auto* menu = qobject_cast<const QMenu*>(objeto)) acima = menu;
            if (!acima) break;
            ação = acima->menuAction();
            ++nível;
        }
        EXPECT_EQ(nível, (*item)->nível) << elemento.nome;
    }
    form3.descarregar();
}

} // namespace
} // namespace varenta::teste
