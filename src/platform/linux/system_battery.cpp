#include "platform/linux/system_battery.h"

#include "platform/linux/battery_describer.h"

#include <mutex>
#include <utility>

namespace tarvo::linux_platform {

/// Shared with the background readings, which outlive the battery by as long as the firmware takes.
struct SystemBattery::State {
    State(Root theRoot, const Clock& theClock) : root(std::move(theRoot)), clock(theClock) {}

    /// One thread at a time: `isReading` sees to that.
    void read() {
        const auto began = clock.steadyNow();
        const auto supplies = readPowerSupplies(root);
        auto described = describer.describe(supplies);
        // Firmware is busy for a moment after the machine woke; what was known holds once more.
        const bool keeps = !described && isFirmwareBusy(supplies) && !keptOnce;
        keptOnce = keeps;
        const std::lock_guard lock(mutex);
        if (!keeps) latest = std::move(described);
        isSlow = clock.steadyNow() - began > quick;
        isReading = false;
    }

    const Root root;
    const Clock& clock;
    BatteryDescriber describer;
    bool keptOnce = false;

    std::mutex mutex; ///< guards what follows
    std::optional<BatteryDescription> latest;
    bool isSlow = false;
    bool isReading = false; ///< in the background
};

SystemBattery::SystemBattery(Root root, const Clock& clock, Dispatcher& dispatcher)
    : dispatcher_(dispatcher), state_(std::make_shared<State>(std::move(root), clock)) {}

SystemBattery::~SystemBattery() = default;

std::optional<PowerSourceList> SystemBattery::descriptions() {
    std::unique_lock lock(state_->mutex);
    if (state_->isSlow && !std::exchange(state_->isReading, true)) {
        dispatcher_.global(QualityOfService::utility, [state = state_] { state->read(); });
    }
    if (!state_->isReading) {
        lock.unlock();
        state_->read();
        lock.lock();
    }
    registryEntry_.reset();
    if (!state_->latest) return PowerSourceList{};
    registryEntry_ = state_->latest->registryEntry;
    return PowerSourceList{state_->latest->source};
}

std::vector<PropertyDictionary> SystemBattery::registryEntries() const {
    std::vector<PropertyDictionary> entries;
    if (registryEntry_) entries.push_back(*registryEntry_);
    return entries;
}

} // namespace tarvo::linux_platform
