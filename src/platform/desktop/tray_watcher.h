#pragma once

#include "platform/desktop/status_bar_choice.h"

#include <functional>
#include <string>

namespace tarvo::desktop {

/// Follows whether the desktop shows a tray. Main thread only.
class TrayWatcher {
public:
    virtual ~TrayWatcher() = default;
    virtual TrayState state() const = 0;
    /// Name of the process that draws the tray; empty when it is not known. Meaningful while present.
    virtual std::string hostProcess() const = 0;

    /// Called after either changed.
    std::function<void()> changed;
};

} // namespace tarvo::desktop
