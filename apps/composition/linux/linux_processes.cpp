#include "composition/linux/linux_processes.h"

#include "platform/linux/kernel_sockets.h"

#include <memory>
#include <thread>

namespace tarvo {

using namespace linux_platform;

LinuxProcesses::LinuxProcesses(const Root& root, Clock& clock)
    : sampler(root, clock, [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }),
      control(root, [this](std::int32_t pid) { return sampler.listedStartTime(pid); }),
      sockets(root, std::make_unique<KernelSockets>(root)),
      traffic(root, std::make_unique<KernelSockets>(root)) {}

} // namespace tarvo
