#pragma once

#include "sensors/smc.h"
#include "support/scripted_smc.h"

#include <memory>

namespace tarvo {

/// The process-wide connection made with a scripted controller for the length of a test.
class ConnectedSMC {
public:
    ConnectedSMC() { csmc_use_client(controller_); }
    ~ConnectedSMC() {
        csmc_close();
        csmc_use_client(nullptr);
    }
    ConnectedSMC(const ConnectedSMC&) = delete;
    ConnectedSMC& operator=(const ConnectedSMC&) = delete;

    ScriptedSMC& operator*() const { return *controller_; }
    ScriptedSMC* operator->() const { return controller_.get(); }

private:
    std::shared_ptr<ScriptedSMC> controller_ = std::make_shared<ScriptedSMC>();
};

} // namespace tarvo
