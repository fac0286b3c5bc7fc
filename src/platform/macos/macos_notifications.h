#pragma once

#include "platform/user_notifications.h"

namespace tarvo::macos_platform {

/// The system's notification centre. A program that runs outside an application bundle has none.
class MacNotifications : public UserNotifications {
public:
    void requestAuthorization() override;
    void add(const UserNotification& notification) override;
};

} // namespace tarvo::macos_platform
