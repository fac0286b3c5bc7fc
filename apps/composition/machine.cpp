#include "composition/machine.h"

#include "platform/linux/linux_host_statistics.h"
#include "platform/linux/linux_network_interfaces.h"
#include "platform/linux/root.h"
#include "readers/cpu_monitor.h"
#include "readers/load_averages.h"
#include "readers/local_ip_address.h"
#include "readers/memory_usage.h"
#include "readers/network_totals.h"
#include "readers/public_address.h"

#include <utility>

namespace tarvo {

struct Machine::Parts {
    Parts(MachineOptions given, Clock& theClock, Dispatcher& theDispatcher)
        : options(std::move(given)), clock(theClock), dispatcher(theDispatcher), root(options.root),
          host(root), cpu(host), interfaces(root) {}

    MachineOptions options;
    Clock& clock;
    Dispatcher& dispatcher;
    linux_platform::Root root;

    linux_platform::LinuxHostStatistics host;
    CPUMonitor cpu;
    linux_platform::LinuxNetworkInterfaces interfaces;
    std::vector<LinkEntry> links;
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
    readers.localIPAddress = [parts] { return localIPAddress(parts->interfaces); };
    if (auto* const https = parts->options.https) {
        readers.fetchPublicIP = [https](auto completion) { fetchPublicIP(*https, std::move(completion)); };
    }
    return readers;
}

} // namespace tarvo
