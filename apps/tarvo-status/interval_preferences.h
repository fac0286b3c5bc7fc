#pragma once

#include "core/setting_keys.h"
#include "platform/preference_store.h"

#include <utility>

namespace tarvo::status {

/// The user's preferences with a refresh interval of this run's own. Nothing of it is stored.
class IntervalPreferences : public PreferenceStore {
public:
    /// `user` outlives this.
    explicit IntervalPreferences(PreferenceStore& user) : user_(user) {}

    /// Absent: the user's preference holds again.
    void setInterval(std::optional<Seconds> interval) { interval_ = interval; }

    std::optional<PreferenceValue> object(std::string_view key) const override {
        if (interval_ && key == keys::refreshInterval) return interval_->count();
        return user_.object(key);
    }
    void set(std::string_view key, PreferenceValue value) override { user_.set(key, std::move(value)); }
    void remove(std::string_view key) override { user_.remove(key); }
    Subscription observe(std::function<void()> changed) override { return user_.observe(std::move(changed)); }

private:
    PreferenceStore& user_;
    std::optional<Seconds> interval_;
};

} // namespace tarvo::status
