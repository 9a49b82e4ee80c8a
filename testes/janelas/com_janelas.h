#pragma once

#include "aspersor/form1.h"
#include "janelas/dialogos.h"
#include "janelas/janelas.h"
#include "shell/form3.h"
#include "shell/sistema.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// The real windows over a fresh system, with the boxes answered by the test.
namespace varenta::teste {

class ComJanelas : public testing::Test {
  protected:
    void SetUp() override {
        dialogos() = {
            .mensagem = [this](const QString& texto, const QString&) { caixas.push_back(texto); },
            .perguntar =
                [this](const QString& texto) {
                    caixas.push_back(texto);
                    return tirar(respostas);
                },
            .confirmar =
                [this](const QString& texto) {
                    caixas.push_back(texto);
                    return tirar(respostas);
                },
            .erroDeExecucao = [this](const QString& texto) { caixas.push_back(texto); },
            .arquivoParaAbrir =
                [this](const QString& filtros) {
                    caixas.push_back(filtros);
                    return tirar(arquivos);
                },
            .arquivoParaSalvar =
                [this](const QString& filtros, int, const QString&) {
                    caixas.push_back(filtros);
                    return tirar(arquivos);
                },
            .figuraParaSalvar = [this](const QString& filtros, int) -> std::optional<ArquivoEscolhido> {
                caixas.push_back(filtros);
                if (const auto caminho = tirar(arquivos)) return ArquivoEscolhido{*caminho, filtroEscolhido};
                return std::nullopt;
            },
            .ajuda = [this](std::optional<int> tópico) { ajudas.push_back(tópico); },
        };
        iniciarSistema();
        janelas.emplace();
        janelas->atualizar();
    }

    void TearDown() override {
        janelas.reset();
        fecharTelas();
        form3.descarregar();
        dialogos() = dialogosDoQt();
    }

    QWidget& janela(const TelaBase& tela) const {
        auto* janela = janelas->janela(tela);
        if (!janela) throw std::logic_error{tela.nome() + " has no window"};
        return *janela;
    }

    /// The widget of a control.
    template <class Widget = QWidget>
    Widget& widget(const TelaBase& tela, const char* nome) const {
        auto* widget = janela(tela).template findChild<Widget*>(QString::fromUtf8(nome));
        if (!widget) throw std::logic_error{tela.nome() + "." + nome + " has no widget"};
        return *widget;
    }

    /// As the person does it: with the mouse where the widget can be hit.
    void clicar(const TelaBase& tela, const char* nome) const {
        auto& alvo = widget<QWidget>(tela, nome);
        QTest::mouseClick(&alvo, Qt::LeftButton, {}, {10, alvo.height() / 2});
    }

    void clicarMenu(const char* nome) const { widget<QAction>(form3, nome).trigger(); }

    void apagarEDigitar(const TelaBase& tela, const char* nome, const QString& texto) const {
        auto& alvo = widget<QWidget>(tela, nome);
        alvo.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&alvo, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&alvo, texto);
    }

    /// The path of one of the sample files.
    static QString exemplo(const char* nome) {
        return QStringLiteral(PASTA_DE_EXEMPLOS) + QString::fromUtf8(nome);
    }

    static void moverMouse(QWidget& widget, QPointF ponto, Qt::MouseButtons botões = Qt::NoButton) {
        QMouseEvent evento{QEvent::MouseMove, ponto, widget.mapToGlobal(ponto), Qt::NoButton, botões, {}};
        QApplication::sendEvent(&widget, &evento);
    }

    std::optional<Janelas> janelas;
    /// The texts of all boxes that appeared.
    std::vector<QString> caixas;
    /// The topics of the help that were asked for.
    std::vector<std::optional<int>> ajudas;
    std::deque<bool> respostas;
    std::deque<std::optional<QString>> arquivos;
    /// Which filter is chosen along with a figure's file, from 1.
    int filtroEscolhido = 1;

  private:
    template <class Valor>
    static Valor tirar(std::deque<Valor>& fila) {
        if (fila.empty()) {
            ADD_FAILURE() << "a box without an answer";
            return {};
        }
        auto valor = fila.front();
        fila.pop_front();
        return valor;
    }
};

} // namespace varenta::teste
