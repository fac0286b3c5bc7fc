#include "core/stats_model.h"

#include "core/application_identifier.h"
#include "core/counter_rate.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

constexpr auto processRefreshInterval = 3s;
constexpr auto netProcsRefreshInterval = 15s;
constexpr auto slowSampleInterval = 10s;
constexpr auto historySampleInterval = 60s;

/// A period that every event loop can hold, whatever number is stored.
std::chrono::milliseconds timerPeriod(double seconds) {
    constexpr double longest = 2'147'483'647;
    return std::chrono::milliseconds(std::llround(std::clamp(seconds * 1000, 1.0, longest)));
}

void store(const MemoryInfo& memory, StatsSnapshot& working) {
    working.memPercent = memory.memPercent;
    working.memUsedGB = memory.memUsedGB;
    working.memTotalGB = memory.memTotalGB;
    working.memActiveGB = memory.memActiveGB;
    working.memWiredGB = memory.memWiredGB;
    working.memCompressedGB = memory.memCompressedGB;
    working.memInactiveGB = memory.memInactiveGB;
    working.memFreeGB = memory.memFreeGB;
    working.swapUsedGB = memory.swapUsedGB;
    working.swapTotalGB = memory.swapTotalGB;
}

void appendBounded(std::vector<double>& values, double value) {
    values.push_back(value);
    if (values.size() > StatsModel::maxHistory) values.erase(values.begin());
}

} // namespace

std::shared_ptr<StatsModel> StatsModel::make(Settings& settings, Clock& clock, Dispatcher& dispatcher,
                                             StatsReaders readers, HistoryRecorder* history) {
    return std::shared_ptr<StatsModel>(
        new StatsModel(settings, clock, dispatcher, std::move(readers), history));
}

StatsModel::StatsModel(Settings& settings, Clock& clock, Dispatcher& dispatcher, StatsReaders readers,
                       HistoryRecorder* history)
    : settings_(settings), clock_(clock), dispatcher_(dispatcher),
      readers_(std::make_shared<const StatsReaders>(std::move(readers))), history_(history),
      hardwareQueue_(dispatcher.makeSerialQueue(std::string(applicationIdentifier) + ".hardware")),
      lastSampleTime_(clock.steadyNow()), lastDetailSampleTime_(lastSampleTime_) {
    // One more than they ever hold between ticks, so that appending never allocates.
    cpuHistory_.change([](auto& values) { values.reserve(maxHistory + 1); });
    memHistory_.change([](auto& values) { values.reserve(maxHistory + 1); });
}

StatsModel::~StatsModel() = default;

void StatsModel::start() {
    if (readers_->cpuUsage) readers_->cpuUsage();
    if (readers_->diskIOTotals) lastDiskIO_ = readers_->diskIOTotals();
    if (readers_->networkTotals) lastNetIO_ = readers_->networkTotals();
    lastSampleTime_ = clock_.steadyNow();
    lastDetailSampleTime_ = lastSampleTime_;
    refresh();
    restartTimer();
}

void StatsModel::restartTimer() {
    timer_.reset();
    timer_ = dispatcher_.repeat(timerPeriod(settings_.refreshInterval()), [weak = weak_from_this()] {
        if (const auto model = weak.lock()) model->refresh();
    });
}

void StatsModel::setDetailVisible(bool visible) {
    mainThread_.check();
    if (visible && !detailVisible_) {
        if (readers_->diskIOTotals) lastDiskIO_ = readers_->diskIOTotals();
        lastDetailSampleTime_ = clock_.steadyNow();
        lastProcessRefresh_ = distantPast;
    }
    detailVisible_ = visible;
}

void StatsModel::refresh() {
    mainThread_.check();
    working_ = *snap_;
    sampleEveryTick(working_);
    sampleNetwork(working_);
    sampleSlow(working_);
    snap_.change([this](StatsSnapshot& published) { std::swap(published, working_); });
    if (detailVisible_) refreshDetail();
    if (history_ && clock_.wallNow() - history_->lastSampleTime() >= historySampleInterval)
        recordHistorySample();
    appendToSparklines();
    if (onUpdate) onUpdate(*snap_);
}

void StatsModel::sampleEveryTick(StatsSnapshot& working) {
    if (readers_->cpuUsage) {
        const CPUUsage& usage = readers_->cpuUsage();
        working.cpu = usage.total;
        working.perCore = usage.perCore;
    }
    if (readers_->memoryUsage) store(readers_->memoryUsage(), working);
    if (const auto load = readers_->loadAverages ? readers_->loadAverages() : std::nullopt) {
        working.loadAvg1 = load->one;
        working.loadAvg5 = load->five;
        working.loadAvg15 = load->fifteen;
    }
}

void StatsModel::sampleNetwork(StatsSnapshot& working) {
    if (!readers_->networkTotals) return;
    const NetworkTotals current = readers_->networkTotals();
    const SteadyTime now = clock_.steadyNow();
    if (lastNetIO_) {
        working.netInRate = counterRate(current.inBytes, lastNetIO_->inBytes, now - lastSampleTime_);
        working.netOutRate = counterRate(current.outBytes, lastNetIO_->outBytes, now - lastSampleTime_);
    }
    lastNetIO_ = current;
    working.totalNetIn = current.inBytes;
    working.totalNetOut = current.outBytes;
    lastSampleTime_ = now;
}

void StatsModel::sampleSlow(StatsSnapshot& working) {
    const SteadyTime now = clock_.steadyNow();
    if (now - lastSlowSampleTime_ < slowSampleInterval) return;
    lastSlowSampleTime_ = now;
    if (const auto space = readers_->diskSpace ? readers_->diskSpace() : std::nullopt) {
        working.diskFreeGB = space->freeGB;
        working.diskTotalGB = space->totalGB;
    }
    working.battery = readers_->batteryInfo ? readers_->batteryInfo() : std::nullopt;
}

void StatsModel::refreshDetail() {
    refreshDiskAndIPSync();
    refreshHardwareAsync();
    const SteadyTime now = clock_.steadyNow();
    if (now - lastProcessRefresh_ >= processRefreshInterval) {
        lastProcessRefresh_ = now;
        refreshProcessesAsync();
    }
    if (!netProcsInFlight_ && now - lastNetProcsRefresh_ >= netProcsRefreshInterval) {
        lastNetProcsRefresh_ = now;
        refreshExtrasAsync();
    }
}

void StatsModel::appendToSparklines() {
    cpuHistory_.change([this](auto& values) { appendBounded(values, snap_->cpu); });
    memHistory_.change([this](auto& values) { appendBounded(values, snap_->memPercent); });
}

} // namespace tarvo
