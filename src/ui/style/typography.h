#pragma once

#include <QFont>
#include <QString>

namespace tarvo::ui {

/// Every kind of text that the interface shows; size and weight of each are in one table.
enum class TextRole {
    axis,
    version,
    ringDetail,
    badge,
    tileLabel,
    caption,
    sectionCaption,
    placeholder,
    ringTitle,
    heroDetail,
    button,
    bannerText,
    rowLabel,
    rowValue,
    heroTitle,
    cardTitle,
    ringValue,
    bannerTitle,
    productName,
    sectionTitle,
    heroValue
};

/// Size in points of the design, which are device-independent pixels on screen.
double textSize(TextRole role);

/// The desktop's font in the size and weight of the role.
QFont textFont(TextRole role, const QFont& base);

/// Whether every character of the text has a picture in the font or in one that stands in for it.
bool canShow(const QString& text, const QFont& font);

} // namespace tarvo::ui
