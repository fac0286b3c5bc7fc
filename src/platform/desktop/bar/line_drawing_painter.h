#pragma once

#include "platform/status_bar.h"

#include <QPalette>
#include <QPointF>

class QPainter;

namespace tarvo::desktop {

/// Paints the drawing with its top left at the point, in the colours of the palette.
void paintLineDrawing(QPainter& painter, QPointF topLeft, const LineDrawing& drawing,
                      const QPalette& palette);

} // namespace tarvo::desktop
