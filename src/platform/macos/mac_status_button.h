#pragma once

// Objective-C++ only: for the implementation files of this folder.

#include "platform/macos/action_target.h"
#include "platform/status_bar.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

/// The button of one status item. A call that changes nothing does not reach the system.
class MacStatusButton : public StatusButton {
public:
    explicit MacStatusButton(NSStatusBarButton* button);

    void setFont(const TextFont& font) override;
    void setTitle(const std::string& title) override;
    void setAttributedTitle(const AttributedTitle& title) override;
    void setImage(const StatusImage& image) override;
    void setContentTint(std::optional<SystemColor> tint) override;
    void setToolTip(const std::string& text) override;
    void setAction(std::function<void(std::optional<StatusClick>)> action) override;
    void performClick() override;
    std::optional<Rect> screenRect() const override;

private:
    using Title = std::variant<std::monostate, std::string, AttributedTitle>;

    NSStatusBarButton* button_;
    TarvoActionTarget* target_ = nil;
    Title title_;
    StatusImage image_;
    std::optional<SystemColor> tint_;
    std::string toolTip_;
};

} // namespace tarvo::macos_platform
