#include "platform/preference_store.h"

#include <cmath>

namespace tarvo {
namespace {

/// Doubles that an integer can hold; the bounds are exact powers of two.
bool fitsInteger(double value) {
    return value >= -0x1p63 && value < 0x1p63;
}

} // namespace

bool preferenceBool(const PreferenceStore& store, std::string_view key) {
    const auto value = store.object(key);
    if (!value) return false;
    if (const auto* held = std::get_if<bool>(&*value)) return *held;
    return preferenceDouble(store, key) != 0.0;
}

std::int64_t preferenceInteger(const PreferenceStore& store, std::string_view key) {
    const auto value = store.object(key);
    if (!value) return 0;
    if (const auto* held = std::get_if<std::int64_t>(&*value)) return *held;
    const double number = preferenceDouble(store, key);
    return fitsInteger(number) ? static_cast<std::int64_t>(number) : 0;
}

double preferenceDouble(const PreferenceStore& store, std::string_view key) {
    const auto value = store.object(key);
    if (!value) return 0;
    if (const auto* held = std::get_if<double>(&*value)) return std::isnan(*held) ? 0 : *held;
    if (const auto* held = std::get_if<std::int64_t>(&*value)) return static_cast<double>(*held);
    if (const auto* held = std::get_if<bool>(&*value)) return *held ? 1 : 0;
    return 0;
}

std::string preferenceString(const PreferenceStore& store, std::string_view key) {
    const auto value = store.object(key);
    const auto* held = value ? std::get_if<std::string>(&*value) : nullptr;
    return held ? *held : std::string();
}

} // namespace tarvo
