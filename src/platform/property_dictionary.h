#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tarvo {

class PropertyDictionary;

/// A value as a system service describes it. A dictionary is held by pointer and never null.
using PropertyValue = std::variant<bool, std::int64_t, std::uint64_t, double, std::string,
                                   std::shared_ptr<const PropertyDictionary>>;

/// String keys to typed values. Every getter answers absent for a missing key and for a value of another
/// type.
class PropertyDictionary {
public:
    void set(std::string key, PropertyValue value) {
        values_.insert_or_assign(std::move(key), std::move(value));
    }
    void set(std::string key, PropertyDictionary value) {
        set(std::move(key), PropertyValue(std::make_shared<const PropertyDictionary>(std::move(value))));
    }

    const PropertyDictionary* dictionary(std::string_view key) const;
    std::optional<bool> boolean(std::string_view key) const;
    /// Either integer type, where the value fits.
    std::optional<std::int64_t> integer(std::string_view key) const;
    std::optional<std::uint64_t> unsignedInteger(std::string_view key) const;
    /// Any numeric type.
    std::optional<double> number(std::string_view key) const;
    std::optional<std::string> string(std::string_view key) const;

private:
    const PropertyValue* find(std::string_view key) const;

    std::map<std::string, PropertyValue, std::less<>> values_;
};

} // namespace tarvo
