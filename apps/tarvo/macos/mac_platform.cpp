#include "actions/script_desktop_actions.h"
#include "actions/shortcuts_automations.h"
#include "platform.h"
#include "platform/desktop/popover/pointer_position.h"
#include "platform/desktop/popover/qt_popover.h"
#include "platform/desktop/termination_signals.h"
#include "platform/desktop/theme_icon.h"
#include "platform/macos/apple_script_runner.h"
#include "platform/macos/carbon_hot_keys.h"
#include "platform/macos/core_bluetooth_central.h"
#include "platform/macos/io_bluetooth_devices.h"
#include "platform/macos/login_item.h"
#include "platform/macos/mac_status_bar.h"
#include "platform/macos/macos_notifications.h"
#include "platform/macos/running_application_icons.h"
#include "platform/macos/termination_observer.h"
#include "platform/macos/url_session_client.h"
#include "platform/macos/window_style.h"
#include "platform/macos/workspace.h"
#include "platform/posix/posix_child_processes.h"

#include <QWidget>

#include <optional>
#include <utility>

namespace tarvo {

using namespace macos_platform;

namespace {

/// The program on a Mac.
class MacPlatform : public Platform {
public:
    explicit MacPlatform(const PlatformNeeds& needs)
        : application_(needs.application), user_(openUser(needs.clock)),
          desktopActions_(scripts_, tools_, needs.dispatcher, openAddress) {}

    SystemFamily family() const override { return SystemFamily::macOS; }
    User& user() override { return user_; }
    HTTPSClient& https() override { return https_; }
    MachineOptions machineOptions() override { return {.https = &https_}; }
    BluetoothSources bluetooth() override;
    UserNotifications& notifications() override { return notifications_; }
    ui::ApplicationIconSource applicationIcons() override;
    DesktopActions& desktopActions() override { return desktopActions_; }
    std::shared_ptr<Automations> automations() override;
    std::string automationPlace() const override { return {}; }
    bool launchesAtLogin() const override { return loginItem_.isOn(); }
    void setLaunchAtLogin(bool launches) override { loginItem_.setOn(launches); }
    StatusBar& statusBar() override { return statusBar_; }
    PopoverFactory popovers() override;
    void prepareDetailWindow(QWidget& window) override;
    HotKeys& hotKeys(const std::string&) override { return hotKeys_; }
    LKey hotKeyText() const override;
    void start(PlatformEvents events) override;
    void stop() override;

private:
    desktop::QtApplication& application_;
    User user_;
    URLSessionClient https_;
    MacNotifications notifications_;
    std::shared_ptr<AppleScriptRunner> scripts_ = std::make_shared<AppleScriptRunner>();
    std::shared_ptr<POSIXChildProcesses> tools_ = std::make_shared<POSIXChildProcesses>();
    ScriptDesktopActions desktopActions_;
    LoginItem loginItem_;
    MacStatusBar statusBar_;
    CarbonHotKeys hotKeys_;
    std::optional<TerminationObserver> termination_;
    std::optional<desktop::TerminationSignals> terminationSignals_;
};

BluetoothSources MacPlatform::bluetooth() {
    return {.centralManagers =
                [](BluetoothCentralDelegate& delegate) {
                    return std::make_unique<CoreBluetoothCentral>(delegate);
                },
            .pairedDevices = std::make_shared<IOBluetoothDevices>()};
}

ui::ApplicationIconSource MacPlatform::applicationIcons() {
    const auto icons = std::make_shared<RunningApplicationIcons>();
    return [icons](std::int32_t pid) -> std::optional<QIcon> {
        const auto icon = icons->icon(pid);
        return icon ? desktop::applicationIcon(*icon) : std::nullopt;
    };
}

std::shared_ptr<Automations> MacPlatform::automations() {
    return std::make_shared<ShortcutsAutomations>(tools_, scripts_);
}

// Every window is blended with what is behind it.
PopoverFactory MacPlatform::popovers() {
    return desktop::makePopoverFactory(
        {.composites = [] { return true; }, .pointerPosition = desktop::pointerPosition});
}

void MacPlatform::prepareDetailWindow(QWidget& window) {
    const double covered = extendContentBelowTitleBar(window.winId());
    window.setContentsMargins(0, static_cast<int>(covered), 0, 0);
}

// Whether another program holds the keys is not told.
LKey MacPlatform::hotKeyText() const {
    return {.cs = "⌘⇧M otevře a zavře panel.", .en = "⌘⇧M opens and closes the panel."};
}

void MacPlatform::start(PlatformEvents events) {
    termination_.emplace(std::move(events.willTerminate));
    terminationSignals_.emplace([this] { application_.terminate(); });
}

void MacPlatform::stop() {
    terminationSignals_.reset();
    termination_.reset();
}

} // namespace

std::unique_ptr<Platform> makePlatform(const PlatformNeeds& needs) {
    return std::make_unique<MacPlatform>(needs);
}

} // namespace tarvo
