#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

/// The wire types of com.canonical.dbusmenu.
namespace tarvo::desktop {

/// (ia{sv}): one row's properties.
struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
    bool operator==(const MenuItemProperties&) const = default;
};
using MenuItemPropertiesList = QList<MenuItemProperties>;

/// (ia{sv}av): a row with the rows under it.
struct MenuLayoutItem {
    int id = 0;
    QVariantMap properties;
    QList<MenuLayoutItem> children;
};

/// (isvu): something happened to a row.
struct MenuEvent {
    int id = 0;
    QString eventId;
    QDBusVariant data;
    uint timestamp = 0;
};
using MenuEvents = QList<MenuEvent>;

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayoutItem& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayoutItem& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

/// Makes the types known to Qt's D-Bus; may be called again.
void registerMenuTypes();

} // namespace tarvo::desktop

Q_DECLARE_METATYPE(tarvo::desktop::MenuItemProperties)
Q_DECLARE_METATYPE(tarvo::desktop::MenuLayoutItem)
Q_DECLARE_METATYPE(tarvo::desktop::MenuEvent)
