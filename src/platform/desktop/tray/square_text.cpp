#include "platform/desktop/tray/square_text.h"

#include <QRegularExpression>
#include <QStringList>

namespace tarvo::desktop {

namespace {

/// "CPU 23%" is a word and a value; text without a digit is all word, text that starts with one all value.
SquareText wordAndValue(const QString& part) {
    static const QRegularExpression firstDigit(QStringLiteral("[-0-9]"));
    const qsizetype at = part.indexOf(firstDigit);
    if (at < 0) return {part, {}};
    return {part.left(at).trimmed(), compactValue(part.mid(at))};
}

} // namespace

QString compactValue(const QString& value) {
    static const QRegularExpression rate(QStringLiteral(" ([KMG]?)B/s$"));
    static const QRegularExpression capacity(QStringLiteral("GB$"));
    static const QRegularExpression degrees(QStringLiteral(" °[CF]$"));
    static const QRegularExpression fraction(QStringLiteral("(?<=[0-9]{2})\\.[0-9](?=[KMG]?$)"));
    QString text = value;
    text.replace(rate, QStringLiteral("\\1"));
    text.replace(capacity, QStringLiteral("G"));
    text.replace(degrees, QStringLiteral("°"));
    text.remove(fraction);
    return text;
}

SquareText squareText(const AttributedTitle& title) {
    const QString text = QString::fromStdString(plainText(title));
    if (const qsizetype line = text.indexOf(u'\n'); line >= 0) {
        return {text.left(line), compactValue(text.mid(line + 1))};
    }
    const QStringList parts = text.split(QStringLiteral(" · "));
    const SquareText first = wordAndValue(parts.front());
    if (parts.size() < 2) return first.top.isEmpty() ? SquareText{first.bottom, {}} : first;
    const SquareText second = wordAndValue(parts[1]);
    return {first.bottom, second.bottom};
}

} // namespace tarvo::desktop
