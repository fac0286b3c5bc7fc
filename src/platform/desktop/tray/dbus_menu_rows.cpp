#include "platform/desktop/tray/dbus_menu_rows.h"

#include <algorithm>
#include <utility>

namespace tarvo::desktop {

namespace {

bool showsTheSame(const MenuRow& one, const MenuRow& other) {
    return one.title == other.title && one.keyEquivalent == other.keyEquivalent;
}

/// An underscore marks an access key; two are one that is shown.
QString label(const std::string& title) {
    return QString::fromStdString(title).replace(u'_', QStringLiteral("__"));
}

QVariantMap rowProperties(const MenuRow& row) {
    if (row.title.empty()) return {{QStringLiteral("type"), QStringLiteral("separator")}};
    return {{QStringLiteral("label"), label(row.title)}};
}

QVariantMap chosen(const QVariantMap& all, const QStringList& names) {
    if (names.isEmpty()) return all;
    QVariantMap some;
    for (const QString& name : names) {
        if (all.contains(name)) some.insert(name, all.value(name));
    }
    return some;
}

} // namespace

bool DBusMenuRows::update(Menu menu) {
    const bool same = std::equal(menu.begin(), menu.end(), menu_.begin(), menu_.end(), showsTheSame);
    menu_ = std::move(menu);
    if (!same) ++revision_;
    return !same;
}

bool DBusMenuRows::contains(int id) const {
    return id >= root && id <= static_cast<int>(menu_.size());
}

std::optional<MenuLayoutItem> DBusMenuRows::layout(int id, int depth, const QStringList& names) const {
    if (!contains(id)) return std::nullopt;
    MenuLayoutItem item{id, chosen(allProperties(id), names), {}};
    if (id != root || depth == 0) return item;
    for (int row = 1; contains(row); ++row)
        item.children.append({row, chosen(allProperties(row), names), {}});
    return item;
}

MenuItemPropertiesList DBusMenuRows::properties(const QList<int>& ids, const QStringList& names) const {
    MenuItemPropertiesList list;
    if (ids.isEmpty()) {
        for (int id = root; contains(id); ++id)
            list.append({id, chosen(allProperties(id), names)});
    }
    for (const int id : ids) {
        if (contains(id)) list.append({id, chosen(allProperties(id), names)});
    }
    return list;
}

std::function<void()> DBusMenuRows::action(int id) const {
    if (id == root || !contains(id)) return {};
    return menu_[static_cast<std::size_t>(id - 1)].action;
}

QVariantMap DBusMenuRows::allProperties(int id) const {
    if (id == root) return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    return rowProperties(menu_[static_cast<std::size_t>(id - 1)]);
}

} // namespace tarvo::desktop
