#pragma once

#include "ui/geometry/point.h"
#include "ui/style/theme.h"

#include <QPainterPath>
#include <QRectF>

#include <string_view>
#include <vector>

class QPainter;

namespace tarvo::ui {

/// A symbol on a rounded square.
struct IconTile {
    std::string_view symbol; ///< system symbol name
    double symbolSize;
    double cornerRadius;
};

/// The symbol in white, centred on a rounded square filled with the colour's gradient.
void paintIconTile(QPainter& painter, const Theme& theme, const QRectF& area, const IconTile& tile,
                   Color color);

/// A bar of a part of a track: both are capsules, the fill has the colour's gradient.
void paintBar(QPainter& painter, const Theme& theme, const QRectF& track, double trackOpacity,
              double fillWidth, Color color);

/// A percentage as a ring: the arc runs clockwise from the top in the colour of the load.
void paintRing(QPainter& painter, const Theme& theme, const QRectF& frame, double percent);

/// The open line through the points; empty below two.
QPainterPath linePath(const std::vector<DrawPoint>& points);
/// The area between the line and the bottom of the frame.
QPainterPath areaPath(const std::vector<DrawPoint>& points, double bottom);

} // namespace tarvo::ui
