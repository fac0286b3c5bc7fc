#include "linux/linux_platform.h"

#include "core/application_identifier.h"
#include "core/setting_keys.h"
#include "linux/bluez.h"
#include "linux/hot_key_text.h"
#include "linux/https_helper_path.h"
#include "linux/linux_actions.h"
#include "platform/desktop/appearance/dark_palette.h"
#include "platform/desktop/hot_key/hot_key_means.h"
#include "platform/desktop/network_manager_wifi.h"
#include "platform/desktop/popover/compositing.h"
#include "platform/desktop/popover/pointer_position.h"
#include "platform/desktop/popover/qt_popover.h"
#include "platform/desktop/theme_icon.h"
#include "platform/desktop/udisks_devices.h"
#include "platform/linux/application_index.h"
#include "platform/linux/linux_process_icons.h"
#include "platform/linux/linux_wifi_client.h"
#include "platform/linux/process_name.h"
#include "platform/linux/root.h"
#include "platform/linux/xdg_directories.h"
#include "platform/posix/environment.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QGuiApplication>

#include <utility>

namespace tarvo {

namespace {

std::string preferencePath() {
    return linux_platform::preferenceFilePath(processEnvironment).value_or(std::string());
}

std::string autostartPath() {
    return linux_platform::autostartFilePath(processEnvironment).value_or(std::string());
}

std::vector<std::string> applicationFolders() {
    const auto variable = [](const char* name) { return processEnvironment(name).value_or(std::string()); };
    return linux_platform::applicationFolders(variable("XDG_DATA_HOME"), variable("HOME"),
                                              variable("XDG_DATA_DIRS"));
}

} // namespace

LinuxPlatform::LinuxPlatform(const PlatformNeeds& needs)
    : root_(needs.options.root), application_(needs.application), clock_(needs.clock),
      dispatcher_(needs.dispatcher), user_(openUser(clock_)),
      https_(childProcesses_, dispatcher_,
             httpsHelperPath(QCoreApplication::applicationDirPath().toStdString())),
      notifications_(QDBusConnection::sessionBus(), {.desktopEntry = applicationIdentifier}),
      colorScheme_(QDBusConnection::sessionBus()),
      autostart_(autostartPath(), QCoreApplication::applicationFilePath().toStdString()),
      desktopActions_(linuxDesktopActions(root_, dispatcher_, processEnvironment)) {
    colorScheme_.changed = [this] { desktop::followColorScheme(colorScheme_.prefersDark()); };
}

// A recorded machine has neither a network nor NetworkManager or UDisks to ask.
MachineOptions LinuxPlatform::machineOptions() {
    if (!isLive()) return {.root = root_};
    auto kernel = std::make_unique<linux_platform::LinuxWiFiClient>(linux_platform::Root());
    const auto disks =
        std::make_shared<desktop::UDisksDevices>(desktop::systemBus(QStringLiteral("tarvo-disks")), clock_);
    return {.https = &https_,
            .wifi = std::make_shared<desktop::NetworkManagerWiFi>(
                desktop::systemBus(QStringLiteral("tarvo-wifi")), std::move(kernel)),
            .volumeHint = [disks](const std::string& device) { return disks->hint(device); }};
}

BluetoothSources LinuxPlatform::bluetooth() {
    return bluezSources(bluetoothBus(root_), root_, dispatcher_);
}

// The desktop files are this system's, whichever machine is shown.
ui::ApplicationIconSource LinuxPlatform::applicationIcons() {
    const auto icons = std::make_shared<linux_platform::LinuxProcessIcons>(
        linux_platform::Root(root_), applicationFolders(), clock_, dispatcher_);
    return [icons](std::int32_t pid) -> std::optional<QIcon> {
        const auto icon = icons->icon(pid);
        return icon ? desktop::applicationIcon(*icon) : std::nullopt;
    };
}

std::shared_ptr<Automations> LinuxPlatform::automations() {
    return linuxAutomations(processEnvironment);
}

std::string LinuxPlatform::automationPlace() const {
    return linuxAutomationPlace(processEnvironment);
}

StatusBar& LinuxPlatform::statusBar() {
    if (!statusBar_) statusBar_.emplace(statusBarNeeds());
    return statusBar_->bar();
}

desktop::DesktopStatusBar::Needs LinuxPlatform::statusBarNeeds() {
    return {.symbols = symbols_,
            .dispatcher = dispatcher_,
            .processName = [](std::uint32_t pid) { return linux_platform::processName({}, pid); },
            .preferredHost = [this] { return preferenceString(*user_.preferences, keys::statusBarHost); },
            .closedByUser = [this] { application_.terminate(); }};
}

PopoverFactory LinuxPlatform::popovers() {
    return desktop::makePopoverFactory(
        {.composites = desktop::compositesWindows, .pointerPosition = desktop::pointerPosition});
}

HotKeys& LinuxPlatform::hotKeys(const std::string& description) {
    if (!hotKeys_) hotKeys_.emplace(hotKeyBinder(description));
    return *hotKeys_;
}

desktop::HotKeyBinder LinuxPlatform::hotKeyBinder(const std::string& description) const {
    const auto means = desktop::hotKeyMeans(QGuiApplication::platformName(), processEnvironment);
    return desktop::hotKeyBinder(means, QDBusConnection::sessionBus(),
                                 {.applicationID = QString::fromLatin1(applicationIdentifier),
                                  .description = QString::fromStdString(description)});
}

LKey LinuxPlatform::hotKeyText() const {
    return tarvo::hotKeyText(hotKeys_ ? hotKeys_->state() : desktop::HotKeyState::unavailable);
}

LinuxPlatform::Watches::Watches(LinuxPlatform& platform)
    : preferences(platform.user_.preferences->observe([&platform] {
          if (platform.statusBar_) platform.statusBar_->bar().wishChanged();
      })),
      preferenceFile(preferencePath(), [&platform] { platform.preferenceFileWritten(); }),
      terminationSignals([&platform] { platform.application_.terminate(); }),
      sessionEnd([&platform] { platform.events_.willTerminate(); }) {}

void LinuxPlatform::start(PlatformEvents events) {
    events_ = std::move(events);
    if (statusBar_) statusBar_->bar().hostChanged = [this] { events_.statusBarChanged(); };
    if (hotKeys_) hotKeys_->onStateChanged = [this] { events_.hotKeyChanged(); };
    watches_.emplace(*this);
}

void LinuxPlatform::stop() {
    watches_.reset();
    if (statusBar_) statusBar_->bar().hostChanged = nullptr;
    if (hotKeys_) hotKeys_->onStateChanged = nullptr;
}

// Another instance, or the user with an editor.
void LinuxPlatform::preferenceFileWritten() {
    if (user_.reloadPreferences()) events_.preferencesChanged();
}

std::unique_ptr<Platform> makePlatform(const PlatformNeeds& needs) {
    return std::make_unique<LinuxPlatform>(needs);
}

} // namespace tarvo
