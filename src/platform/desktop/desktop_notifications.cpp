#include "platform/desktop/desktop_notifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>

#include <utility>

namespace tarvo::desktop {
namespace {

constexpr int serviceDecidesWhenToClose = -1;
constexpr uint replacesNothing = 0;
constexpr uchar normalUrgency = 1;

QDBusMessage serviceCall(const QString& method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                          QStringLiteral("/org/freedesktop/Notifications"),
                                          QStringLiteral("org.freedesktop.Notifications"), method);
}

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

} // namespace

DesktopNotifications::DesktopNotifications(QDBusConnection bus, NotificationSender sender,
                                           std::chrono::milliseconds patience)
    : bus_(std::move(bus)), sender_(std::move(sender)), patience_(patience) {}

void DesktopNotifications::add(const UserNotification& notification) {
    if (!bus_.isConnected()) return;
    waiting_.push_back(notification);
    if (waiting_.size() == 1) askForCapabilities();
}

// Asked anew each time: alerts are rare, and another service may have taken over since the last one.
void DesktopNotifications::askForCapabilities() {
    const auto call =
        bus_.asyncCall(serviceCall(QStringLiteral("GetCapabilities")), static_cast<int>(patience_.count()));
    auto* const watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QStringList> reply = *watcher;
        sendWaiting(reply.isValid() && reply.value().contains(QStringLiteral("body-markup")));
    });
}

void DesktopNotifications::sendWaiting(bool bodyIsMarkup) {
    for (const UserNotification& notification : std::exchange(waiting_, {}))
        send(notification, bodyIsMarkup);
}

void DesktopNotifications::send(const UserNotification& notification, bool bodyIsMarkup) {
    const QString body = text(notification.body);
    const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)},
                            {QStringLiteral("sound-name"), QStringLiteral("message-new-instant")},
                            {QStringLiteral("desktop-entry"), text(sender_.desktopEntry)}};
    auto call = serviceCall(QStringLiteral("Notify"));
    call << text(sender_.name) << replacesNothing << text(sender_.icon) << text(notification.title)
         << (bodyIsMarkup ? body.toHtmlEscaped() : body) << QStringList() << hints
         << serviceDecidesWhenToClose;
    bus_.asyncCall(call);
}

} // namespace tarvo::desktop
