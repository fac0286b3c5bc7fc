#pragma once

#include "core/main_thread.h"
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

struct HardwareReadings;

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

    void refresh();
    void sampleEveryTick(StatsSnapshot& working);
    void sampleNetwork(StatsSnapshot& working);
    void sampleSlow(StatsSnapshot& working);
    void refreshDetail();
    void appendToSparklines();

    void refreshDiskAndIPSync();
    void fetchPublicIPPeriodically();
    void fetchPublicIP();
    void refreshHardwareAsync();
    void applyHardware(const HardwareReadings& readings);
    void refreshExtrasAsync();
    void recordHistorySample();
    void recordHistorySampleAsync();

    /// A background task that does `work` with the readers and hands its result to `apply` on the main
    /// thread. Neither happens once the model is gone.
    template <typename Work, typename Apply>
    Task inBackground(Work work, Apply apply);

    Published<StatsSnapshot> snap_;
    Published<std::vector<double>> cpuHistory_;
    Published<std::vector<double>> memHistory_;
    bool detailVisible_ = false;

    MainThread mainThread_;
    Settings& settings_;
    Clock& clock_;
    Dispatcher& dispatcher_;
    std::shared_ptr<const StatsReaders> readers_; ///< shared with the background work that is under way
    HistoryRecorder* history_;
    StatsSnapshot working_; ///< kept between ticks, so that copying into it finds its storage ready

    std::unique_ptr<Timer> timer_;
    std::unique_ptr<Timer> publicIPTimer_;
    std::unique_ptr<SerialQueue> hardwareQueue_;
    bool hardwareRefreshInFlight_ = false;
    bool historySampleInFlight_ = false;
    bool netProcsInFlight_ = false;
    std::optional<DiskIOTotals> lastDiskIO_;
    std::optional<NetworkTotals> lastNetIO_;
    SteadyTime lastSampleTime_;
    SteadyTime lastDetailSampleTime_;
    SteadyTime lastProcessRefresh_ = distantPast;
    SteadyTime lastNetProcsRefresh_ = distantPast;
    SteadyTime lastSlowSampleTime_ = distantPast;
};

} // namespace tarvo
