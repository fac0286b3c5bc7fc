#pragma once

#include "platform/clock.h"
#include "platform/linux/linux_process_traffic.h"
#include "platform/linux/linux_socket_table.h"
#include "platform/linux/process_control.h"
#include "platform/linux/process_sampler.h"
#include "platform/linux/root.h"

namespace tarvo {

/// The processes and sockets of one machine. The model, the demand tracker and the process table of the
/// detail window each have a process table of their own over one sampler, so that none spoils another's
/// shares.
class LinuxProcesses {
public:
    LinuxProcesses(const linux_platform::Root& root, Clock& clock);

    linux_platform::ProcessSampler sampler;
    linux_platform::SampledProcessTable modelTable{sampler};
    linux_platform::SampledProcessTable demandTable{sampler};
    linux_platform::SampledProcessTable detailTable{sampler};
    linux_platform::LinuxProcessControl control;
    linux_platform::LinuxSocketTable sockets;
    linux_platform::LinuxProcessTraffic traffic;
};

} // namespace tarvo
