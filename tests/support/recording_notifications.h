#pragma once

#include "platform/user_notifications.h"

#include <vector>

namespace tarvo {

/// Keeps what it was asked to show.
class RecordingNotifications : public UserNotifications {
public:
    void requestAuthorization() override { ++authorizationRequests; }
    void add(const UserNotification& notification) override { added.push_back(notification); }

    int authorizationRequests = 0;
    std::vector<UserNotification> added;
};

} // namespace tarvo
