#pragma once

#include "platform/dispatcher.h"
#include "platform/linux/root.h"
#include "platform/power_sources.h"

#include <memory>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// The machine's battery as power source and as entry of the registry. Asking the firmware may
/// take long, so only the first question waits for it; every later one is answered by the latest reading and
/// has the next one taken on a background queue. Main thread.
class SystemBattery : public PowerSources {
public:
    /// The dispatcher outlives this.
    SystemBattery(Root root, Dispatcher& dispatcher);
    ~SystemBattery() override;

    std::optional<PowerSourceList> descriptions() override;
    /// The registry's entries of the class "AppleSmartBattery": the wear that belongs to the latest
    /// descriptions.
    std::vector<PropertyDictionary> registryEntries() const;

private:
    struct State;

    Dispatcher& dispatcher_;
    std::shared_ptr<State> state_;
    std::optional<PropertyDictionary> registryEntry_;
    bool hasRead_ = false;
};

} // namespace tarvo::linux_platform
