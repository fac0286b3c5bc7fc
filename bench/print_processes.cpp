// Prints what the program knows of processes and sockets, a record a line, fields parted by tabs: for the
// comparison with the system's tools and for the benchmarks. Usage: print_processes cpu|memory LIMIT
// [SECONDS] | connections | traffic. With SECONDS the shares are those of a window of that length.

#include "platform/linux/kernel_sockets.h"
#include "platform/linux/linux_process_traffic.h"
#include "platform/linux/linux_socket_table.h"
#include "platform/linux/process_sampler.h"
#include "platform/posix/system_clock.h"
#include "processes/network_connections_fetcher.h"
#include "processes/network_processes.h"
#include "processes/process_list.h"

#include <fmt/format.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <thread>

namespace {

using namespace tarvo;
using namespace tarvo::linux_platform;

void printProcesses(ProcessSort sortedBy, int limit, int seconds) {
    const SystemClock clock;
    ProcessSampler sampler(Root(), clock, [](auto time) { std::this_thread::sleep_for(time); });
    SampledProcessTable table(sampler);
    if (seconds > 0) {
        table.rows(ProcessOrder::cpu, 1);
        std::this_thread::sleep_for(std::chrono::seconds(seconds));
    }
    for (const auto& process : topProcesses(table, sortedBy, limit))
        fmt::print("{}\t{:.1f}\t{:.2f}\t{}\n", process.pid, process.cpu, process.memPercent, process.name);
}

void printConnections() {
    LinuxSocketTable table(Root(), std::make_unique<KernelSockets>(Root()));
    for (const auto& one : NetworkConnectionsFetcher::connections(table.rows()))
        fmt::print("{}\t{}\t{}\t{}\t{}\t{}\n", one.process, one.pid, one.proto_, one.localAddress,
                   one.remoteAddress, one.state);
}

void printTraffic() {
    LinuxProcessTraffic traffic(Root(), std::make_unique<KernelSockets>(Root()));
    for (const auto& process : topNetworkProcesses(traffic, 1'000'000))
        fmt::print("{}\t{}\t{}\n", process.name, process.bytesIn, process.bytesOut);
}

} // namespace

int main(int count, char** arguments) {
    const std::string_view what = count > 1 ? arguments[1] : "";
    if (what == "connections") {
        printConnections();
    } else if (what == "traffic") {
        printTraffic();
    } else if ((what == "cpu" || what == "memory") && (count == 3 || count == 4)) {
        printProcesses(what == "cpu" ? ProcessSort::cpu : ProcessSort::memory, std::atoi(arguments[2]),
                       count == 4 ? std::atoi(arguments[3]) : 0);
    } else {
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
