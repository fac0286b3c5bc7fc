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

    std::map<std::string, std::vector<PropertyDictionary>, std::less<>> classes;
    bool fails = false;
    std::vector<std::string> lookUps;
};

} // namespace tarvo
