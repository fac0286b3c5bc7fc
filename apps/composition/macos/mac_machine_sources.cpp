#include "composition/machine.h"
#include "composition/machine_sources.h"
#include "platform/macos/apple_smc_client.h"
#include "platform/macos/core_wlan_client.h"
#include "platform/macos/kill_process_control.h"
#include "platform/macos/mac_io_registry.h"
#include "platform/macos/mac_network_interfaces.h"
#include "platform/macos/mac_power_sources.h"
#include "platform/macos/mach_host_statistics.h"
#include "platform/macos/macos_volumes.h"
#include "platform/macos/tmutil_backup_tool.h"
#include "platform/posix/posix_child_processes.h"
#include "processes/network_processes.h"
#include "processes/process_list.h"
#include "sensors/time_machine.h"

#include <utility>

namespace tarvo {

using namespace macos_platform;

namespace {

struct MacMachine {
    explicit MacMachine(const MachineOptions& options)
        : smc(options.readsSensors ? std::make_shared<AppleSMCClient>() : nullptr) {}

    MachHostStatistics host;
    MacNetworkInterfaces interfaces;
    MacIORegistry registry;
    MacVolumes volumes;
    CoreWLANClient wifi;
    MacPowerSources power;
    std::shared_ptr<AppleSMCClient> smc; ///< null when sensors are not read
    KillProcessControl processControl;
    POSIXChildProcesses tools;
    TmutilBackupTool backups{tools};
};

} // namespace

bool readsRecordedMachines() {
    return false;
}

// The tools measure shares by themselves, so that all who list processes ask the same one.
MachineSources openMachineSources(MachineOptions options, Clock&, Dispatcher& dispatcher) {
    const auto machine = std::make_shared<MacMachine>(options);
    ChildProcesses& tools = machine->tools;
    const MachineSources::Processes processes = [&tools](ProcessSort sortedBy, std::int64_t limit) {
        return topProcesses(tools, sortedBy, limit);
    };
    return {.host = machine->host,
            .interfaces = machine->interfaces,
            .registry = machine->registry,
            .volumes = machine->volumes,
            .wifi = machine->wifi,
            .power = machine->power,
            .processControl = machine->processControl,
            .modelProcesses = processes,
            .demandProcesses = processes,
            .detailProcesses = processes,
            .networkProcesses = [&tools](std::int64_t limit) { return topNetworkProcesses(tools, limit); },
            .timeMachine = [&backups = machine->backups] { return readTimeMachineInfo(backups); },
            .connections =
                [&tools, &dispatcher](NetworkConnectionsFetcher::Completion completion) {
                    NetworkConnectionsFetcher::fetch(tools, dispatcher, std::move(completion));
                },
            .smc = machine->smc,
            .owner = machine};
}

} // namespace tarvo
