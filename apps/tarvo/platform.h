#pragma once

#include "bluetooth.h"
#include "command_line.h"
#include "composition/machine.h"
#include "composition/user.h"
#include "localization/localization_manager.h"
#include "platform/automations.h"
#include "platform/clock.h"
#include "platform/desktop/qt_application.h"
#include "platform/desktop_actions.h"
#include "platform/dispatcher.h"
#include "platform/hot_keys.h"
#include "platform/https_client.h"
#include "platform/popover.h"
#include "platform/status_bar.h"
#include "platform/user_notifications.h"
#include "ui/elements/app_icon_cache.h"

#include <functional>
#include <memory>
#include <string>

class QWidget;

namespace tarvo {

/// What the platform's parts work with; all of it outlives them.
struct PlatformNeeds {
    const ProgramOptions& options;
    desktop::QtApplication& application;
    Clock& clock;
    Dispatcher& dispatcher;
};

/// What the platform tells the program while it runs.
struct PlatformEvents {
    std::function<void()> statusBarChanged;   ///< the items must be made anew
    std::function<void()> hotKeyChanged;      ///< what hotKeyText() says is another sentence now
    std::function<void()> preferencesChanged; ///< by another program; they have been taken over
    std::function<void()> willTerminate;      ///< the session ends around the program: save what is unsaved
};

/// What the desktop program takes from the system that it runs on, each part by its seam; everything else is
/// the same everywhere. Each system has its own, in the folder of its name, and the build takes one. Main
/// thread only; what is handed out by reference lives as long as the platform.
class Platform {
public:
    virtual ~Platform() = default;

    /// What the system calls itself where the interface speaks of it.
    virtual SystemFamily family() const = 0;
    virtual User& user() = 0;
    virtual HTTPSClient& https() = 0;
    virtual MachineOptions machineOptions() = 0;
    virtual BluetoothSources bluetooth() = 0;
    virtual UserNotifications& notifications() = 0;
    virtual ui::ApplicationIconSource applicationIcons() = 0;

    virtual DesktopActions& desktopActions() = 0;
    virtual std::shared_ptr<Automations> automations() = 0;
    /// Where automations are kept, as it is shown to people; empty: it is not told.
    virtual std::string automationPlace() const = 0;
    virtual bool launchesAtLogin() const = 0;
    virtual void setLaunchAtLogin(bool launches) = 0;

    /// Made when it is first asked for.
    virtual StatusBar& statusBar() = 0;
    virtual PopoverFactory popovers() = 0;
    /// Gives the detail window what the system's own windows have beyond Qt's; before it is filled.
    virtual void prepareDetailWindow(QWidget& window) = 0;
    /// Made when they are first asked for; `description` says what the key does, for desktops that show it.
    virtual HotKeys& hotKeys(const std::string& description) = 0;
    /// What became of the hot key, in a sentence.
    virtual LKey hotKeyText() const = 0;

    /// The program is complete: events are told from now on. Called once.
    virtual void start(PlatformEvents events) = 0;
    /// No event is told any more: what they run is about to go.
    virtual void stop() = 0;
};

std::unique_ptr<Platform> makePlatform(const PlatformNeeds& needs);

} // namespace tarvo
