#pragma once

#include "core/published.h"
#include "core/settings.h"
#include "core/stats_readers.h"
#include "core/stats_snapshot.h"
#include "platform/clock.h"
#include "platform/dispatcher.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tarvo {

/// The one object that samples the machine: owns the current snapshot, the two sparkline lists and the
/// timers. Main thread only; slow readers run on background queues and patch single fields when they are
/// done.
class StatsModel : public std::enable_shared_from_this<StatsModel> {
public:
    static constexpr std::size_t maxHistory = 60;

    /// `history` may be null: then nothing is recorded. All references outlive the model.
    static std::shared_ptr<StatsModel> make(Settings& settings, Clock& clock, Dispatcher& dispatcher,
                                            StatsReaders readers, HistoryRecorder* history);
    ~StatsModel();

    /// Primes the counters, runs one tick and starts the timer. Called once.
    void start();
    /// Replaces the sampling timer by one with the present refreshInterval.
    void restartTimer();
    /// Starts a refresh of both process lists now.
    void refreshProcessesAsync();

    const StatsSnapshot& snap() const { return *snap_; }
    const std::vector<double>& cpuHistory() const { return *cpuHistory_; }
    const std::vector<double>& memHistory() const { return *memHistory_; }
    Published<StatsSnapshot>& publishedSnap() { return snap_; }
    Published<std::vector<double>>& publishedCPUHistory() { return cpuHistory_; }
    Published<std::vector<double>>& publishedMemHistory() { return memHistory_; }

    /// True while a view that needs the detailed readings is open.
    bool detailVisible() const { return detailVisible_; }
    /// Going from false to true also re-primes the disk counters and makes the process lists due.
    void setDetailVisible(bool visible);

    /// Called at the end of every tick with the published snapshot.
    std::function<void(const StatsSnapshot&)> onUpdate;

private:
    StatsModel(Settings& settings, Clock& clock, Dispatcher& dispatcher, StatsReaders readers,
               HistoryRecorder* history);
    // Implementation members follow.
    Published<StatsSnapshot> snap_;
    Published<std::vector<double>> cpuHistory_;
    Published<std::vector<double>> memHistory_;
    bool detailVisible_ = false;
};

} // namespace tarvo
