#pragma once

#include "platform/desktop/status_bar_host.h"

#include <QString>

namespace tarvo::desktop {

/// What a square picture of some twenty pixels can say of an item: a short text over another.
struct SquareText {
    QString top;
    QString bottom; ///< empty: the top stands alone
    bool operator==(const SquareText&) const = default;
};

/// A value without what the eye can do without at this size: "1.2 MB/s" is "1.2M", "412GB" is "412G", "45 °C"
/// is "45°".
QString compactValue(const QString& value);

/// Two parts of a title show their values one over the other, a single one its word over its value.
SquareText squareText(const AttributedTitle& title);

} // namespace tarvo::desktop
