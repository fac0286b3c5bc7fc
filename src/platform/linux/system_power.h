#pragma once

#include "platform/clock.h"
#include "platform/linux/hwmon_chip.h"
#include "platform/linux/root.h"

#include <functional>
#include <mutex>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// Power drawn by the whole machine: from its discharging batteries, else from a meter of the whole system,
/// else from the processor's platform domain. Figures of the processor or a card alone are not used. Any
/// thread.
class SystemPower {
public:
    /// Finds the sources; those that an ordinary user may not read are none.
    SystemPower(const Root& root, const Clock& clock, const std::vector<HwmonChip>& chips);

    /// False when no source could ever answer.
    bool exists() const { return !sources_.empty(); }
    /// Watts of the first source that answers now.
    std::optional<double> read();

private:
    using Source = std::function<std::optional<double>()>;

    std::mutex mutex_;
    std::vector<Source> sources_;
};

} // namespace tarvo::linux_platform
