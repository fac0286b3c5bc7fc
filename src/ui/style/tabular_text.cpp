#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>

namespace tarvo::ui {
namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// Calls `digit` for each digit and `run` for each stretch of other characters, in order.
template <typename Digit, typename Run>
void forEachPiece(const QString& text, Digit&& digit, Run&& run) {
    qsizetype position = 0;
    while (position < text.size()) {
        if (isDigit(text[position])) {
            digit(text[position++]);
            continue;
        }
        qsizetype end = position;
        while (end < text.size() && !isDigit(text[end]))
            ++end;
        run(text.mid(position, end - position));
        position = end;
    }
}

double cellWidth(const QFontMetricsF& metrics) {
    double narrowest = metrics.horizontalAdvance(u'0');
    double widest = narrowest;
    for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
        const double advance = metrics.horizontalAdvance(QChar(digit));
        narrowest = std::min(narrowest, advance);
        widest = std::max(widest, advance);
    }
    return widest - narrowest > 0.01 ? widest : 0;
}

} // namespace

TabularText::TabularText(const QFont& font) : font_(font), metrics_(font_), cell_(cellWidth(metrics_)) {}

double TabularText::width(const QString& text) const {
    if (cell_ <= 0) return metrics_.horizontalAdvance(text);
    double sum = 0;
    forEachPiece(
        text, [&](QChar) { sum += cell_; },
        [&](const QString& run) { sum += metrics_.horizontalAdvance(run); });
    return sum;
}

QString TabularText::elided(const QString& text, double room) const {
    if (width(text) <= room + 0.01) return text;
    // Digit cells can only be wider than the digits that the metrics know.
    return metrics_.elidedText(text, Qt::ElideRight,
                               room - std::max(0.0, width(text) - metrics_.horizontalAdvance(text)));
}

double TabularText::baseline(const QRectF& area, Qt::Alignment alignment) const {
    if (alignment & Qt::AlignTop) return area.top() + metrics_.ascent();
    if (alignment & Qt::AlignBottom) return area.bottom() - metrics_.descent();
    return area.center().y() + metrics_.capHeight() / 2;
}

void TabularText::draw(QPainter& painter, const QRectF& area, Qt::Alignment alignment,
                       const QString& text) const {
    double x = area.left();
    if (alignment & Qt::AlignRight) x = area.right() - width(text);
    if (alignment & Qt::AlignHCenter) x = area.center().x() - width(text) / 2;
    painter.setFont(font_);
    const QPointF position(x, baseline(area, alignment));
    if (cell_ > 0) {
        drawCells(painter, position, text);
    } else {
        painter.drawText(position, text);
    }
}

void TabularText::drawCells(QPainter& painter, QPointF position, const QString& text) const {
    forEachPiece(
        text,
        [&](QChar digit) {
            const double inset = (cell_ - metrics_.horizontalAdvance(digit)) / 2;
            painter.drawText(position + QPointF(inset, 0), QString(digit));
            position.rx() += cell_;
        },
        [&](const QString& run) {
            painter.drawText(position, run);
            position.rx() += metrics_.horizontalAdvance(run);
        });
}

} // namespace tarvo::ui
