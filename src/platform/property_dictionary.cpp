#include "platform/property_dictionary.h"

#include <utility>

namespace tarvo {

const PropertyValue* PropertyDictionary::find(std::string_view key) const {
    const auto position = values_.find(key);
    return position == values_.end() ? nullptr : &position->second;
}

const PropertyDictionary* PropertyDictionary::dictionary(std::string_view key) const {
    const auto* value = find(key);
    const auto* held = value ? std::get_if<std::shared_ptr<const PropertyDictionary>>(value) : nullptr;
    return held ? held->get() : nullptr;
}

std::optional<bool> PropertyDictionary::boolean(std::string_view key) const {
    const auto* value = find(key);
    const auto* held = value ? std::get_if<bool>(value) : nullptr;
    return held ? std::optional(*held) : std::nullopt;
}

std::optional<std::int64_t> PropertyDictionary::integer(std::string_view key) const {
    const auto* value = find(key);
    if (!value) return std::nullopt;
    if (const auto* held = std::get_if<std::int64_t>(value)) return *held;
    const auto* held = std::get_if<std::uint64_t>(value);
    if (!held || !std::in_range<std::int64_t>(*held)) return std::nullopt;
    return static_cast<std::int64_t>(*held);
}

std::optional<std::uint64_t> PropertyDictionary::unsignedInteger(std::string_view key) const {
    const auto* value = find(key);
    if (!value) return std::nullopt;
    if (const auto* held = std::get_if<std::uint64_t>(value)) return *held;
    const auto* held = std::get_if<std::int64_t>(value);
    if (!held || *held < 0) return std::nullopt;
    return static_cast<std::uint64_t>(*held);
}

std::optional<double> PropertyDictionary::number(std::string_view key) const {
    const auto* value = find(key);
    if (!value) return std::nullopt;
    if (const auto* held = std::get_if<double>(value)) return *held;
    if (const auto* held = std::get_if<std::int64_t>(value)) return static_cast<double>(*held);
    if (const auto* held = std::get_if<std::uint64_t>(value)) return static_cast<double>(*held);
    return std::nullopt;
}

std::optional<std::string> PropertyDictionary::string(std::string_view key) const {
    const auto* value = find(key);
    const auto* held = value ? std::get_if<std::string>(value) : nullptr;
    return held ? std::optional(*held) : std::nullopt;
}

} // namespace tarvo
