#include "janelas/texto_digitado.h"

#include "comum/texto_tabela.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// A cell that a spreadsheet copied ends like a line; what goes to a record is one line.
QString emUmaLinha(QString texto) {
    static const QRegularExpression fimDoTexto{QStringLiteral("[\\r\\n]+$")};
    static const QRegularExpression quebra{QStringLiteral("[\\r\\n\\t]+")};
    return texto.remove(fimDoTexto).replace(quebra, QStringLiteral(" "));
}

} // namespace

TextoDigitado::TextoDigitado(QLineEdit& caixa) : QObject{&caixa}, caixa_{caixa} {
    connect(&caixa_, &QLineEdit::textEdited, this, &TextoDigitado::receber);
    connect(&caixa_, &QLineEdit::textChanged, this, [this] {
        if (caixa_.text() != mostrado_) vírgula_ = -1; // the record's text, not the person's
    });
}

QString TextoDigitado::comoFoiDigitado(QString texto) const {
    if (vírgula_ < 0) return texto;
    const auto mudança = std::ranges::mismatch(mostrado_, texto).in1 - mostrado_.cbegin();
    const auto lugar = vírgula_ < mudança ? vírgula_ : vírgula_ + texto.size() - mostrado_.size();
    if (texto.mid(lugar, 1) == QLatin1String{"."}) texto[lugar] = QLatin1Char{','};
    return texto;
}

void TextoDigitado::receber(const QString& texto) {
    auto novo = emUmaLinha(texto);
    if (!caixa_.property("textoLivre").toBool()) {
        // A second comma or point leaves all of them as they were typed: only the person knows what it means.
        const auto digitado = comoFoiDigitado(novo);
        novo = QString::fromStdString(varenta::comPonto(digitado.toStdString()));
        vírgula_ = novo == digitado ? -1 : novo.indexOf(QLatin1Char{'.'});
    }
    mostrado_ = novo;
    if (caixa_.text() != novo) {
        const int cursor = caixa_.cursorPosition();
        caixa_.setText(novo);
        caixa_.setCursorPosition(cursor);
    }
    emit mudou(novo);
}
