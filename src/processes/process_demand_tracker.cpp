#include "processes/process_demand_tracker.h"

#include "core/shared_instance.h"

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

constexpr std::int64_t processesPerSample = 8;
constexpr double idleShare = 0.5; // percent of one core; only what is above is counted
constexpr std::int64_t fewestSamplesShown = 2;

double accumulated(const ProcessDemand& demand) {
    return demand.averageCPU * static_cast<double>(demand.sampleCount);
}

} // namespace

ProcessDemandTracker& ProcessDemandTracker::shared() {
    return SharedInstance<ProcessDemandTracker>::get();
}

void ProcessDemandTracker::sample() {
    const auto processes = topProcesses_(processesPerSample);
    const std::lock_guard lock(mutex_);
    for (const auto& process : processes) {
        if (!(process.cpu > idleShare)) continue;
        auto& total = totals_[process.name];
        total.sum += process.cpu;
        ++total.count;
    }
    if (totals_.size() > maxTrackedNames) prune();
}

void ProcessDemandTracker::prune() {
    std::vector<std::pair<std::string, Total>> entries(totals_.begin(), totals_.end());
    std::stable_sort(entries.begin(), entries.end(),
                     [](const auto& left, const auto& right) { return left.second.sum > right.second.sum; });
    entries.resize(maxTrackedNames);
    totals_ = {std::move_iterator(entries.begin()), std::move_iterator(entries.end())};
}

std::vector<ProcessDemand> ProcessDemandTracker::topDemanding(std::int64_t limit) const {
    std::vector<ProcessDemand> demands;
    {
        const std::lock_guard lock(mutex_);
        for (const auto& [name, total] : totals_) {
            if (total.count < fewestSamplesShown) continue;
            demands.push_back({name, total.sum / static_cast<double>(total.count), total.count});
        }
    }
    std::stable_sort(demands.begin(), demands.end(), [](const auto& left, const auto& right) {
        return accumulated(left) > accumulated(right);
    });
    const auto wanted = static_cast<std::size_t>(std::max<std::int64_t>(limit, 0));
    if (wanted < demands.size()) demands.resize(wanted);
    return demands;
}

} // namespace tarvo
