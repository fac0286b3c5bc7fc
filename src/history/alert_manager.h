#pragma once

#include "core/settings.h"
#include "core/stats_snapshot.h"
#include "history/alert_log_store.h"
#include "localization/localization_manager.h"
#include "platform/clock.h"
#include "platform/system_family.h"
#include "platform/user_notifications.h"

#include <functional>
#include <optional>
#include <string>

namespace tarvo {

/// What the alert manager works with; the references outlive it.
struct AlertServices {
    UserNotifications& notifications;
    std::function<AlertLogStore&()>
        log; ///< asked when the first alert is raised, so that the log is read only then
    const Settings& settings;
    const LocalizationManager& localization;
    const Clock& clock;
    SystemFamily family = SystemFamily::other;
};

/// Watches the snapshots for sustained processor load, low disk space and a low battery, and raises a
/// notification for each, with a rule of its own against repeating it. Nothing of its state is persisted.
/// Times are wall times: a clock that was set back postpones what waits for a moment to pass. Main thread
/// only.
class AlertManager {
public:
    static constexpr std::chrono::seconds highLoadDelay{30};
    static constexpr std::chrono::seconds cpuAlertSpacing{600};
    static constexpr std::chrono::seconds diskAlertSpacing{3600};
    static constexpr double batteryHysteresis = 10; ///< percentage points

    /// Asks for the permission to notify; the answer does not matter.
    explicit AlertManager(AlertServices services);

    /// All three conditions of one snapshot. To be called only while notifications are switched on; what is
    /// remembered stays in between.
    void evaluate(const StatsSnapshot& snapshot);

    void evaluateCPU(double cpu);
    void evaluateDisk(std::optional<double> freeGB);
    void evaluateBattery(const std::optional<BatteryInfo>& info);

    /// Posts one notification, then records it in the alert log.
    void notify(const std::string& title, const std::string& body);

private:
    std::string cpuBody(double threshold, double cpu) const;
    std::string diskBody(double freeGB) const;
    std::string batteryBody(std::int64_t percentage) const;

    AlertServices services_;
    std::optional<WallTime> cpuHighSince_;
    std::optional<WallTime> lastCPUAlert_;
    std::optional<WallTime> lastDiskAlert_;
    bool batteryAlertArmed_ = true;
};

} // namespace tarvo
