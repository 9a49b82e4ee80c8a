#pragma once

#include <QApplication>
#include <QTranslator>

/// What Qt's own translation leaves out of its file dialogs.
class TraducaoQueFalta : public QTranslator {
  public:
    QString translate(const char* contexto, const char* texto, const char* distinção, int n) const override;
    bool isEmpty() const override { return false; }
};

/// The application object: look, language of Qt's own texts, numbers that don't depend on the machine.
class Aplicacao : public QApplication {
  public:
    Aplicacao(int& argc, char** argv);

    /// The last net under an exception that left a handler: shows its text, where Qt would end the program.
    bool notify(QObject* objeto, QEvent* evento) override;

  private:
    QTranslator tradução_;
    TraducaoQueFalta traduçãoQueFalta_;
};
