#include "platform/desktop/tray/dbus_menu.h"

#include <QGuiApplication>

#include <utility>

namespace tarvo::desktop {

DBusMenu::DBusMenu(QObject* exported, std::function<Menu()> source)
    : QDBusAbstractAdaptor(exported), source_(std::move(source)) {
    registerMenuTypes();
}

QString DBusMenu::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                         MenuLayoutItem& layout) {
    update();
    layout = rows_.layout(parentId, recursionDepth, propertyNames).value_or(MenuLayoutItem{parentId, {}, {}});
    return rows_.revision();
}

MenuItemPropertiesList DBusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames) {
    return rows_.properties(ids, propertyNames);
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name) {
    const MenuItemPropertiesList list = rows_.properties({id}, {name});
    return QDBusVariant(list.isEmpty() ? QVariant(QString())
                                       : list.front().properties.value(name, QString()));
}

// The reply goes out first: an action may take long, or end the program.
void DBusMenu::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    if (eventId != QLatin1String("clicked")) return;
    if (auto action = rows_.action(id))
        QMetaObject::invokeMethod(qApp, std::move(action), Qt::QueuedConnection);
}

QList<int> DBusMenu::EventGroup(const MenuEvents& events) {
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (!rows_.contains(event.id)) unknown.append(event.id);
        Event(event.id, event.eventId, event.data, event.timestamp);
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int) {
    return update();
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    const bool changed = update();
    QList<int> updatesNeeded;
    for (const int id : ids) {
        if (!rows_.contains(id)) {
            idErrors.append(id);
        } else if (changed && id == DBusMenuRows::root) {
            updatesNeeded.append(id);
        }
    }
    return updatesNeeded;
}

} // namespace tarvo::desktop
