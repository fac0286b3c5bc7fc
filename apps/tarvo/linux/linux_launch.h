#pragma once

#include "launch.h"
#include "platform/desktop/session_service.h"

namespace tarvo {

/// The application with its name on the session bus, where a second instance and other programs call it.
class LinuxLaunch : public Launch {
public:
    LinuxLaunch(int& argumentCount, char** arguments);

    desktop::QtApplication& application() override { return application_; }
    void answer(OutsideRequests requests) override;

    desktop::SessionService& session() { return session_; }

private:
    desktop::QtApplication application_;
    desktop::SessionService session_;
};

} // namespace tarvo
