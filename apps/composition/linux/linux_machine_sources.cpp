#include "composition/linux/linux_processes.h"
#include "composition/machine.h"
#include "composition/machine_sources.h"
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
#include "sensors/time_machine.h"

#include <utility>

namespace tarvo {

using namespace linux_platform;

namespace {

struct LinuxMachine {
    LinuxMachine(MachineOptions given, Clock& theClock, Dispatcher& dispatcher)
        : options(std::move(given)), clock(theClock), root(options.root), host(root), interfaces(root),
          nvml(root.isLive() ? std::make_shared<NVML>() : nullptr), disks(root), gpus(root, clock, nvidia()),
          volumes(root, clock, volumeSources()),
          wifi(options.wifi ? options.wifi : std::make_shared<LinuxWiFiClient>(root)),
          battery(root, clock, dispatcher),
          backups(makeLinuxBackups(root, processEnvironment, clock, liveTools())),
          smc(options.readsSensors ? std::make_shared<VirtualSMC>(root, clock, nvml) : nullptr),
          processes(root, clock) {
        registry.provide("IOBlockStorageDriver", [this] { return disks.services(); });
        registry.provide("IOAccelerator", [this] { return gpus.services(); });
        registry.provide("AppleSmartBattery", [this] { return battery.registryEntries(); });
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
    Root root;

    LinuxHostStatistics host;
    LinuxNetworkInterfaces interfaces;
    std::shared_ptr<NVML> nvml; ///< null for a recorded machine
    PhysicalDisks disks;
    LinuxGPUs gpus;
    LinuxIORegistry registry;
    LinuxVolumes volumes;
    std::shared_ptr<WiFiClient> wifi;
    SystemBattery battery;
    POSIXChildProcesses tools;
    std::unique_ptr<Backups> backups;
    std::shared_ptr<VirtualSMC> smc; ///< null when sensors are not read
    LinuxProcesses processes;
};

MachineSources::Processes lister(ProcessTable& table) {
    return
        [&table](ProcessSort sortedBy, std::int64_t limit) { return topProcesses(table, sortedBy, limit); };
}

} // namespace

bool readsRecordedMachines() {
    return true;
}

MachineSources openMachineSources(MachineOptions options, Clock& clock, Dispatcher& dispatcher) {
    const auto machine = std::make_shared<LinuxMachine>(std::move(options), clock, dispatcher);
    LinuxProcesses& processes = machine->processes;
    return {
        .host = machine->host,
        .interfaces = machine->interfaces,
        .registry = machine->registry,
        .volumes = machine->volumes,
        .wifi = *machine->wifi,
        .power = machine->battery,
        .processControl = processes.control,
        .modelProcesses = lister(processes.modelTable),
        .demandProcesses = lister(processes.demandTable),
        .detailProcesses = lister(processes.detailTable),
        .networkProcesses = [&traffic = processes.traffic](
                                std::int64_t limit) { return topNetworkProcesses(traffic, limit); },
        .timeMachine = [&backups = *machine->backups] { return readTimeMachineInfo(backups); },
        .connections =
            [&sockets = processes.sockets, &dispatcher](NetworkConnectionsFetcher::Completion completion) {
                NetworkConnectionsFetcher::fetch(sockets, dispatcher, std::move(completion));
            },
        .smc = machine->smc,
        .sensorNames = machine->smc.get(),
        .owner = machine};
}

} // namespace tarvo
