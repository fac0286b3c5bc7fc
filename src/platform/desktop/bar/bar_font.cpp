#include "platform/desktop/bar/bar_font.h"

#include <QFontDatabase>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvo::desktop {

namespace {

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// Calls `visit(part, isDigit)` for every digit and for every stretch of text between digits.
template <typename Visit>
void forEachPart(const QString& text, Visit visit) {
    qsizetype start = 0;
    while (start < text.size()) {
        const bool digit = isDigit(text[start]);
        qsizetype end = start + 1;
        while (!digit && end < text.size() && !isDigit(text[end]))
            ++end;
        visit(text.mid(start, end - start), digit);
        start = end;
    }
}

QFont::Weight qtWeight(FontWeight weight) {
    switch (weight) {
    case FontWeight::regular:
        return QFont::Normal;
    case FontWeight::medium:
        return QFont::Medium;
    case FontWeight::semibold:
        return QFont::DemiBold;
    }
    return QFont::Normal;
}

} // namespace

BarFont::BarFont(const QFont& font, bool monospacedDigits) : font_(font), metrics_(font) {
    double narrowest = metrics_.horizontalAdvance(u'0');
    digitWidth_ = narrowest;
    for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
        const double width = metrics_.horizontalAdvance(digit);
        narrowest = std::min(narrowest, width);
        digitWidth_ = std::max(digitWidth_, width);
    }
    usesCells_ = monospacedDigits && digitWidth_ - narrowest > 0.01;
}

double BarFont::width(const QString& text) const {
    if (!usesCells_) return metrics_.horizontalAdvance(text);
    double width = 0;
    forEachPart(text, [&](const QString& part, bool digit) {
        width += digit ? digitWidth_ : metrics_.horizontalAdvance(part);
    });
    return width;
}

void BarFont::draw(QPainter& painter, QPointF origin, const QString& text) const {
    painter.setFont(font_);
    if (!usesCells_) {
        painter.drawText(origin, text);
        return;
    }
    forEachPart(text, [&](const QString& part, bool digit) {
        const double advance = metrics_.horizontalAdvance(part);
        const double cell = digit ? digitWidth_ : advance;
        painter.drawText(origin + QPointF((cell - advance) / 2, 0), part);
        origin.rx() += cell;
    });
}

const BarFont& BarFonts::font(const TextFont& wanted) {
    const auto known = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.wanted == wanted; });
    if (known != entries_.end()) return *known->font;
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(static_cast<int>(std::lround(wanted.pointSize)));
    font.setWeight(qtWeight(wanted.weight));
    entries_.push_back({wanted, std::make_unique<BarFont>(font, wanted.monospacedDigits)});
    return *entries_.back().font;
}

} // namespace tarvo::desktop
