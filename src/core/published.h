#pragma once

#include "platform/subscription.h"

#include <functional>
#include <utility>

namespace tarvo {

/// A value that tells its observers before each change. Main thread only.
/// Observers that draw schedule a repaint and read the value in the next turn of the loop.
template <typename Value>
class Published {
public:
    Published() = default;
    explicit Published(Value initial) : value_(std::move(initial)) {}

    const Value& get() const { return value_; }
    const Value* operator->() const { return &value_; }
    const Value& operator*() const { return value_; }

    void set(Value value) {
        willChange_.notify();
        value_ = std::move(value);
    }

    /// Announces, then lets `edit` change the value in place: one change for the observers.
    template <typename Edit>
    void change(Edit&& edit) {
        willChange_.notify();
        std::forward<Edit>(edit)(value_);
    }

    [[nodiscard]] Subscription observeWillChange(std::function<void()> callback) {
        return willChange_.observe(std::move(callback));
    }

private:
    Value value_{};
    Observers<> willChange_;
};

} // namespace tarvo
