#pragma once

#include <QWidget>

namespace tarvo::ui {

/// Moves the keyboard's focus among the controls below a widget in reading order: from top to bottom, in a
/// line from left to right, and from the last to the first. Scrolls where the control is out of sight. False
/// when there is nothing to move to.
bool moveFocusInReadingOrder(QWidget& within, bool forward);

} // namespace tarvo::ui
