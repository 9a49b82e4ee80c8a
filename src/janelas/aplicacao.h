#pragma once

#include <QApplication>
#include <QTranslator>

/// The application object: look, language of Qt's own texts, numbers that don't depend on the machine.
class Aplicacao : public QApplication {
  public:
    Aplicacao(int& argc, char** argv);

    /// The last net under an exception that left a handler: shows its text, where Qt would end the program.
    bool notify(QObject* objeto, QEvent* evento) override;

  private:
    QTranslator tradução_;
};
