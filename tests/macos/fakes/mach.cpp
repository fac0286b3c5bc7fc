#include "macos/fakes/mach.h"

#include "macos/fakes/ledger.h"

#include <fmt/format.h>
#include <mach/mach.h>
#include <mach/mach_host.h>
#include <mach/vm_page_size.h>
#include <mach/vm_statistics.h>
#include <sys/sysctl.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace tarvo::fakes {
namespace {

constexpr mach_port_t hostPort = 0x0B07;
constexpr std::uint32_t wordsOfOlderSystems = 38;

struct Mapping {
    std::unique_ptr<integer_t[]> words;
    vm_size_t bytes;
};

std::map<vm_address_t, Mapping>& mappings() {
    static std::map<vm_address_t, Mapping> instances;
    return instances;
}

bool isHost(mach_port_t port, const std::string& user) {
    return expect(port == hostPort && ledger().held.contains("port right"), user + " of another port");
}

vm_statistics64_data_t statisticsOf(const Pages& pages) {
    vm_statistics64_data_t statistics;
    std::memset(&statistics, 0x5A, sizeof statistics);
    statistics.free_count = pages.free;
    statistics.active_count = pages.active;
    statistics.inactive_count = pages.inactive;
    statistics.wire_count = pages.wired;
    statistics.compressor_page_count = pages.compressor;
    return statistics;
}

} // namespace

Mach& mach() {
    static Mach instance;
    return instance;
}

void forgetMappings() {
    mappings().clear();
}

std::uint64_t kernelPageSize() {
    return vm_kernel_page_size;
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" {

mach_port_t mach_task_self_ = 0x7A5C;
// Two sizes, so that one in the place of the other is noticed.
vm_size_t vm_page_size = 4096;
vm_size_t vm_kernel_page_size = 16384;

mach_port_t mach_host_self() {
    ledger().taken("port right");
    return hostPort;
}

kern_return_t mach_port_deallocate(ipc_space_t task, mach_port_name_t name) {
    expect(task == mach_task_self_, "mach_port_deallocate for another task");
    if (!isHost(name, "mach_port_deallocate")) return KERN_INVALID_ARGUMENT;
    ledger().givenBack("port right");
    return KERN_SUCCESS;
}

kern_return_t host_processor_info(host_t host, processor_flavor_t flavor, natural_t* processorCount,
                                  processor_info_array_t* info, mach_msg_type_number_t* infoCount) {
    if (!isHost(host, "host_processor_info")) return KERN_INVALID_ARGUMENT;
    expect(flavor == PROCESSOR_CPU_LOAD_INFO, "host_processor_info of another flavor");
    if (mach().processorInfoFails) return KERN_FAILURE;
    const auto count = mach().wordCount.value_or(static_cast<std::uint32_t>(4 * mach().cores.size()));
    Mapping mapping{std::make_unique<integer_t[]>(count), count * sizeof(integer_t)};
    for (std::uint32_t word = 0; word < std::min<std::size_t>(count, 4 * mach().cores.size()); ++word)
        mapping.words[word] = mach().cores[word / 4][word % 4];
    *processorCount = static_cast<natural_t>(mach().cores.size());
    *info = mapping.words.get();
    *infoCount = count;
    mappings().emplace(reinterpret_cast<vm_address_t>(*info), std::move(mapping));
    ledger().taken("mapping");
    return KERN_SUCCESS;
}

kern_return_t vm_deallocate(vm_map_t targetTask, vm_address_t address, vm_size_t size) {
    expect(targetTask == mach_task_self_, "vm_deallocate for another task");
    const auto found = mappings().find(address);
    if (!expect(found != mappings().end(), "vm_deallocate of what is not mapped"))
        return KERN_INVALID_ADDRESS;
    expect(size == found->second.bytes,
           fmt::format("vm_deallocate of {} bytes in place of {}", size, found->second.bytes));
    mappings().erase(found);
    ledger().givenBack("mapping");
    return KERN_SUCCESS;
}

kern_return_t host_statistics64(host_t host, host_flavor_t flavor, host_info64_t info,
                                mach_msg_type_number_t* count) {
    if (!isHost(host, "host_statistics64")) return KERN_INVALID_ARGUMENT;
    expect(flavor == HOST_VM_INFO64, "host_statistics64 of another flavor");
    mach().statisticsCounts.push_back(*count);
    if (!mach().pages || *count < wordsOfOlderSystems) return KERN_FAILURE;
    const auto statistics = statisticsOf(*mach().pages);
    static_assert(sizeof statistics == wordsOfOlderSystems * sizeof(integer_t));
    if (mach().isOlderSystem) *count = wordsOfOlderSystems;
    // A newer system fills all of the room that it was given.
    std::fill_n(info, *count, 0x5A5A5A5A);
    std::memcpy(info, &statistics, sizeof statistics);
    return KERN_SUCCESS;
}

int sysctlbyname(const char* name, void* oldValue, size_t* oldLength, void* newValue, size_t newLength) {
    expect(newValue == nullptr && newLength == 0, "sysctlbyname that changes a value");
    const auto found = mach().systemValues.find(name);
    if (found == mach().systemValues.end()) {
        errno = ENOENT;
        return -1;
    }
    const auto& value = found->second;
    const bool fits = value.size() <= *oldLength;
    const auto length = std::min(value.size(), *oldLength);
    std::memcpy(oldValue, value.data(), length);
    *oldLength = length;
    if (fits) return 0;
    errno = ENOMEM;
    return -1;
}

int getloadavg(double* loads, int count) noexcept {
    const int filled = std::min(count, mach().loadCount);
    std::copy_n(mach().loads.begin(), std::max(0, filled), loads);
    return filled;
}
}
