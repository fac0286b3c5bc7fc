#pragma once

#include "platform/user_notifications.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>
#include <string>
#include <vector>

namespace tarvo::desktop {

/// How the program names itself to the notification service.
struct NotificationSender {
    std::string name = "Tarvo";
    std::string icon = "tarvo";         ///< in the icon theme
    std::string desktopEntry = "tarvo"; ///< desktop file name without its suffix
};

/// Notifications by org.freedesktop.Notifications (Desktop Notifications Specification 1.2) on the session
/// bus. Calls never wait: a service that is missing, slow or dies on the way costs nothing and is not
/// reported. The service plays the sound where it can. Main thread only.
class DesktopNotifications : public QObject, public UserNotifications {
public:
    /// After `patience` the service's abilities are taken as unknown.
    explicit DesktopNotifications(QDBusConnection bus, NotificationSender sender = {},
                                  std::chrono::milliseconds patience = std::chrono::seconds(2));

    /// Nothing to ask for on these desktops.
    void requestAuthorization() override {}
    void add(const UserNotification& notification) override;

private:
    void askForCapabilities();
    void sendWaiting(bool bodyIsMarkup);
    void send(const UserNotification& notification, bool bodyIsMarkup);

    QDBusConnection bus_;
    NotificationSender sender_;
    std::chrono::milliseconds patience_;
    std::vector<UserNotification> waiting_; ///< for the service to tell what it can do
};

} // namespace tarvo::desktop
