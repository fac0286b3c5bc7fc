#pragma once

#include "platform/process_icons.h"

namespace tarvo::macos_platform {

/// Icons of the applications that the user's session knows to run.
class RunningApplicationIcons : public ProcessIcons {
public:
    std::optional<ProcessIcon> icon(std::int32_t pid) override;
};

} // namespace tarvo::macos_platform
