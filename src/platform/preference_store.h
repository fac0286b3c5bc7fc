#pragma once

#include "platform/clock.h"
#include "platform/subscription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarvo {

using PreferenceValue =
    std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>, WallTime>;

/// The user's preferences: typed objects by key, absent until first written. Main thread only.
/// A failed write keeps the value for this run and is not reported.
class PreferenceStore {
public:
    virtual ~PreferenceStore() = default;
    virtual std::optional<PreferenceValue> object(std::string_view key) const = 0;
    virtual void set(std::string_view key, PreferenceValue value) = 0;
    virtual void remove(std::string_view key) = 0;
    /// Called after any change, made here or by another instance of the program.
    [[nodiscard]] virtual Subscription observe(std::function<void()> changed) = 0;
};

/// Typed reads with the usual conversions between booleans and numbers; false, 0 or "" when the key is absent
/// or holds another kind of object.
bool preferenceBool(const PreferenceStore& store, std::string_view key);
std::int64_t preferenceInteger(const PreferenceStore& store, std::string_view key);
double preferenceDouble(const PreferenceStore& store, std::string_view key);
std::string preferenceString(const PreferenceStore& store, std::string_view key);

} // namespace tarvo
