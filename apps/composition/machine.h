#pragma once

#include "core/stats_readers.h"
#include "platform/clock.h"
#include "platform/dispatcher.h"
#include "platform/https_client.h"
#include "platform/network_interfaces.h"
#include "platform/process_control.h"
#include "platform/volumes.h"
#include "processes/network_connections_fetcher.h"
#include "processes/process_demand_tracker.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarvo {

class SensorMonitor;
class SensorNames;

struct MachineOptions {
    std::string root{};           ///< folder of a recorded machine; empty: the running one
    bool readsSensors = true;     ///< without, no sensor is looked for and their readings stay absent
    HTTPSClient* https = nullptr; ///< without one the public address stays unknown; outlives the machine
    std::shared_ptr<WiFiClient> wifi{}; ///< asked in place of the machine's own client
    /// What a disk service knows of a device; may wait. Without one only the kernel and udev are asked.
    std::function<DeviceHint(const std::string& device)> volumeHint{};
};

/// Whether a machine recorded in a folder can be read on this system.
bool readsRecordedMachines();

/// The sources of one machine and the readers wired to them: what both programs have in common. Made and
/// destroyed on the main thread; the readers keep what they use alive.
class Machine {
public:
    /// Clock and dispatcher outlive the machine and its readers.
    Machine(MachineOptions options, Clock& clock, Dispatcher& dispatcher);
    ~Machine();

    /// One function for each reading that this platform can give.
    StatsReaders readers();

    /// The monitor behind the sensor readings, for the list of all temperatures; null when sensors are not
    /// read. Its readings may run on any thread.
    const SensorMonitor* sensors() const;
    /// What the system calls the sensors; null when sensors are not read.
    const SensorNames* sensorNames() const;

    Volumes& volumes();
    WiFiClient& wifi();

    /// Lists processes for the table of the detail window; blocks, so not on the main thread.
    using ProcessLister = std::function<std::vector<ProcInfo>(ProcessSort, std::int64_t limit)>;
    ProcessLister processList();
    /// Lists the open connections in the background and hands them over on the main thread.
    using ConnectionsFetcher = std::function<void(NetworkConnectionsFetcher::Completion)>;
    ConnectionsFetcher connections();
    /// What readers().sampleProcessDemand counts into.
    ProcessDemandTracker& processDemand();
    ProcessControl& processControl();

private:
    struct Parts;
    std::shared_ptr<Parts> parts_;
};

} // namespace tarvo
