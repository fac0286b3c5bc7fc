#pragma once

#include "ui/style/color.h"

#include <QBrush>
#include <QColor>
#include <QPalette>
#include <QRectF>

namespace tarvo::ui {

/// The shades that follow from the desktop's palette: light or dark is told by its window and text colours,
/// the neutral tones are mixed from them, the named colours have one shade for each. Cheap enough to make per
/// paint.
class Theme {
public:
    explicit Theme(const QPalette& palette);

    bool isDark() const { return dark_; }
    QColor window() const { return window_; }
    QColor card() const { return card_; }
    QColor color(Color color) const;
    /// The soft vertical gradient that fills take instead of a flat colour.
    QBrush gradient(Color color, const QRectF& area) const;
    /// The shade that white text and symbols stand on: as deep in the dark as in the light.
    QColor ground(Color color) const;
    /// Its soft vertical gradient.
    QBrush groundGradient(Color color, const QRectF& area) const;

private:
    bool dark_;
    QColor window_;
    QColor text_;
    QColor card_;
    QColor secondary_;
};

/// Contrast of two opaque colours after WCAG 2.1, from 1 to 21.
double contrastRatio(const QColor& first, const QColor& second);

} // namespace tarvo::ui
