#pragma once

#include "platform/desktop/tray_watcher.h"

namespace tarvo::desktop {

/// A desktop whose tray comes and goes as a test says.
class FakeTrayWatcher : public TrayWatcher {
public:
    TrayState state() const override { return state_; }
    std::string hostProcess() const override { return process_; }

    void become(TrayState state, std::string process = {}) {
        state_ = state;
        process_ = std::move(process);
        if (changed) changed();
    }

private:
    TrayState state_ = TrayState::unknown;
    std::string process_;
};

} // namespace tarvo::desktop
