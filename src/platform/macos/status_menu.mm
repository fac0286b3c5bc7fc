#include "platform/macos/status_menu.h"

#include "platform/macos/action_target.h"
#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {
namespace {

NSMenuItem* menuItem(const MenuRow& row) {
    if (row.title.empty()) return [NSMenuItem separatorItem];
    TarvoActionTarget* const target = [[TarvoActionTarget alloc] initWithAction:row.action];
    NSMenuItem* const item = [[NSMenuItem alloc] initWithTitle:systemText(row.title)
                                                        action:@selector(perform:)
                                                 keyEquivalent:systemText(row.keyEquivalent)];
    item.target = target;
    item.representedObject = target; // keeps it: the target alone is held weakly
    return item;
}

} // namespace

NSMenu* systemMenu(const Menu& rows) {
    NSMenu* const menu = [[NSMenu alloc] init];
    for (const MenuRow& row : rows)
        [menu addItem:menuItem(row)];
    return menu;
}

} // namespace tarvo::macos_platform
