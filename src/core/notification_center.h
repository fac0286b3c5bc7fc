#pragma once

#include "platform/subscription.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tarvo {

/// Posted when the menu-bar style, layout, a shown module or the accent theme was changed.
inline constexpr std::string_view menuBarStyleChanged = "menuBarStyleChanged";

/// Named notifications without payload. Main thread only.
class NotificationCenter {
public:
    void post(std::string_view name) {
        const auto position = observers_.find(name);
        if (position != observers_.end()) position->second.notify();
    }

    [[nodiscard]] Subscription observe(std::string_view name, std::function<void()> callback) {
        return observers_[std::string(name)].observe(std::move(callback));
    }

private:
    std::map<std::string, Observers<>, std::less<>> observers_;
};

} // namespace tarvo
