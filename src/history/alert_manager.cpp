#include "history/alert_manager.h"

#include "core/uuid.h"

#include <fmt/format.h>
#include <utility>

namespace tarvo {

AlertManager::AlertManager(AlertServices services) : services_(std::move(services)) {
    services_.notifications.requestAuthorization();
}

void AlertManager::evaluate(const StatsSnapshot& snapshot) {
    evaluateCPU(snapshot.cpu);
    evaluateDisk(snapshot.diskFreeGB);
    evaluateBattery(snapshot.battery);
}

void AlertManager::evaluateCPU(double cpu) {
    const double threshold = services_.settings.cpuAlertThreshold();
    if (cpu < threshold) {
        cpuHighSince_.reset();
        return;
    }
    const WallTime now = services_.clock.wallNow();
    if (!cpuHighSince_) cpuHighSince_ = now;
    if (now - *cpuHighSince_ < highLoadDelay) return;
    if (lastCPUAlert_ && now - *lastCPUAlert_ < cpuAlertSpacing) return;
    notify(services_.localization.t({.cs = "Vysoké vytížení CPU", .en = "High CPU Usage"}),
           cpuBody(threshold, cpu));
    lastCPUAlert_ = now;
}

void AlertManager::evaluateDisk(std::optional<double> freeGB) {
    if (!freeGB || *freeGB > services_.settings.diskFreeAlertGB()) return;
    const WallTime now = services_.clock.wallNow();
    if (lastDiskAlert_ && now - *lastDiskAlert_ < diskAlertSpacing) return;
    notify(services_.localization.t({.cs = "Málo místa na disku", .en = "Low Disk Space"}),
           diskBody(*freeGB));
    lastDiskAlert_ = now;
}

void AlertManager::evaluateBattery(const std::optional<BatteryInfo>& info) {
    if (!info) return;
    const double threshold = services_.settings.batteryAlertPercent();
    const auto charge = static_cast<double>(info->percentage);
    if (info->isPluggedIn || charge > threshold + batteryHysteresis) {
        batteryAlertArmed_ = true;
        return;
    }
    if (!batteryAlertArmed_ || charge > threshold) return;
    notify(services_.localization.t({.cs = "Nízká baterie", .en = "Low Battery"}),
           batteryBody(info->percentage));
    batteryAlertArmed_ = false;
}

void AlertManager::notify(const std::string& title, const std::string& body) {
    services_.notifications.add({UUID::random().text(), title, body});
    AlertLogStore& log = services_.log();
    log.insert({UUID::random(), services_.clock.wallNow(), title, body});
    log.prune();
    log.save();
}

std::string AlertManager::cpuBody(double threshold, double cpu) const {
    return services_.localization.t(
        {.cs = fmt::format("CPU je dlouhodobě nad {:.0f} % (aktuálně {:.0f} %)", threshold, cpu),
         .en = fmt::format("CPU has been above {:.0f}% for a while (currently {:.0f}%)", threshold, cpu)});
}

std::string AlertManager::diskBody(double freeGB) const {
    return services_.localization.t({.cs = fmt::format("Zbývá jen {:.1f} GB volného místa", freeGB),
                                     .en = fmt::format("Only {:.1f} GB of free space left", freeGB)});
}

std::string AlertManager::batteryBody(std::int64_t percentage) const {
    const bool isMac = services_.family == SystemFamily::macOS;
    return services_.localization.t({.cs = fmt::format("Baterie je na {} % a {} není připojený k napájení",
                                                       percentage, isMac ? "MacBook" : "počítač"),
                                     .en = fmt::format("Battery is at {}% and the {} isn't plugged in",
                                                       percentage, isMac ? "MacBook" : "computer")});
}

} // namespace tarvo
