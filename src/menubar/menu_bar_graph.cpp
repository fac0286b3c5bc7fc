#include "menubar/menu_bar_graph.h"

#include <algorithm>
#include <cassert>

namespace tarvo {
namespace {

constexpr double width = 34;
constexpr double height = 18;
constexpr double margin = 1;
constexpr double lineWidth = 1.4;

double yOf(double percent) {
    const bool above = !(percent < 100); // what is not a number too
    return above ? height - margin : std::max(percent, 0.0) / 100 * (height - 2 * margin) + margin;
}

void addSeries(LineDrawing& drawing, const std::vector<double>& values, int maxSamples, SystemColor color) {
    if (values.size() < 2) return;
    LineDrawing::Stroke stroke{.color = color, .width = lineWidth, .points = {}};
    stroke.points.reserve(values.size());
    const double step = width / (maxSamples - 1);
    double place = maxSamples - static_cast<double>(values.size());
    for (const double value : values) {
        stroke.points.push_back({step * place, yOf(value)});
        place += 1;
    }
    drawing.strokes.push_back(std::move(stroke));
}

} // namespace

LineDrawing renderMenuBarGraph(const std::vector<double>& cpuHistory, const std::vector<double>& memHistory,
                               int maxSamples) {
    assert(maxSamples >= 2);
    LineDrawing drawing{.width = width, .height = height, .strokes = {}};
    addSeries(drawing, memHistory, maxSamples, SystemColor::purple);
    addSeries(drawing, cpuHistory, maxSamples, SystemColor::blue);
    return drawing;
}

} // namespace tarvo
