#include "composition/process_sources.h"

#include "platform/linux/kernel_sockets.h"
#include "processes/process_list.h"

#include <memory>
#include <thread>

namespace tarvo {

using namespace linux_platform;

ProcessSources::ProcessSources(const Root& root, Clock& clock)
    : sampler(root, clock, [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }),
      demand([this](std::int64_t limit) { return topProcesses(demandTable, ProcessSort::cpu, limit); }),
      control(root, [this](std::int32_t pid) { return sampler.listedStartTime(pid); }),
      sockets(root, std::make_unique<KernelSockets>(root)),
      traffic(root, std::make_unique<KernelSockets>(root)) {}

} // namespace tarvo
