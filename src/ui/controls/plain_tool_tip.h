#pragma once

#include <QTextDocument>
#include <QWidget>

#include <string>

namespace tarvo::ui {

/// Shows a text that others wrote as the help of a widget, as it is: tool tips would take marks in it for
/// formatting. An empty text shows none.
inline void setPlainToolTip(QWidget& widget, const std::string& text) {
    const QString plain = QString::fromStdString(text);
    widget.setToolTip(plain.isEmpty() ? plain : Qt::convertFromPlainText(plain));
}

} // namespace tarvo::ui
