#pragma once

#include <QFont>
#include <QStringList>

namespace tarvo::ui {

/// The text broken into at most `limit` lines of a width, between words where that is possible. The last line
/// ends with an ellipsis where the rest does not fit.
QStringList textLines(const QString& text, const QFont& font, double width, int limit);

} // namespace tarvo::ui
