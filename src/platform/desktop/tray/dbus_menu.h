#pragma once

#include "platform/desktop/tray/dbus_menu_rows.h"

#include <QDBusAbstractAdaptor>
#include <QDBusVariant>
#include <QStringList>

#include <functional>

namespace tarvo::desktop {

/// Serves a menu as com.canonical.dbusmenu, on the object it is made for. The rows are asked for whenever a
/// host is about to show them.
class DBusMenu : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    DBusMenu(QObject* exported, std::function<Menu()> source);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public slots:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                   tarvo::desktop::MenuLayoutItem& layout);
    tarvo::desktop::MenuItemPropertiesList GetGroupProperties(const QList<int>& ids,
                                                              const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const QList<tarvo::desktop::MenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

signals:
    void ItemsPropertiesUpdated(const tarvo::desktop::MenuItemPropertiesList& updated,
                                const tarvo::desktop::MenuItemPropertiesList& removed);
    void LayoutUpdated(uint revision, int parent);

private:
    bool update() { return rows_.update(source_()); }

    std::function<Menu()> source_;
    DBusMenuRows rows_;
};

} // namespace tarvo::desktop
