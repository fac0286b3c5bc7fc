#pragma once

#include <QColor>
#include <QRectF>

#include <string_view>

class QPainter;

namespace tarvo::ui {

/// Draws the symbol with that system name ("cpu.fill") in one colour, centred and as large as the area
/// allows. A name without a drawing leaves the area empty.
void paintSymbol(QPainter& painter, const QRectF& area, std::string_view name, const QColor& color);

} // namespace tarvo::ui
