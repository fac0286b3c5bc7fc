#include "platform/macos/mac_status_button.h"

#include "platform/macos/foundation_text.h"
#include "platform/macos/screen_coordinates.h"
#include "platform/macos/status_image.h"
#include "platform/macos/text_style.h"

#include <utility>

namespace tarvo::macos_platform {
namespace {

/// Takes the new value over; false when it is the old one.
template <typename Value>
bool changes(Value& kept, Value value) {
    if (kept == value) return false;
    kept = std::move(value);
    return true;
}

std::optional<StatusClick> currentClick() {
    NSEvent* const event = NSApplication.sharedApplication.currentEvent;
    if (event == nil) return std::nullopt;
    if (event.type == NSEventTypeRightMouseUp) return StatusClick::right;
    if (event.type == NSEventTypeLeftMouseUp) return StatusClick::left;
    return std::nullopt;
}

Rect plain(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace

MacStatusButton::MacStatusButton(NSStatusBarButton* button) : button_(button) {
    button_.imagePosition = NSImageLeft;
    [button_ sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
}

void MacStatusButton::setFont(const TextFont& font) {
    button_.font = systemFont(font);
}

void MacStatusButton::setTitle(const std::string& title) {
    if (changes(title_, Title(title))) button_.title = systemText(title);
}

void MacStatusButton::setAttributedTitle(const AttributedTitle& title) {
    if (changes(title_, Title(title))) button_.attributedTitle = attributedString(title);
}

void MacStatusButton::setImage(const StatusImage& image) {
    if (changes(image_, image)) button_.image = statusImage(image);
}

void MacStatusButton::setContentTint(std::optional<SystemColor> tint) {
    if (changes(tint_, tint)) button_.contentTintColor = tint ? systemColor(*tint) : nil;
}

void MacStatusButton::setToolTip(const std::string& text) {
    if (changes(toolTip_, text)) button_.toolTip = systemText(text);
}

void MacStatusButton::setAction(std::function<void(std::optional<StatusClick>)> action) {
    target_ = [[TarvoActionTarget alloc] initWithAction:[action = std::move(action)] {
        if (action) action(currentClick());
    }];
    button_.target = target_;
    button_.action = @selector(perform:);
}

void MacStatusButton::performClick() {
    [button_ performClick:nil];
}

std::optional<Rect> MacStatusButton::screenRect() const {
    NSWindow* const window = button_.window;
    NSScreen* const firstScreen = NSScreen.screens.firstObject;
    if (window == nil || firstScreen == nil) return std::nullopt;
    const NSRect inWindow = [button_ convertRect:button_.bounds toView:nil];
    return fromTop(plain([window convertRectToScreen:inWindow]), firstScreen.frame.size.height);
}

} // namespace tarvo::macos_platform
