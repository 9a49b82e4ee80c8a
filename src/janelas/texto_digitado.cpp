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

bool TextoDigitado::éDeNúmero() const { return !caixa_.property("textoLivre").toBool(); }

QString TextoDigitado::corrigido(const QString& texto) const {
    const auto linha = emUmaLinha(texto);
    return éDeNúmero() ? QString::fromStdString(varenta::comPonto(linha.toStdString())) : linha;
}

QString TextoDigitado::comoFoiDigitado(QString texto) const {
    if (vírgula_ < 0) return texto;
    const auto mudança = std::ranges::mismatch(mostrado_, texto).in1 - mostrado_.cbegin();
    const auto lugar = vírgula_ < mudança ? vírgula_ : vírgula_ + texto.size() - mostrado_.size();
    if (texto.mid(lugar, 1) == QLatin1String{"."}) texto[lugar] = QLatin1Char{','};
    return texto;
}

void TextoDigitado::passarPelosCorrigidos() {
    const auto porCorrigir = [this] { return corrigido(caixa_.text()) != caixa_.text(); };
    if (!porCorrigir()) return;
    const bool desfazendo = corrigido(caixa_.text()) == mostrado_;
    escrevendo_ = true;
    // Always the same way: two such texts may stand side by side.
    while (porCorrigir() && (desfazendo ? caixa_.isUndoAvailable() : caixa_.isRedoAvailable()))
        desfazendo ? caixa_.undo() : caixa_.redo();
    escrevendo_ = false;
}

void TextoDigitado::receber() {
    if (escrevendo_) return;
    // Only after an undo or a redo is there something to redo.
    if (caixa_.isRedoAvailable()) passarPelosCorrigidos();
    auto novo = emUmaLinha(caixa_.text());
    if (éDeNúmero() && !caixa_.isRedoAvailable()) {
        // A second comma or point leaves all of them as they were typed: only the person knows what it means.
        const auto digitado = comoFoiDigitado(novo);
        novo = corrigido(digitado);
        vírgula_ = novo == digitado ? -1 : novo.indexOf(QLatin1Char{'.'});
    } else {
        vírgula_ = -1;
    }
    mostrado_ = novo;
    if (caixa_.text() != novo) escrever(novo);
    emit mudou(novo);
}

void TextoDigitado::escrever(const QString& novo) {
    const auto antes = caixa_.text();
    const auto cursor = std::min(static_cast<qsizetype>(caixa_.cursorPosition()), novo.size());
    const auto início = std::ranges::mismatch(antes, novo).in1 - antes.cbegin();
    const auto sobra = std::min(antes.size(), novo.size()) - início;
    qsizetype fim = 0;
    while (fim < sobra && antes[antes.size() - 1 - fim] == novo[novo.size() - 1 - fim]) ++fim;
    escrevendo_ = true;
    caixa_.setSelection(static_cast<int>(início), static_cast<int>(antes.size() - início - fim));
    caixa_.insert(novo.mid(início, novo.size() - início - fim));
    escrevendo_ = false;
    // A moved cursor ends the step of undoing, so that undoing stops at the corrected text.
    caixa_.setCursorPosition(0);
    caixa_.setCursorPosition(static_cast<int>(cursor));
}
