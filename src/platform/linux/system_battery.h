#pragma once

#include "platform/clock.h"
#include "platform/dispatcher.h"
#include "platform/linux/root.h"
#include "platform/power_sources.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// The machine's battery as power source and as entry of the registry, read anew for each question while its
/// firmware answers quickly. While the latest reading took longer, and it may take seconds, a question is
/// answered by that reading and has the next one taken on a background queue. Main thread.
class SystemBattery : public PowerSources {
public:
    /// What a reading may take at most for the next one to be waited for.
    static constexpr std::chrono::milliseconds quick{20};

    /// The clock and the dispatcher outlive this and every reading.
    SystemBattery(Root root, const Clock& clock, Dispatcher& dispatcher);
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
};

} // namespace tarvo::linux_platform
