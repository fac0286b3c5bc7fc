#include "composition/machine.h"

#include "composition/process_sources.h"
#include "platform/linux/backup_sources.h"
#include "platform/linux/linux_gpus.h"
#include "platform/linux/linux_host_statistics.h"
#include "platform/linux/linux_io_registry.h"
#include "platform/linux/linux_network_interfaces.h"
#include "platform/linux/linux_volumes.h"
#include "platform/linux/linux_wifi_client.h"
#include "platform/linux/nvml.h"
#include "platform/linux/physical_disks.h"
#include "platform/linux/root.h"
#include "platform/linux/system_battery.h"
#include "platform/linux/virtual_smc.h"
#include "platform/posix/posix_child_processes.h"
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
#include "sensors/time_machine.h"

#include <optional>
#include <utility>

namespace tarvo {

using namespace linux_platform;

struct Machine::Parts {
    Parts(MachineOptions given, Clock& theClock, Dispatcher& theDispatcher)
        : options(std::move(given)), clock(theClock), dispatcher(theDispatcher), root(options.root),
          host(root), cpu(host), interfaces(root), nvml(root.isLive() ? std::make_shared<NVML>() : nullptr),
          disks(root), gpus(root, clock, nvidia()), volumes(root, clock, volumeSources()),
          wifiClient(options.wifi ? options.wifi : std::make_shared<LinuxWiFiClient>(root)),
          wifi(*wifiClient), battery(root, clock, dispatcher),
          backups(makeLinuxBackups(root, processEnvironment, clock, liveTools())), processes(root, clock) {
        registry.provide("IOBlockStorageDriver", [this] { return disks.services(); });
        registry.provide("IOAccelerator", [this] { return gpus.services(); });
        registry.provide("AppleSmartBattery", [this] { return battery.registryEntries(); });
        if (options.readsSensors) openSensors();
    }

    void openSensors() {
        smc = std::make_shared<VirtualSMC>(root, clock, nvml);
        csmc_use_client(smc);
        sensors.emplace();
    }

    // Tools answer for the running machine only.
    ChildProcesses* liveTools() { return root.isLive() ? &tools : nullptr; }

    VolumeSources volumeSources() const {
        VolumeSources sources;
        if (options.volumeHint) sources.hint = options.volumeHint;
        return sources;
    }

    // The library answers for the running machine only.
    NVIDIAUtilization nvidia() {
        if (!nvml) return nullptr;
        return [this](const std::string& address, bool maySleep) {
            return nvml->utilization(address, maySleep ? NVML::After::closes : NVML::After::staysOpen);
        };
    }

    MachineOptions options;
    Clock& clock;
    Dispatcher& dispatcher;
    Root root;

    LinuxHostStatistics host;
    CPUMonitor cpu;
    LinuxNetworkInterfaces interfaces;
    std::vector<LinkEntry> links;
    std::shared_ptr<NVML> nvml; ///< null for a recorded machine
    PhysicalDisks disks;
    LinuxGPUs gpus;
    LinuxIORegistry registry;
    LinuxVolumes volumes;
    std::shared_ptr<WiFiClient> wifiClient;
    WiFiInfo wifi;
    SystemBattery battery;
    POSIXChildProcesses tools;
    std::unique_ptr<Backups> backups;
    std::shared_ptr<VirtualSMC> smc; ///< null when sensors are not read, as is the next
    std::optional<SensorMonitor> sensors;
    ProcessSources processes;
};

Machine::Machine(MachineOptions options, Clock& clock, Dispatcher& dispatcher)
    : parts_(std::make_shared<Parts>(std::move(options), clock, dispatcher)) {}

Machine::~Machine() = default;

StatsReaders Machine::readers() {
    const auto parts = parts_;
    StatsReaders readers;
    readers.cpuUsage = [parts]() -> const CPUUsage& { return parts->cpu.usage(); };
    readers.memoryUsage = [parts] { return memoryUsage(parts->host); };
    readers.loadAverages = [parts] { return loadAverages(parts->host); };
    readers.networkTotals = [parts] { return networkTotals(parts->interfaces, parts->links); };
    readers.diskSpace = [parts] { return diskSpace(parts->volumes); };
    readers.diskIOTotals = [parts] { return diskIOTotals(parts->registry); };
    readers.batteryInfo = [parts] { return readBatteryInfo(parts->battery, parts->registry); };
    if (parts->sensors) readers.sensorReadings = [parts] { return parts->sensors->read(); };
    readers.localIPAddress = [parts] { return localIPAddress(parts->interfaces); };
    if (auto* const https = parts->options.https) {
        readers.fetchPublicIP = [https](auto completion) { fetchPublicIP(*https, std::move(completion)); };
    }
    readers.gpuUtilizationPercent = [parts] { return gpuUtilizationPercent(parts->registry); };
    readers.topProcesses = [parts](ProcessSort sortedBy, std::int64_t limit) {
        return topProcesses(parts->processes.modelTable, sortedBy, limit);
    };
    readers.topNetworkProcesses = [parts](std::int64_t limit) {
        return topNetworkProcesses(parts->processes.traffic, limit);
    };
    readers.timeMachineInfo = [parts] { return readTimeMachineInfo(*parts->backups); };
    readers.sampleProcessDemand = [parts] { parts->processes.demand.sample(); };
    readers.currentSSID = [parts] { return parts->wifi.currentSSID(); };
    return readers;
}

Volumes& Machine::volumes() {
    return parts_->volumes;
}

WiFiClient& Machine::wifi() {
    return *parts_->wifiClient;
}

const SensorMonitor* Machine::sensors() const {
    return parts_->sensors ? &*parts_->sensors : nullptr;
}

const SensorNames* Machine::sensorNames() const {
    return parts_->smc.get();
}

Machine::ProcessLister Machine::processList() {
    return [parts = parts_](ProcessSort sortedBy, std::int64_t limit) {
        return topProcesses(parts->processes.detailTable, sortedBy, limit);
    };
}

Machine::ConnectionsFetcher Machine::connections() {
    return [parts = parts_](NetworkConnectionsFetcher::Completion completion) {
        // The work on the background queue keeps the sources alive until it has handed over its list.
        NetworkConnectionsFetcher::fetch(
            parts->processes.sockets, parts->dispatcher,
            [parts, completion = std::move(completion)](auto list) { completion(std::move(list)); });
    };
}

ProcessDemandTracker& Machine::processDemand() {
    return parts_->processes.demand;
}

ProcessControl& Machine::processControl() {
    return parts_->processes.control;
}

} // namespace tarvo
