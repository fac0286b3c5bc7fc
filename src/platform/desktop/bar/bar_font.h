#pragma once

#include "platform/status_bar.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPointF>
#include <QString>

#include <vector>

class QPainter;

namespace tarvo::desktop {

/// One font of the bar. With monospaced digits every digit takes the width of the widest, in fonts that have
/// no such digits of their own too.
class BarFont {
public:
    BarFont(const QFont& font, bool monospacedDigits);

    double width(const QString& text) const;
    /// Draws from a point on the base line.
    void draw(QPainter& painter, QPointF origin, const QString& text) const;
    double ascent() const { return metrics_.ascent(); }
    double descent() const { return metrics_.descent(); }
    double capHeight() const { return metrics_.capHeight(); }
    bool canShow(char32_t character) const { return metrics_.inFontUcs4(character); }

private:
    QFont font_;
    QFontMetricsF metrics_;
    double digitWidth_ = 0;
    bool usesCells_ = false; ///< digits have to be placed one by one
};

/// The system font in the sizes that titles ask for. A point is a pixel here: the bar has a fixed height.
class BarFonts {
public:
    const BarFont& font(const TextFont& wanted);
    /// To be called when the system font changed; earlier references end.
    void clear() { entries_.clear(); }

private:
    struct Entry {
        TextFont wanted;
        std::unique_ptr<BarFont> font;
    };
    std::vector<Entry> entries_;
};

} // namespace tarvo::desktop
