// The refreshes of the model that go beyond a plain tick: detail, hardware, processes, extras, history.
#include "core/counter_rate.h"
#include "core/stats_model.h"

#include <utility>

namespace tarvo {

struct HardwareReadings {
    SensorReadings sensors;
    std::optional<double> gpuUtil;
};

namespace {

using namespace std::chrono_literals;

constexpr auto publicIPInterval = 300s;
constexpr std::int64_t listedProcesses = 5;

struct ProcessLists {
    std::vector<ProcInfo> byCPU;
    std::vector<ProcInfo> byMemory;
};

struct Extras {
    std::vector<NetProcInfo> netProcesses;
    std::optional<TimeMachineInfo> timeMachine;
    std::optional<std::string> wifiSSID;
};

/// What the reader answers, or the empty result while it is not connected.
template <typename Result, typename... Arguments>
Result ask(const std::function<Result(Arguments...)>& reader, Arguments... arguments) {
    return reader ? reader(arguments...) : Result{};
}

Extras readExtras(const StatsReaders& readers, bool wifiSSIDEnabled) {
    Extras extras;
    extras.netProcesses = ask(readers.topNetworkProcesses, listedProcesses);
    if (readers.timeMachineInfo) extras.timeMachine = readers.timeMachineInfo();
    if (wifiSSIDEnabled) extras.wifiSSID = ask(readers.currentSSID);
    return extras;
}

/// Writes one field of the published snapshot: one change for the observers.
template <typename Field, typename Value>
void patch(Published<StatsSnapshot>& snap, Field StatsSnapshot::*field, Value value) {
    snap.change([&](StatsSnapshot& published) { published.*field = std::move(value); });
}

} // namespace

template <typename Work, typename Apply>
Task StatsModel::inBackground(Work work, Apply apply) {
    // The task never owns the model: it must be destroyed on the main thread.
    return [weak = weak_from_this(), readers = readers_, &dispatcher = dispatcher_, work, apply] {
        if (weak.expired()) return;
        dispatcher.async([weak, apply, result = work(*readers)]() mutable {
            if (const auto model = weak.lock()) apply(*model, std::move(result));
        });
    };
}

void StatsModel::refreshDiskAndIPSync() {
    const SteadyTime now = clock_.steadyNow();
    if (readers_->diskIOTotals) {
        const DiskIOTotals current = readers_->diskIOTotals();
        const Seconds elapsed = now - lastDetailSampleTime_;
        if (lastDiskIO_) {
            patch(snap_, &StatsSnapshot::diskReadRate, counterRate(current.read, lastDiskIO_->read, elapsed));
            patch(snap_, &StatsSnapshot::diskWriteRate,
                  counterRate(current.write, lastDiskIO_->write, elapsed));
        }
        lastDiskIO_ = current;
    }
    lastDetailSampleTime_ = now;
    patch(snap_, &StatsSnapshot::localIP, ask(readers_->localIPAddress));
    fetchPublicIPPeriodically();
}

void StatsModel::fetchPublicIPPeriodically() {
    if (publicIPTimer_ || !readers_->fetchPublicIP) return;
    fetchPublicIP();
    publicIPTimer_ = dispatcher_.repeat(publicIPInterval, [weak = weak_from_this()] {
        if (const auto model = weak.lock()) model->fetchPublicIP();
    });
}

void StatsModel::fetchPublicIP() {
    readers_->fetchPublicIP(
        [weak = weak_from_this(), &dispatcher = dispatcher_](std::optional<std::string> address) {
            dispatcher.async([weak, address = std::move(address)] {
                if (const auto model = weak.lock()) patch(model->snap_, &StatsSnapshot::publicIP, address);
            });
        });
}

void StatsModel::refreshHardwareAsync() {
    if (hardwareRefreshInFlight_) return;
    hardwareRefreshInFlight_ = true;
    hardwareQueue_->async(inBackground(
        [](const StatsReaders& readers) {
            return HardwareReadings{ask(readers.sensorReadings), ask(readers.gpuUtilizationPercent)};
        },
        [](StatsModel& model, const HardwareReadings& readings) { model.applyHardware(readings); }));
}

void StatsModel::applyHardware(const HardwareReadings& readings) {
    patch(snap_, &StatsSnapshot::cpuTemp, readings.sensors.cpuTempCelsius);
    patch(snap_, &StatsSnapshot::gpuTemp, readings.sensors.gpuTempCelsius);
    patch(snap_, &StatsSnapshot::hasFan, readings.sensors.hasFan);
    patch(snap_, &StatsSnapshot::fanRPMs, readings.sensors.fanRPMs);
    patch(snap_, &StatsSnapshot::powerWatts, readings.sensors.powerWatts);
    patch(snap_, &StatsSnapshot::gpuUtil, readings.gpuUtil);
    hardwareRefreshInFlight_ = false;
}

void StatsModel::refreshProcessesAsync() {
    mainThread_.check();
    if (!readers_->topProcesses) return;
    dispatcher_.global(QualityOfService::userInitiated,
                       inBackground(
                           [](const StatsReaders& readers) {
                               return ProcessLists{
                                   readers.topProcesses(ProcessSort::cpu, listedProcesses),
                                   readers.topProcesses(ProcessSort::memory, listedProcesses)};
                           },
                           [](StatsModel& model, ProcessLists lists) {
                               patch(model.snap_, &StatsSnapshot::topCPU, std::move(lists.byCPU));
                               patch(model.snap_, &StatsSnapshot::topMem, std::move(lists.byMemory));
                           }));
}

void StatsModel::refreshExtrasAsync() {
    netProcsInFlight_ = true;
    dispatcher_.global(
        QualityOfService::utility,
        inBackground([wifi = settings_.wifiSSIDEnabled()](
                         const StatsReaders& readers) { return readExtras(readers, wifi); },
                     [](StatsModel& model, Extras extras) {
                         patch(model.snap_, &StatsSnapshot::topNetProcesses, std::move(extras.netProcesses));
                         patch(model.snap_, &StatsSnapshot::timeMachine, extras.timeMachine);
                         patch(model.snap_, &StatsSnapshot::wifiSSID, std::move(extras.wifiSSID));
                         model.netProcsInFlight_ = false;
                     }));
}

void StatsModel::recordHistorySample() {
    if (detailVisible_) {
        history_->maybeRecord(snap_->cpu, snap_->memPercent, snap_->cpuTemp);
    } else if (historySampleInFlight_) {
        return; // one is waiting for slow sensors: more would only queue behind it
    } else {
        recordHistorySampleAsync();
    }
    if (!readers_->sampleProcessDemand) return;
    dispatcher_.global(QualityOfService::utility, [weak = weak_from_this(), readers = readers_] {
        if (!weak.expired()) readers->sampleProcessDemand();
    });
}

void StatsModel::recordHistorySampleAsync() {
    historySampleInFlight_ = true;
    hardwareQueue_->async(
        inBackground([](const StatsReaders& readers) { return ask(readers.sensorReadings).cpuTempCelsius; },
                     [](StatsModel& model, std::optional<double> cpuTemp) {
                         model.historySampleInFlight_ = false;
                         model.history_->maybeRecord(model.snap_->cpu, model.snap_->memPercent, cpuTemp);
                     }));
}

} // namespace tarvo
