#include "composition/machine.h"

#include "composition/machine_sources.h"
#include "processes/network_processes.h"
#include "processes/process_list.h"
#include "readers/cpu_monitor.h"
#include "readers/disk_io_totals.h"
#include "readers/disk_space.h"
#include "readers/gpu_utilization.h"
#include "readers/load_averages.h"
#include "readers/local_ip_address.h"
#include "readers/memory_usage.h"
#include "readers/network_totals.h"
#include "readers/public_address.h"
#include "readers/wifi_info.h"
#include "sensors/battery_reader.h"
#include "sensors/sensor_monitor.h"

#include <optional>
#include <utility>

namespace tarvo {

struct Machine::Parts {
    Parts(const MachineOptions& options, Clock& clock, Dispatcher& dispatcher)
        : https(options.https), sources(openMachineSources(options, clock, dispatcher)), cpu(sources.host),
          wifi(sources.wifi),
          demand([this](std::int64_t limit) { return sources.demandProcesses(ProcessSort::cpu, limit); }) {
        if (!sources.smc) return;
        csmc_use_client(sources.smc);
        sensors.emplace();
    }

    HTTPSClient* https;
    MachineSources sources;
    CPUMonitor cpu;
    std::vector<LinkEntry> links;
    WiFiInfo wifi;
    std::optional<SensorMonitor> sensors; ///< absent when sensors are not read
    ProcessDemandTracker demand;
};

Machine::Machine(MachineOptions options, Clock& clock, Dispatcher& dispatcher)
    : parts_(std::make_shared<Parts>(options, clock, dispatcher)) {}

Machine::~Machine() = default;

StatsReaders Machine::readers() {
    const auto parts = parts_;
    StatsReaders readers;
    readers.cpuUsage = [parts]() -> const CPUUsage& { return parts->cpu.usage(); };
    readers.memoryUsage = [parts] { return memoryUsage(parts->sources.host); };
    readers.loadAverages = [parts] { return loadAverages(parts->sources.host); };
    readers.networkTotals = [parts] { return networkTotals(parts->sources.interfaces, parts->links); };
    readers.diskSpace = [parts] { return diskSpace(parts->sources.volumes); };
    readers.diskIOTotals = [parts] { return diskIOTotals(parts->sources.registry); };
    readers.batteryInfo = [parts] { return readBatteryInfo(parts->sources.power, parts->sources.registry); };
    if (parts->sensors) readers.sensorReadings = [parts] { return parts->sensors->read(); };
    readers.localIPAddress = [parts] { return localIPAddress(parts->sources.interfaces); };
    if (auto* const https = parts->https) {
        readers.fetchPublicIP = [https](auto completion) { fetchPublicIP(*https, std::move(completion)); };
    }
    readers.gpuUtilizationPercent = [parts] { return gpuUtilizationPercent(parts->sources.registry); };
    readers.topProcesses = [parts](ProcessSort sortedBy, std::int64_t limit) {
        return parts->sources.modelProcesses(sortedBy, limit);
    };
    readers.topNetworkProcesses = [parts](std::int64_t limit) {
        return parts->sources.networkProcesses(limit);
    };
    readers.timeMachineInfo = [parts] { return parts->sources.timeMachine(); };
    readers.sampleProcessDemand = [parts] { parts->demand.sample(); };
    readers.currentSSID = [parts] { return parts->wifi.currentSSID(); };
    return readers;
}

Volumes& Machine::volumes() {
    return parts_->sources.volumes;
}

WiFiClient& Machine::wifi() {
    return parts_->sources.wifi;
}

const SensorMonitor* Machine::sensors() const {
    return parts_->sensors ? &*parts_->sensors : nullptr;
}

const SensorNames* Machine::sensorNames() const {
    return parts_->sources.sensorNames;
}

Machine::ProcessLister Machine::processList() {
    return [parts = parts_](ProcessSort sortedBy, std::int64_t limit) {
        return parts->sources.detailProcesses(sortedBy, limit);
    };
}

Machine::ConnectionsFetcher Machine::connections() {
    return [parts = parts_](NetworkConnectionsFetcher::Completion completion) {
        // The work on the background queue keeps the sources alive until it has handed over its list.
        parts->sources.connections(
            [parts, completion = std::move(completion)](auto list) { completion(std::move(list)); });
    };
}

ProcessDemandTracker& Machine::processDemand() {
    return parts_->demand;
}

ProcessControl& Machine::processControl() {
    return parts_->sources.processControl;
}

} // namespace tarvo
