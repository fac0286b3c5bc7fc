#pragma once

#include "platform/io_registry.h"

#include <functional>
#include <map>
#include <string>

namespace tarvo::linux_platform {

/// The services of Linux by the class names that readers know. A class may be asked for on the thread of its
/// reader.
class LinuxIORegistry : public IORegistry {
public:
    using Services = std::function<std::optional<std::vector<PropertyDictionary>>()>;

    /// Names the source of a class; before the first look-up.
    void provide(std::string className, Services services) {
        sources_.insert_or_assign(std::move(className), std::move(services));
    }

    std::optional<std::vector<PropertyDictionary>> services(std::string_view className) override {
        const auto source = sources_.find(className);
        if (source == sources_.end()) return std::vector<PropertyDictionary>{};
        return source->second();
    }

    std::optional<PropertyDictionary> properties(std::string_view className,
                                                 std::span<const std::string_view>) override {
        auto found = services(className);
        return found && !found->empty() ? std::optional(std::move(found->front())) : std::nullopt;
    }

private:
    std::map<std::string, Services, std::less<>> sources_;
};

} // namespace tarvo::linux_platform
