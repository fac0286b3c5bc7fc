#pragma once

#include "platform/desktop/hot_key/hot_key_binding.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

namespace tarvo::desktop {

/// A shortcut of the desktop portal (org.freedesktop.portal.GlobalShortcuts, version 1): the way on Wayland,
/// where the compositor keeps the keyboard to itself. The desktop may ask its user, who may choose other keys
/// or none. Nothing waits; a portal that comes or is replaced later is asked again. Main thread only.
class PortalHotKey : public QObject, public HotKeyBinding {
    Q_OBJECT

public:
    struct Texts {
        QString applicationID; ///< names the desktop file
        QString description;   ///< what the shortcut does, for the desktop's own dialog
    };

    PortalHotKey(const KeyCombination& keys, HotKeyEvents events, QDBusConnection bus, Texts texts);
    ~PortalHotKey() override;

    HotKeyState state() const override { return state_; }

private slots:
    void sessionAnswered(uint response, const QVariantMap& results);
    void bindingAnswered(uint response, const QVariantMap& results);
    void activated(const QDBusObjectPath& session, const QString& shortcut, qulonglong timestamp,
                   const QVariantMap& options);
    void ownerChanged();

private:
    void ask();
    void createSession();
    void bindShortcut();
    /// Sends a request that answers by a signal, which is subscribed to first.
    void request(QDBusMessage call, QVariantMap options, const char* answered);
    void setState(HotKeyState state);

    QString trigger_;
    HotKeyEvents events_;
    QDBusConnection bus_;
    Texts texts_;
    QDBusServiceWatcher portal_;
    QString session_;
    int requests_ = 0;
    HotKeyState state_ = HotKeyState::pending;
};

/// The combination as the portal's shortcuts are written: "LOGO+SHIFT+m".
QString portalTrigger(const KeyCombination& keys);

} // namespace tarvo::desktop
