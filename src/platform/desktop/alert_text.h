#pragma once

#include <QString>

namespace tarvo::desktop {

/// The text as an alert can show it: words that are longer than a line may be broken, and what would not fit
/// on a screen ends with an ellipsis. A text of ordinary words is returned as it is.
QString alertText(const QString& text);

} // namespace tarvo::desktop
