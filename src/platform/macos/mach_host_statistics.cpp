#include "platform/macos/mach_host_statistics.h"

#include <mach/mach.h>
#include <mach/mach_host.h>
#include <mach/processor_info.h>
#include <mach/vm_page_size.h>
#include <mach/vm_statistics.h>
#include <sys/sysctl.h>

#include <cstdlib>
#include <cstring>
#include <type_traits>

namespace tarvo::macos_platform {
namespace {

static_assert(std::is_same_v<mach_port_t, unsigned int> && sizeof(integer_t) == 4);

/// Tick counters as the kernel hands them over: an array mapped for this program, which has to give it back.
struct LoadCounters {
    natural_t cores = 0;
    processor_info_array_t words = nullptr;
    mach_msg_type_number_t wordCount = 0;

    LoadCounters() = default;
    LoadCounters(const LoadCounters&) = delete;
    LoadCounters& operator=(const LoadCounters&) = delete;
    ~LoadCounters() {
        if (!words) return;
        vm_deallocate(mach_task_self(), reinterpret_cast<vm_address_t>(words), wordCount * sizeof(integer_t));
    }
};

/// Absent when there is no such value or it is of another size.
template <typename Value>
std::optional<Value> systemValue(const char* name) {
    Value value{};
    auto size = sizeof value;
    if (sysctlbyname(name, &value, &size, nullptr, 0) != 0 || size != sizeof value) return std::nullopt;
    return value;
}

static_assert(sizeof(xsw_usage) == 32);

std::optional<SwapUsage> swapUsage() {
    const auto usage = systemValue<xsw_usage>("vm.swapusage");
    return usage ? std::optional(SwapUsage{usage->xsu_total, usage->xsu_used}) : std::nullopt;
}

/// Room for the page statistics, larger than the record of older systems, which then fill its beginning.
using PageWords = std::array<integer_t, 62>;
static_assert(sizeof(vm_statistics64_data_t) <= sizeof(PageWords));

} // namespace

MachHostStatistics::MachHostStatistics() : host_(mach_host_self()) {}

MachHostStatistics::~MachHostStatistics() {
    mach_port_deallocate(mach_task_self(), host_);
}

bool MachHostStatistics::processorLoad(std::vector<CoreTicks>& cores) {
    LoadCounters load;
    if (host_processor_info(host_, PROCESSOR_CPU_LOAD_INFO, &load.cores, &load.words, &load.wordCount) !=
        KERN_SUCCESS)
        return false;
    if (load.wordCount / CPU_STATE_MAX < load.cores) return false;
    cores.clear();
    for (natural_t core = 0; core < load.cores; ++core) {
        const integer_t* const ticks = load.words + std::size_t{core} * CPU_STATE_MAX;
        cores.push_back({.user = ticks[CPU_STATE_USER],
                         .system = ticks[CPU_STATE_SYSTEM],
                         .idle = ticks[CPU_STATE_IDLE],
                         .nice = ticks[CPU_STATE_NICE]});
    }
    return true;
}

std::optional<PageStatistics> MachHostStatistics::pages() const {
    PageWords words{};
    mach_msg_type_number_t count = words.size();
    if (host_statistics64(host_, HOST_VM_INFO64, words.data(), &count) != KERN_SUCCESS) return std::nullopt;
    vm_statistics64_data_t statistics;
    std::memcpy(&statistics, words.data(), sizeof statistics);
    return PageStatistics{.active = statistics.active_count,
                          .wired = statistics.wire_count,
                          .compressor = statistics.compressor_page_count,
                          .inactive = statistics.inactive_count,
                          .free = statistics.free_count,
                          .pageSize = vm_kernel_page_size};
}

MemoryStatistics MachHostStatistics::memory() {
    return {.physicalBytes = systemValue<std::uint64_t>("hw.memsize").value_or(0),
            .pages = pages(),
            .swap = swapUsage()};
}

std::optional<std::array<double, 3>> MachHostStatistics::loadAverages() {
    std::array<double, 3> loads{};
    if (getloadavg(loads.data(), 3) != 3) return std::nullopt;
    return loads;
}

} // namespace tarvo::macos_platform
