#include "platform/linux/sensor_input.h"

#include <utility>

namespace tarvo::linux_platform {

SensorInput::SensorInput(const Clock& clock, const SensorFolder& folder, std::string attribute, double scale,
                         const std::string& runtimeStatus)
    : clock_(clock), scale_(scale), file_(folder, std::move(attribute)) {
    if (!runtimeStatus.empty()) runtimeStatus_.emplace(folder, runtimeStatus);
}

std::optional<double> SensorInput::read() {
    const std::lock_guard lock(mutex_);
    const auto began = clock_.steadyNow();
    if (const auto served = slow_.served(began)) return *served;
    const auto value = readNow();
    slow_.noteReading(began, clock_.steadyNow(), value);
    return value;
}

std::optional<double> SensorInput::readNow() {
    if (isSuspended()) return std::nullopt;
    const auto raw = file_.readInteger();
    return raw ? std::optional(static_cast<double>(*raw) * scale_) : std::nullopt;
}

bool SensorInput::isSuspended() {
    const auto status = runtimeStatus_ ? runtimeStatus_->read() : std::nullopt;
    return status == "suspended" || status == "suspending";
}

} // namespace tarvo::linux_platform
