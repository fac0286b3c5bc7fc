#pragma once

#include "platform/preference_store.h"

#include <memory>

namespace tarvo::macos_platform {

/// The preferences in the user's defaults of this application. An object of a kind that the program does not
/// write counts as absent and stays as it is. Main thread only.
class DefaultsPreferenceStore : public PreferenceStore {
public:
    DefaultsPreferenceStore();
    ~DefaultsPreferenceStore() override;

    std::optional<PreferenceValue> object(std::string_view key) const override;
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;
    Subscription observe(std::function<void()> changed) override;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace tarvo::macos_platform
