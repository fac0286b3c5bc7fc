#pragma once

#include "core/stats_snapshot.h"
#include "platform/clock.h"
#include "platform/dispatcher.h"
#include "platform/host_statistics.h"
#include "platform/io_registry.h"
#include "platform/network_interfaces.h"
#include "platform/power_sources.h"
#include "platform/process_control.h"
#include "platform/sensor_names.h"
#include "platform/smc_user_client.h"
#include "platform/volumes.h"
#include "processes/network_connections_fetcher.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace tarvo {

struct MachineOptions;

/// What one system answers about its machine: the only thing that differs between systems in a Machine. Where
/// one system answers with a tool's text and another with records, the answer stands here as the reading.
struct MachineSources {
    HostStatistics& host;
    NetworkInterfaces& interfaces;
    IORegistry& registry;
    Volumes& volumes;
    WiFiClient& wifi;
    PowerSources& power;
    ProcessControl& processControl;

    /// Lists processes; blocks, so not on the main thread. One for each consumer, since shares of processor
    /// time are measured from one listing to the next.
    using Processes = std::function<std::vector<ProcInfo>(ProcessSort, std::int64_t limit)>;
    Processes modelProcesses;
    Processes demandProcesses;
    Processes detailProcesses;
    /// Blocks: not on the main thread. So does the backup.
    std::function<std::vector<NetProcInfo>(std::int64_t limit)> networkProcesses;
    std::function<TimeMachineInfo()> timeMachine;
    /// Answers on the main thread.
    std::function<void(NetworkConnectionsFetcher::Completion)> connections;

    std::shared_ptr<SMCUserClient> smc;       ///< null where sensors are not read
    const SensorNames* sensorNames = nullptr; ///< null where the system has no names for them
    std::shared_ptr<void> owner;              ///< keeps alive what the rest refers to
};

/// The sources on the system that the program is built for. Clock and dispatcher outlive them.
MachineSources openMachineSources(MachineOptions options, Clock& clock, Dispatcher& dispatcher);

} // namespace tarvo
