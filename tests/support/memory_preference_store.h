#pragma once

#include "platform/preference_store.h"

#include <map>

namespace tarvo {

/// Preferences that live as long as the test.
class MemoryPreferenceStore : public PreferenceStore {
public:
    std::optional<PreferenceValue> object(std::string_view key) const override {
        const auto position = values.find(key);
        return position == values.end() ? std::nullopt : std::optional(position->second);
    }
    void set(std::string_view key, PreferenceValue value) override {
        values.insert_or_assign(std::string(key), std::move(value));
        ++writes;
        observers_.notify();
    }
    void remove(std::string_view key) override {
        if (const auto position = values.find(key); position != values.end()) values.erase(position);
        observers_.notify();
    }
    Subscription observe(std::function<void()> changed) override {
        return observers_.observe(std::move(changed));
    }

    std::map<std::string, PreferenceValue, std::less<>> values;
    int writes = 0;

private:
    Observers<> observers_;
};

} // namespace tarvo
