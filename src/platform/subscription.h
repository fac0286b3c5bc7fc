#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

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
        dropEnded();
        auto entry = std::make_shared<Callback>(std::move(callback));
        entries_.push_back(entry);
        return Subscription(std::move(entry));
    }

    void notify(Arguments... arguments) const {
        ++notifying_;
        // By index and count: a callback may add entries, which are called from the next time on.
        const std::size_t count = entries_.size();
        for (std::size_t i = 0; i < count; ++i) {
            if (const auto callback = entries_[i].lock()) (*callback)(arguments...);
        }
        --notifying_;
        dropEnded();
    }

private:
    void dropEnded() const {
        if (notifying_ > 0) return; // an outer call still counts on the places
        std::erase_if(entries_, [](const auto& entry) { return entry.expired(); });
    }

    mutable std::vector<std::weak_ptr<Callback>> entries_;
    mutable int notifying_ = 0;
};

} // namespace tarvo
