#include "platform/macos/mac_io_registry.h"

#include "platform/macos/cf_object.h"
#include "platform/macos/io_look_up.h"
#include "platform/macos/io_object.h"
#include "platform/macos/property_translation.h"

#include <string>
#include <utility>

namespace tarvo::macos_platform {
namespace {

constexpr IOOptionBits noOptions = 0;

std::optional<PropertyDictionary> allProperties(const IOObject& service) {
    CFMutableDictionaryRef properties = nullptr;
    if (IORegistryEntryCreateCFProperties(service.get(), &properties, kCFAllocatorDefault, noOptions) !=
        KERN_SUCCESS)
        return std::nullopt;
    return propertyDictionary(CFObject(properties).get());
}

std::optional<PropertyValue> property(const IOObject& service, const std::string& name) {
    const CFObject key(CFStringCreateWithCString(kCFAllocatorDefault, name.c_str(), kCFStringEncodingUTF8));
    if (!key) return std::nullopt;
    const CFObject value(
        IORegistryEntryCreateCFProperty(service.get(), key.get(), kCFAllocatorDefault, noOptions));
    return propertyValue(value.get());
}

} // namespace

std::optional<std::vector<PropertyDictionary>> MacIORegistry::services(std::string_view className) {
    const auto found = allServices(className);
    if (!found) return std::nullopt;
    const IOObject iterator(*found);
    std::vector<PropertyDictionary> list;
    while (const IOObject service{IOIteratorNext(iterator.get())}) {
        if (auto properties = allProperties(service)) list.push_back(std::move(*properties));
    }
    return list;
}

std::optional<PropertyDictionary> MacIORegistry::properties(std::string_view className,
                                                            std::span<const std::string_view> names) {
    const IOObject service(firstService(className));
    if (!service) return std::nullopt;
    PropertyDictionary dictionary;
    for (const auto name : names) {
        std::string key(name);
        if (auto value = property(service, key)) dictionary.set(std::move(key), std::move(*value));
    }
    return dictionary;
}

} // namespace tarvo::macos_platform
