#pragma once

#include "platform/desktop/status_bar_chooser.h"
#include "platform/desktop/symbols/symbol_images.h"
#include "platform/desktop/tray/dbus_tray_watcher.h"
#include "platform/dispatcher.h"

#include <functional>
#include <string>

namespace tarvo::desktop {

/// The status bar of the running session with its two hosts. Main thread only.
class DesktopStatusBar {
public:
    /// Environment variable that decides before the preference does.
    static constexpr const char* wishVariable = "TARVO_STATUS_BAR";

    struct Needs {
        SymbolImages& symbols;
        Dispatcher& dispatcher;
        DBusTrayWatcher::ProcessName processName;
        /// The preference's text: "auto", "tray", "bar"; anything else counts as "auto".
        std::function<std::string()> preferredHost;
        /// Runs when the user closes the small window that stands in for a bar.
        std::function<void()> closedByUser;
    };
    /// References outlive the bar.
    explicit DesktopStatusBar(Needs needs);

    StatusBarChooser& bar() { return chooser_; }

private:
    StatusBarHosts makeHosts();

    Needs needs_;
    DBusTrayWatcher watcher_;
    StatusBarChooser chooser_;
};

} // namespace tarvo::desktop
