#include "platform/macos/mac_power_sources.h"

#include "platform/macos/cf_object.h"
#include "platform/macos/property_translation.h"

#include <IOKit/ps/IOPowerSources.h>

namespace tarvo::macos_platform {

std::optional<PowerSourceList> MacPowerSources::descriptions() {
    const CFObject snapshot(IOPSCopyPowerSourcesInfo());
    if (!snapshot) return std::nullopt;
    const CFObject sources(IOPSCopyPowerSourcesList(snapshot.get()));
    if (!sources) return std::nullopt;
    PowerSourceList list;
    const auto count = CFArrayGetCount(sources.get());
    for (CFIndex i = 0; i < count; ++i) {
        const auto* const source = CFArrayGetValueAtIndex(sources.get(), i);
        // A description belongs to the snapshot.
        list.push_back(propertyDictionary(IOPSGetPowerSourceDescription(snapshot.get(), source)));
    }
    return list;
}

} // namespace tarvo::macos_platform
