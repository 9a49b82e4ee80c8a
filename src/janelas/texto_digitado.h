#pragma once

#include <QLineEdit>

/// What a person types, pastes or drops into a box, on its way to the record: one line, and in a box for a
/// number a decimal comma as a point. Boxes that hold any text have the property `textoLivre`.
class TextoDigitado : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the box.
    explicit TextoDigitado(QLineEdit& caixa);

  signals:
    /// The person has changed the text, which the box now shows like this.
    void mudou(const QString& texto);

  private:
    void receber();
    /// After an undo or a redo: goes on past texts that were corrected at once.
    void passarPelosCorrigidos();
    /// Makes the box show the text by an edit that can be undone, as setting it could not.
    void escrever(const QString& novo);
    bool éDeNúmero() const;
    /// A text as the box is to show it.
    QString corrigido(const QString& texto) const;
    /// With a comma in the place where one of the text before became a point.
    QString comoFoiDigitado(QString texto) const;

    QLineEdit& caixa_;
    /// What the box showed last, and where in it a comma became a point; -1 for nowhere.
    QString mostrado_;
    qsizetype vírgula_ = -1;
    bool escrevendo_ = false;
};
