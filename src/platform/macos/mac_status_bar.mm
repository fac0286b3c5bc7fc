#include "platform/macos/mac_status_bar.h"

#include "platform/macos/mac_status_button.h"
#include "platform/macos/status_menu.h"

namespace tarvo::macos_platform {
namespace {

class MacStatusItem : public StatusItem {
public:
    MacStatusItem() : item_([NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength]) {
        NSStatusBarButton* const button = item_.button;
        if (button != nil) button_ = std::make_unique<MacStatusButton>(button);
    }
    ~MacStatusItem() override { [NSStatusBar.systemStatusBar removeStatusItem:item_]; }
    MacStatusItem(const MacStatusItem&) = delete;
    MacStatusItem& operator=(const MacStatusItem&) = delete;

    StatusButton* button() override { return button_.get(); }

    // A row may be carried out after its menu was detached: the menu is kept until the next one.
    void setMenu(std::optional<Menu> menu) override {
        if (menu) menu_ = systemMenu(*menu);
        item_.menu = menu ? menu_ : nil;
    }

    // The system opens no menu by itself.
    void setMenuSource(std::function<Menu()>) override {}

private:
    NSStatusItem* item_;
    std::unique_ptr<MacStatusButton> button_;
    NSMenu* menu_ = nil;
};

} // namespace

std::unique_ptr<StatusItem> MacStatusBar::makeItem() {
    return std::make_unique<MacStatusItem>();
}

} // namespace tarvo::macos_platform
