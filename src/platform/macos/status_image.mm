#include "platform/macos/status_image.h"

#include "platform/macos/foundation_text.h"
#include "platform/macos/text_style.h"

namespace tarvo::macos_platform {
namespace {

void drawStroke(const LineDrawing::Stroke& stroke) {
    if (stroke.points.empty()) return;
    NSBezierPath* const path = [NSBezierPath bezierPath];
    [path moveToPoint:NSMakePoint(stroke.points.front().x, stroke.points.front().y)];
    for (const Point& point : stroke.points)
        [path lineToPoint:NSMakePoint(point.x, point.y)];
    path.lineWidth = stroke.width;
    path.lineJoinStyle = NSLineJoinStyleRound;
    path.lineCapStyle = NSLineCapStyleRound;
    [systemColor(stroke.color) setStroke];
    [path stroke];
}

struct ImageMaker {
    NSImage* _Nullable operator()(std::monostate) const { return nil; }

    NSImage* _Nullable operator()(const SymbolImage& symbol) const {
        NSImage* const image =
            [NSImage imageWithSystemSymbolName:systemText(symbol.name)
                      accessibilityDescription:systemText(symbol.accessibilityDescription)];
        [image setTemplate:symbol.isTemplate];
        return image;
    }

    NSImage* _Nullable operator()(const LineDrawing& drawing) const {
        NSImage* const image = [NSImage imageWithSize:NSMakeSize(drawing.width, drawing.height)
                                              flipped:NO
                                       drawingHandler:^BOOL(NSRect) {
                                         for (const auto& stroke : drawing.strokes)
                                             drawStroke(stroke);
                                         return YES;
                                       }];
        [image setTemplate:NO];
        return image;
    }
};

} // namespace

NSImage* _Nullable statusImage(const StatusImage& image) {
    return std::visit(ImageMaker(), image);
}

} // namespace tarvo::macos_platform
