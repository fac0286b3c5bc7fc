#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>

namespace tarvo {

/// org.freedesktop.portal.Settings with one setting, the colour scheme. Exported where it is told to be.
class ScriptedSettingsPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit ScriptedSettingsPortal(QDBusConnection bus) : bus_(std::move(bus)) {}
    ~ScriptedSettingsPortal() override { vanish(); }

    void appear() {
        bus_.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }
    void vanish() { bus_.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop")); }

    uint scheme = 0;   ///< 0 no preference, 1 dark, 2 light
    QStringList asked; ///< methods, in order

public slots:
    QDBusVariant ReadOne(const QString& space, const QString& key) {
        asked.append(QStringLiteral("ReadOne ") + space + u' ' + key);
        return QDBusVariant(scheme);
    }
    QDBusVariant Read(const QString& space, const QString& key) {
        asked.append(QStringLiteral("Read ") + space + u' ' + key);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }
    /// The user chooses another scheme.
    void Choose(uint chosen) {
        scheme = chosen;
        emit SettingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                            QDBusVariant(scheme));
    }

signals:
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    QDBusConnection bus_;
};

/// A portal of before ReadOne.
class OldSettingsPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public slots:
    QDBusVariant Read(const QString&, const QString&) {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(1U)));
    }
};

} // namespace tarvo
