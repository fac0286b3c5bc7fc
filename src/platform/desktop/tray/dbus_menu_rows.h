#pragma once

#include "platform/desktop/tray/dbus_menu_types.h"
#include "platform/status_bar.h"

#include <functional>
#include <optional>

namespace tarvo::desktop {

/// A menu as com.canonical.dbusmenu numbers it: row n of the menu is item n + 1, the menu itself is item 0.
class DBusMenuRows {
public:
    static constexpr int root = 0;

    /// Takes the present rows; true when what they show differs from before.
    bool update(Menu menu);

    uint revision() const { return revision_; }
    bool contains(int id) const;
    /// The item with the items under it, unless depth is 0. Absent for an unknown item. An empty list of
    /// names asks for every property.
    std::optional<MenuLayoutItem> layout(int id, int depth, const QStringList& names) const;
    /// An empty list of items asks for all; unknown ones are left out.
    MenuItemPropertiesList properties(const QList<int>& ids, const QStringList& names) const;
    /// What choosing the item does; empty for an unknown item or a separator.
    std::function<void()> action(int id) const;

private:
    QVariantMap allProperties(int id) const;

    Menu menu_;
    uint revision_ = 1;
};

} // namespace tarvo::desktop
