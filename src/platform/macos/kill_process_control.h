#pragma once

#include "platform/process_control.h"

namespace tarvo::macos_platform {

/// Signals a process by its number (kill(2)): one that takes over the number between the question and the
/// answer is not told apart.
class KillProcessControl : public ProcessControl {
public:
    Terminate terminator(std::int32_t pid) override;
};

} // namespace tarvo::macos_platform
