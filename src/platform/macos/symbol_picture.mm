#include "platform/symbol_picture.h"

#include "platform/macos/foundation_text.h"

#import <AppKit/AppKit.h>

#include <algorithm>

namespace tarvo {

using macos_platform::systemText;

namespace {

constexpr NSInteger bytesPerPixel = 4;

NSBitmapImageRep* _Nullable emptyBitmap(NSInteger side) {
    return [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                   pixelsWide:side
                                                   pixelsHigh:side
                                                bitsPerSample:8
                                              samplesPerPixel:bytesPerPixel
                                                     hasAlpha:YES
                                                     isPlanar:NO
                                               colorSpaceName:NSDeviceRGBColorSpace
                                                  bytesPerRow:side * bytesPerPixel
                                                 bitsPerPixel:8 * bytesPerPixel];
}

NSRect centredIn(NSInteger side, NSSize size) {
    const double room = static_cast<double>(side);
    const double scale = std::min(room / size.width, room / size.height);
    const double width = size.width * scale;
    const double height = size.height * scale;
    return NSMakeRect((room - width) / 2, (room - height) / 2, width, height);
}

void draw(NSImage* image, NSBitmapImageRep* bitmap, NSInteger side) {
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap];
    [image drawInRect:centredIn(side, image.size)];
    [NSGraphicsContext restoreGraphicsState];
}

} // namespace

std::optional<std::vector<std::uint8_t>> symbolPicture(std::string_view name, int side) {
    if (side <= 0) return std::nullopt;
    @autoreleasepool {
        NSImage* const image = [NSImage imageWithSystemSymbolName:systemText(name)
                                         accessibilityDescription:nil];
        NSBitmapImageRep* const bitmap = emptyBitmap(side);
        if (image == nil || bitmap == nil || image.size.width <= 0 || image.size.height <= 0)
            return std::nullopt;
        draw(image, bitmap, side);
        const unsigned char* const bytes = bitmap.bitmapData;
        if (bytes == nullptr) return std::nullopt;
        return std::vector<std::uint8_t>(bytes, bytes + side * side * bytesPerPixel);
    }
}

} // namespace tarvo
