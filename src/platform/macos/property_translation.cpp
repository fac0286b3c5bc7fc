#include "platform/macos/property_translation.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tarvo::macos_platform {
namespace {

/// Absent for a text that cannot be written as UTF-8.
std::optional<PropertyValue> text(CFStringRef string) {
    const auto longest = CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8);
    std::vector<char> buffer(static_cast<std::size_t>(longest) + 1); // the terminating NUL is not counted
    const auto size = static_cast<CFIndex>(buffer.size());
    if (!CFStringGetCString(string, buffer.data(), size, kCFStringEncodingUTF8)) return std::nullopt;
    return std::string(buffer.data());
}

template <typename Value>
std::optional<PropertyValue> number(CFNumberRef object, CFNumberType type) {
    Value value{};
    if (!CFNumberGetValue(object, type, &value)) return std::nullopt;
    return value;
}

std::optional<PropertyValue> number(CFNumberRef object) {
    if (CFNumberIsFloatType(object)) return number<double>(object, kCFNumberFloat64Type);
    return number<std::int64_t>(object, kCFNumberSInt64Type);
}

bool isText(CFTypeRef object) {
    return object && CFGetTypeID(object) == CFStringGetTypeID();
}

PropertyDictionary entriesOf(const std::vector<const void*>& keys, const std::vector<const void*>& values) {
    PropertyDictionary dictionary;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        auto key = propertyValue(keys[i]);
        auto value = propertyValue(values[i]);
        if (key && value) dictionary.set(std::get<std::string>(std::move(*key)), std::move(*value));
    }
    return dictionary;
}

} // namespace

std::optional<PropertyValue> propertyValue(CFTypeRef object) {
    if (!object) return std::nullopt;
    const auto type = CFGetTypeID(object);
    if (type == CFBooleanGetTypeID()) return CFBooleanGetValue(static_cast<CFBooleanRef>(object)) != 0;
    if (type == CFNumberGetTypeID()) return number(static_cast<CFNumberRef>(object));
    if (type == CFStringGetTypeID()) return text(static_cast<CFStringRef>(object));
    auto dictionary = propertyDictionary(object);
    if (!dictionary) return std::nullopt;
    return std::make_shared<const PropertyDictionary>(std::move(*dictionary));
}

std::optional<PropertyDictionary> propertyDictionary(CFTypeRef object) {
    if (!object || CFGetTypeID(object) != CFDictionaryGetTypeID()) return std::nullopt;
    const auto dictionary = static_cast<CFDictionaryRef>(object);
    const auto count = static_cast<std::size_t>(CFDictionaryGetCount(dictionary));
    std::vector<const void*> keys(count);
    std::vector<const void*> values(count);
    CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    for (const auto* key : keys) {
        if (!isText(key)) return std::nullopt;
    }
    return entriesOf(keys, values);
}

} // namespace tarvo::macos_platform
