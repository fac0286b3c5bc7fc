#pragma once

#include "platform/io_registry.h"

#include <map>
#include <string>

namespace tarvo {

/// A registry that holds the services it is given; a class that is marked so fails to enumerate.
class FixedIORegistry : public IORegistry {
public:
    std::optional<std::vector<PropertyDictionary>> services(std::string_view className) override {
        lookUps.emplace_back(className);
        const auto found = classes.find(className);
        return found == classes.end() ? std::vector<PropertyDictionary>() : found->second;
    }

    std::map<std::string, std::optional<std::vector<PropertyDictionary>>, std::less<>> classes;
    std::vector<std::string> lookUps;
};

} // namespace tarvo
