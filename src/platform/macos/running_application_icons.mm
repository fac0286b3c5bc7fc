#include "platform/macos/running_application_icons.h"

#include "platform/macos/foundation_text.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {
namespace {

/// Pixels a side; a view shows 18 points, which are 36 pixels on a sharp screen.
constexpr double pictureSize = 64;

NSData* _Nullable pngData(NSImage* image) {
    NSRect place = NSMakeRect(0, 0, pictureSize, pictureSize);
    const CGImageRef drawn = [image CGImageForProposedRect:&place context:nil hints:nil];
    if (drawn == nullptr) return nil;
    NSBitmapImageRep* const bitmap = [[NSBitmapImageRep alloc] initWithCGImage:drawn];
    return [bitmap representationUsingType:NSBitmapImageFileTypePNG properties:@{}];
}

} // namespace

std::optional<ProcessIcon> RunningApplicationIcons::icon(std::int32_t pid) {
    @autoreleasepool {
        NSImage* const image = [NSRunningApplication runningApplicationWithProcessIdentifier:pid].icon;
        NSData* const png = image == nil ? nil : pngData(image);
        if (png == nil) return std::nullopt;
        return IconPicture{std::string(static_cast<const char*>(png.bytes), png.length)};
    }
}

} // namespace tarvo::macos_platform
