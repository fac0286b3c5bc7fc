#pragma once

#include "platform.h"
#include "platform/desktop/appearance/portal_color_scheme.h"
#include "platform/desktop/desktop_notifications.h"
#include "platform/desktop/desktop_status_bar.h"
#include "platform/desktop/hot_key/desktop_hot_keys.h"
#include "platform/desktop/preference_file_watcher.h"
#include "platform/desktop/session_end.h"
#include "platform/desktop/symbols/symbol_images.h"
#include "platform/desktop/termination_signals.h"
#include "platform/linux/autostart.h"
#include "platform/linux/linux_desktop_actions.h"
#include "platform/posix/https_helper_client.h"
#include "platform/posix/posix_child_processes.h"

#include <optional>

namespace tarvo {

/// The program on a Linux desktop: files, D-Bus, X11 or Wayland.
class LinuxPlatform : public Platform {
public:
    explicit LinuxPlatform(const PlatformNeeds& needs);

    SystemFamily family() const override { return SystemFamily::other; }
    User& user() override { return user_; }
    HTTPSClient& https() override { return https_; }
    MachineOptions machineOptions() override;
    BluetoothSources bluetooth() override;
    UserNotifications& notifications() override { return notifications_; }
    ui::ApplicationIconSource applicationIcons() override;
    DesktopActions& desktopActions() override { return desktopActions_; }
    std::shared_ptr<Automations> automations() override;
    std::string automationPlace() const override;
    bool launchesAtLogin() const override { return autostart_.isOn(); }
    void setLaunchAtLogin(bool launches) override { autostart_.setOn(launches); }
    StatusBar& statusBar() override;
    PopoverFactory popovers() override;
    void prepareDetailWindow(QWidget&) override {}
    HotKeys& hotKeys(const std::string& description) override;
    LKey hotKeyText() const override;
    void start(PlatformEvents events) override;
    void stop() override;

private:
    /// What runs from start() to stop().
    struct Watches {
        explicit Watches(LinuxPlatform& platform);

        Subscription preferences;
        desktop::PreferenceFileWatcher preferenceFile;
        desktop::TerminationSignals terminationSignals;
        desktop::SessionEnd sessionEnd;
    };

    bool isLive() const { return root_.empty(); }
    desktop::DesktopStatusBar::Needs statusBarNeeds();
    desktop::HotKeyBinder hotKeyBinder(const std::string& description) const;
    void preferenceFileWritten();

    std::string root_; ///< folder of a recorded machine, empty for this one
    desktop::QtApplication& application_;
    Clock& clock_;
    Dispatcher& dispatcher_;
    User user_;
    POSIXChildProcesses childProcesses_;
    HTTPSHelperClient https_;
    desktop::DesktopNotifications notifications_;
    desktop::PortalColorScheme colorScheme_;
    desktop::SymbolImages symbols_;
    linux_platform::Autostart autostart_;
    linux_platform::LinuxDesktopActions desktopActions_;
    std::optional<desktop::DesktopStatusBar> statusBar_;
    std::optional<desktop::DesktopHotKeys> hotKeys_;
    PlatformEvents events_;
    std::optional<Watches> watches_;
};

} // namespace tarvo
