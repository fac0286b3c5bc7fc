#pragma once

#include "platform/desktop/bar/bar_font.h"
#include "platform/status_bar.h"

#include <QPointF>
#include <QSizeF>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace tarvo::desktop {

/// A stretch of one line in one font, or a symbol that stands for a character which the font does not have.
struct TitlePiece {
    QString text;
    std::string symbol; ///< not empty: drawn instead of the text, in a square of `width`
    const BarFont* font = nullptr;
    std::optional<SystemColor> color;
    QPointF origin; ///< on the base line, from the title's top left
    double width = 0;
};

/// Where each piece of a title stands, in logical pixels.
struct TitleLayout {
    QSizeF size;
    std::vector<TitlePiece> pieces;
};

TitleLayout layoutTitle(const AttributedTitle& title, const TextFont& buttonFont, BarFonts& fonts);

/// The text with every number that changes by itself at its usual widest: percentages with two digits at
/// least, rates with three before the point.
QString withRoomForNumbers(const QString& text);

/// The width an item keeps for its title, so that the bar does not jitter while digits come and go: it grows
/// with the title and starts anew when the title has another number of parts.
class ReservedWidth {
public:
    double fit(const AttributedTitle& title, const TitleLayout& layout, const TextFont& buttonFont,
               BarFonts& fonts);

private:
    qsizetype parts_ = 0;
    double width_ = 0;
};

} // namespace tarvo::desktop
