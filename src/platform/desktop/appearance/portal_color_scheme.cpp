#include "platform/desktop/appearance/portal_color_scheme.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace tarvo::desktop {

namespace {

constexpr int timeoutMilliseconds = 5000;
constexpr uint dark = 1;
const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
const QString readOne = QStringLiteral("ReadOne");
/// Of portals that do not know ReadOne yet; it wraps the value once more.
const QString readWrapped = QStringLiteral("Read");

QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

bool meansDark(const QVariant& value) {
    const QVariant number = unwrapped(value);
    return number.metaType() == QMetaType::fromType<uint>() && number.toUInt() == dark;
}

} // namespace

PortalColorScheme::PortalColorScheme(QDBusConnection bus)
    : bus_(std::move(bus)), portal_(service, bus_, QDBusServiceWatcher::WatchForRegistration) {
    if (!bus_.isConnected()) return;
    connect(&portal_, &QDBusServiceWatcher::serviceRegistered, this, &PortalColorScheme::ask);
    // The bus library finds a slot's types by name, and knows this one only once somebody has registered it.
    qRegisterMetaType<QDBusVariant>();
    bus_.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

void PortalColorScheme::ask() {
    askBy(readOne, ++round_);
}

void PortalColorScheme::askBy(const QString& method, int round) {
    auto message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setAutoStartService(false);
    message << appearance << colorScheme;
    auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(message, timeoutMilliseconds), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, method, round, pending] {
        pending->deleteLater();
        answered(pending->reply(), method, round);
    });
}

void PortalColorScheme::answered(const QDBusMessage& reply, const QString& method, int round) {
    if (round != round_) return;
    if (reply.type() == QDBusMessage::ReplyMessage) {
        become(!reply.arguments().isEmpty() && meansDark(reply.arguments().first()));
    } else if (method == readOne && QDBusError(reply).type() == QDBusError::UnknownMethod) {
        askBy(readWrapped, round);
    }
}

void PortalColorScheme::settingChanged(const QString& space, const QString& key, const QDBusVariant& value) {
    if (space != appearance || key != colorScheme) return;
    ++round_;
    become(meansDark(value.variant()));
}

void PortalColorScheme::become(bool prefersDark) {
    if (prefersDark == prefersDark_) return;
    prefersDark_ = prefersDark;
    if (changed) changed();
}

} // namespace tarvo::desktop
