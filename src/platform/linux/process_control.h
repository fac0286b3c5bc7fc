#pragma once

#include "platform/linux/root.h"
#include "platform/process_control.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// Signals a process by a descriptor of the process itself (pidfd_open(2)), so that a number that is given to
/// another process meanwhile cannot hit it; by its number alone where the kernel has no such descriptors.
/// The processes of a recorded machine have only their numbers in common with those of this one: none is
/// signalled.
class LinuxProcessControl : public ProcessControl {
public:
    /// Start time, in clock ticks after boot, of the process that was listed under a number; absent when none
    /// was.
    using ListedStartTime = std::function<std::optional<std::uint64_t>(std::int32_t pid)>;

    LinuxProcessControl(const Root& root, ListedStartTime listed);

    Terminate terminator(std::int32_t pid) override;

private:
    Terminate byDescriptor(std::int32_t pid) const;
    Terminate byNumber(std::int32_t pid) const;
    bool isAsListed(std::int32_t pid) const;

    bool isLive_;
    std::string processes_;
    ListedStartTime listed_;
};

} // namespace tarvo::linux_platform
