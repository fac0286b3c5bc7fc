#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace tarvo {

/// Keeps a callback registered; destroying it ends the registration. May outlive what it observes.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<void> token) : token_(std::move(token)) {}

private:
    std::shared_ptr<void> token_;
};

/// Callbacks that are run in order of registration. Main thread only.
/// A callback may subscribe and unsubscribe (itself too) while it runs.
template <typename... Arguments>
class Observers {
public:
    using Callback = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription observe(Callback callback) {
        auto entry = std::make_shared<Callback>(std::move(callback));
        entries_.emplace(next_++, entry);
        return Subscription(std::move(entry));
    }

    void notify(Arguments... arguments) const {
        const auto entries = entries_;
        for (const auto& [order, entry] : entries) {
            if (const auto callback = entry.lock()) (*callback)(arguments...);
        }
        std::erase_if(entries_, [](const auto& item) { return item.second.expired(); });
    }

private:
    mutable std::map<unsigned long, std::weak_ptr<Callback>> entries_;
    unsigned long next_ = 0;
};

} // namespace tarvo
