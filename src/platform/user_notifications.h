#pragma once

#include <string>

namespace tarvo {

/// A titled message for the user, shown at once with the desktop's default notification sound.
struct UserNotification {
    std::string identifier; ///< unique
    std::string title;      ///< UTF-8 plain text
    std::string body;       ///< UTF-8 plain text
    bool operator==(const UserNotification&) const = default;
};

/// The desktop's notification service. Calls return at once and report nothing. Main thread only.
class UserNotifications {
public:
    virtual ~UserNotifications() = default;
    /// Asks the user to allow alerts and sounds, where the desktop wants that.
    virtual void requestAuthorization() = 0;
    virtual void add(const UserNotification& notification) = 0;
};

} // namespace tarvo
