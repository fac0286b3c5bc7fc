#include "macos/fakes/power_sources.h"

#include "macos/fakes/ledger.h"

#include <IOKit/ps/IOPowerSources.h>

namespace tarvo::fakes {

PowerSupply& powerSupply() {
    static PowerSupply instance;
    return instance;
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" {

CFTypeRef IOPSCopyPowerSourcesInfo() {
    if (!powerSupply().hasSnapshot) return nullptr;
    std::vector<Value> descriptions;
    for (const auto& source : powerSupply().sources)
        descriptions.push_back(source.value_or(data()));
    return makeObject(array(descriptions));
}

CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef snapshot) {
    const Value* const held = valueOf(snapshot, "IOPSCopyPowerSourcesList");
    if (!held || !powerSupply().hasList) return nullptr;
    std::vector<Value> sources;
    for (std::size_t i = 0; i < held->values.size(); ++i)
        sources.push_back(int64(static_cast<std::int64_t>(i)));
    return static_cast<CFArrayRef>(makeObject(array(sources)));
}

CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef snapshot, CFTypeRef source) {
    const Value* const held = valueOf(snapshot, "IOPSGetPowerSourceDescription");
    const Value* const place = valueOf(source, "IOPSGetPowerSourceDescription");
    if (!held || !place || !expect(place->kind == Value::Kind::int64, "a source that is none"))
        return nullptr;
    const auto index = static_cast<std::size_t>(place->whole);
    if (held->values.at(index).kind == Value::Kind::data) return nullptr;
    return static_cast<CFDictionaryRef>(valueAt(snapshot, index));
}
}
