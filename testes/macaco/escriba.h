#pragma once

#include "apoio/passo.h"
#include "janelas/janelas.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <optional>
#include <string>
#include <vector>

class QLineEdit;

namespace varenta::teste {

/// Writes what is done in the windows as a roteiro: the acts that a roteiro knows as its commands, with the
/// answers that they were given, and every movement of the hand as a remark.
class Escriba : public QObject {
  public:
    /// Hears the widgets of the windows that have appeared since.
    void acompanhar(const Janelas& janelas);

    void anotarGesto(const std::string& gesto) { linhas_.push_back("# " + gesto + "\n"); }
    void anotarResposta(bool sim) { passo_.respostas.push_back(sim); }
    void anotarArquivo(const std::optional<std::string>& caminho) { passo_.arquivos.push_back(caminho); }
    /// The movement is over. Answers of boxes that no act of a roteiro asks for stay as remarks.
    void encerrarGesto();

    void recomeçar();
    const std::vector<std::string>& linhas() const { return linhas_; }

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void anotarAto(std::vector<std::string> palavras);
    void acompanharJanela(TelaBase& tela, QWidget& janela);
    void acompanhar(const std::string& nome, QObject& objeto);
    void acompanharTexto(const std::string& nome, QLineEdit& caixa);

    std::map<TelaBase*, QPointer<QWidget>> janelas_;
    /// The answers given so far, and the words of an act that has begun.
    Passo passo_;
    std::vector<std::string> linhas_;
};

} // namespace varenta::teste
