#pragma once

#include "platform/io_registry.h"

#include <map>
#include <string>

namespace tarvo {

/// Services as the test wrote them down; a class that is not named has none, and `fails` makes every look-up
/// fail.
class ScriptedIORegistry : public IORegistry {
public:
    std::optional<std::vector<PropertyDictionary>> services(std::string_view className) override {
        lookUps.emplace_back(className);
        if (fails) return std::nullopt;
        const auto position = classes.find(className);
        return position == classes.end() ? std::vector<PropertyDictionary>{} : position->second;
    }

    std::optional<PropertyDictionary> properties(std::string_view className,
                                                 std::span<const std::string_view> names) override {
        named.assign(names.begin(), names.end());
        const auto found = services(className);
        return found && !found->empty() ? std::optional(found->front()) : std::nullopt;
    }

    std::map<std::string, std::vector<PropertyDictionary>, std::less<>> classes;
    bool fails = false;
    std::vector<std::string> lookUps;
    std::vector<std::string> named; ///< the properties that were asked for last
};

} // namespace tarvo
