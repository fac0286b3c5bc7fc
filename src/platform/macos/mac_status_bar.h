#pragma once

#include "platform/status_bar.h"

namespace tarvo::macos_platform {

/// The system's status bar. Needs the application object; main thread only.
class MacStatusBar : public StatusBar {
public:
    std::unique_ptr<StatusItem> makeItem() override;
};

} // namespace tarvo::macos_platform
