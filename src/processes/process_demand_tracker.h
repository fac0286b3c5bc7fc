#pragma once

#include "core/stats_snapshot.h"

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarvo {

/// What one application has demanded of the processor since launch.
struct ProcessDemand {
    std::string name;
    double averageCPU = 0;        ///< percent of one core, over the samples in which it was counted
    std::int64_t sampleCount = 0; ///< at least 2
    bool operator==(const ProcessDemand&) const = default;
};

/// A running processor total by application name for the current run of the program; nothing is kept on disk.
/// Every member may be called from any thread.
class ProcessDemandTracker {
public:
    static constexpr std::size_t maxTrackedNames = 200;

    /// Lists the heaviest processes by processor share, at most `limit`; called on the thread of sample().
    using TopProcesses = std::function<std::vector<ProcInfo>(std::int64_t limit)>;

    explicit ProcessDemandTracker(TopProcesses topProcesses) : topProcesses_(std::move(topProcesses)) {}

    /// The instance that the whole process uses; see SharedInstance.
    static ProcessDemandTracker& shared();

    /// Counts the heaviest processes of this moment. Blocks while they are listed: not on the main thread.
    void sample();

    /// The names seen at least twice, by accumulated share, most demanding first. Returns at once.
    std::vector<ProcessDemand> topDemanding(std::int64_t limit) const;

private:
    struct Total {
        double sum = 0;
        std::int64_t count = 0;
    };

    void prune();

    TopProcesses topProcesses_;
    mutable std::mutex mutex_; ///< guards totals_
    std::unordered_map<std::string, Total> totals_;
};

} // namespace tarvo
