#include "program.h"

#include "core/application_identifier.h"
#include "detail.h"
#include "hot_key_text.h"
#include "https_helper_path.h"
#include "localization/app_language.h"
#include "platform/build_options.h"
#include "platform/desktop/appearance/dark_palette.h"
#include "platform/desktop/desktop_window.h"
#include "platform/desktop/hot_key/hot_key_means.h"
#include "platform/desktop/network_manager_wifi.h"
#include "platform/desktop/popover/pointer_position.h"
#include "platform/desktop/popover/qt_popover.h"
#include "platform/desktop/udisks_devices.h"
#include "platform/linux/application_index.h"
#include "platform/linux/linux_process_icons.h"
#include "platform/linux/linux_wifi_client.h"
#include "platform/linux/process_name.h"
#include "platform/linux/root.h"
#include "platform/linux/system_language.h"
#include "platform/linux/xdg_directories.h"
#include "platform/posix/environment.h"
#include "platform/posix/freed_memory.h"
#include "readers/wifi_info.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QGuiApplication>

#include <string>

namespace tarvo {

namespace {

/// How long the end of the program waits for background work.
constexpr std::chrono::milliseconds finishLimit{1500};

/// How long a process is given to end before the lists are read anew.
constexpr std::chrono::milliseconds endOfProcess{700};

std::string preferencePath() {
    return linux_platform::preferenceFilePath(processEnvironment).value_or(std::string());
}

std::string autostartPath() {
    return linux_platform::autostartFilePath(processEnvironment).value_or(std::string());
}

std::string dataFolder() {
    return linux_platform::applicationDataFolder(processEnvironment).value_or(std::string());
}

/// A recorded machine has no network.
std::string manifestAddress(const ProgramOptions& options) {
    return options.root.empty() ? std::string(build_options::updateManifestAddress) : std::string();
}

// A recorded machine has no NetworkManager to ask.
std::shared_ptr<WiFiClient> makeWiFi(const ProgramOptions& options) {
    if (!options.root.empty()) return nullptr;
    return std::make_shared<desktop::NetworkManagerWiFi>(
        desktop::systemBus(QStringLiteral("tarvo-wifi")),
        std::make_unique<linux_platform::LinuxWiFiClient>(linux_platform::Root(options.root)));
}

// The desktop files are this system's, whichever machine is shown.
std::unique_ptr<ProcessIcons> makeProcessIcons(const ProgramOptions& options, Clock& clock,
                                               Dispatcher& dispatcher) {
    const auto variable = [](const char* name) { return processEnvironment(name).value_or(std::string()); };
    auto folders = linux_platform::applicationFolders(variable("XDG_DATA_HOME"), variable("HOME"),
                                                      variable("XDG_DATA_DIRS"));
    return std::make_unique<linux_platform::LinuxProcessIcons>(linux_platform::Root(options.root),
                                                               std::move(folders), clock, dispatcher);
}

std::optional<Point> pointer() {
    const auto position = desktop::pointerPosition();
    if (!position) return std::nullopt;
    return Point{static_cast<double>(position->x()), static_cast<double>(position->y())};
}

// A recorded machine has no UDisks to ask.
std::function<DeviceHint(const std::string&)> makeVolumeHint(const ProgramOptions& options,
                                                             const Clock& clock) {
    if (!options.root.empty()) return nullptr;
    const auto devices =
        std::make_shared<desktop::UDisksDevices>(desktop::systemBus(QStringLiteral("tarvo-disks")), clock);
    return [devices](const std::string& device) { return devices->hint(device); };
}

} // namespace

Program::Program(desktop::QtApplication& application, desktop::SessionService& session,
                 const ProgramOptions& options)
    : application_(application), preferences_(preferencePath(), clock_), settings_(preferences_),
      sharedSettings_(settings_),
      localization_(preferences_, linux_platform::systemLanguageCode(processEnvironment)),
      sharedLocalization_(localization_),
      https_(childProcesses_, dispatcher_,
             httpsHelperPath(QCoreApplication::applicationDirPath().toStdString())),
      machine_({.root = options.root,
                .https = options.root.empty() ? &https_ : nullptr,
                .wifi = makeWiFi(options),
                .volumeHint = makeVolumeHint(options, clock_)},
               clock_, dispatcher_),
      sharedDemand_(machine_.processDemand()),
      bluetooth_(bluetoothBus(options.root), options.root, dispatcher_), records_(dataFolder(), clock_),
      notifications_(QDBusConnection::sessionBus(), {.desktopEntry = applicationIdentifier}),
      alerts_({.notifications = notifications_,
               .log = []() -> AlertLogStore& { return AlertLogStore::shared(); },
               .settings = settings_,
               .localization = localization_,
               .clock = clock_}),
      updates_({.preferences = preferences_,
                .https = https_,
                .clock = clock_,
                .dispatcher = dispatcher_,
                .manifestAddress = manifestAddress(options),
                .currentVersion = std::string(build_options::version)}),
      sharedUpdates_(updates_),
      model_(StatsModel::make(settings_, clock_, dispatcher_, machine_.readers(), &records_.history())),
      colorScheme_(QDBusConnection::sessionBus()),
      autostart_(autostartPath(), QCoreApplication::applicationFilePath().toStdString()),
      actions_(actionServices(options)), statusBar_(statusBarNeeds()), hotKeys_(hotKeyBinder()),
      panels_(panelServices(options)), delegate_(std::make_shared<AppDelegate>(appServices())),
      preferenceSubscription_(preferences_.observe([this] { preferencesChanged(); })),
      preferenceWatcher_(preferences_.path(), [this] { preferencesChangedElsewhere(); }),
      signals_([this] { application_.terminate(); }),
      sessionEnd_([this] { delegate_->applicationWillTerminate(); }) {
    answer(session);
    colorScheme_.changed = [this] { desktop::followColorScheme(colorScheme_.prefersDark()); };
    hotKeys_.onStateChanged = [this] { notificationCenter_.post(ui::hotKeyStateChanged); };
    statusBar_.bar().hostChanged = [this] { notificationCenter_.post(menuBarStyleChanged); };
}

int Program::run() {
    delegate_->applicationDidFinishLaunching();
    const int status = application_.run();
    delegate_->applicationWillTerminate();
    return status;
}

bool Program::finish() {
    return dispatcher_.finish(finishLimit);
}

desktop::DesktopStatusBar::Needs Program::statusBarNeeds() {
    return {.symbols = symbols_,
            .dispatcher = dispatcher_,
            .processName = [](std::uint32_t pid) { return linux_platform::processName({}, pid); },
            .preferredHost = [this] { return preferenceString(preferences_, keys::statusBarHost); },
            .closedByUser = [this] { application_.terminate(); }};
}

PanelServices Program::panelServices(const ProgramOptions& options) {
    return {.model = *model_,
            .settings = settings_,
            .localization = localization_,
            .notifications = notificationCenter_,
            .history = records_.history(),
            .updates = updates_,
            .processIcons = makeProcessIcons(options, clock_, dispatcher_),
            .bluetoothBattery = &bluetooth_.batteryMonitor(),
            .openDetailWindow = [this] { delegate_->openDetailWindow(); },
            .quit = [this] { application_.terminate(); },
            .complete = [this](ui::PanelContext& context) { completePanels(context); }};
}

ActionServices Program::actionServices(const ProgramOptions& options) {
    return {.settings = settings_,
            .localization = localization_,
            .dispatcher = dispatcher_,
            .processes = machine_.processControl(),
            .refreshProcesses = [this] { processWasAskedToEnd(); },
            .root = options.root};
}

// A process needs a moment to end; the lists are read anew after it too.
void Program::processWasAskedToEnd() {
    model_->refreshProcessesAsync();
    dispatcher_.after(endOfProcess, [this] {
        if (model_->detailVisible()) model_->refreshProcessesAsync();
        notificationCenter_.post(ui::processListChanged);
    });
}

void Program::completePanels(ui::PanelContext& context) {
    actions_.complete(context);
    context.launchesAtLogin = [this] { return autostart_.isOn(); };
    context.setLaunchAtLogin = [this](bool launches) { autostart_.setOn(launches); };
    context.askForNetworkName = [this] { WiFiInfo(machine_.wifi()).requestPermission(); };
    context.hotKeyText = [this] { return localization_.t(hotKeyText(hotKeys_.state())); };
}

AppServices Program::appServices() {
    return {.application = application_,
            .statusBar = statusBar_.bar(),
            .settings = settings_,
            .localization = localization_,
            .notificationCenter = notificationCenter_,
            .dispatcher = dispatcher_,
            .model = model_,
            .makeDetailWindow = desktop::makeWindowFactory([this](QWidget& window) {
                fillDetailWindow(window, detailContext(panels_.context(), machine_, bluetooth_, dispatcher_));
            }),
            .makePopover = desktop::makePopoverFactory(),
            .makePopoverContent = [this] { return panels_.makePopoverContent(); },
            .makePreviewContent =
                [this](MenuBarModule module) { return makePreviewContent(module, panels_.context()); },
            .pointerPosition = pointer,
            .evaluateAlerts = [this](const StatsSnapshot& snapshot) { alerts_.evaluate(snapshot); },
            .hotKeys = &hotKeys_,
            .checkForUpdatesIfDue = [this] { updates_.checkIfNeeded(); },
            .saveUnsavedHistory = [this] { records_.history().save(); },
            .returnFreedMemory = returnFreedMemory};
}

desktop::HotKeyBinder Program::hotKeyBinder() const {
    const auto means = desktop::hotKeyMeans(QGuiApplication::platformName(), processEnvironment);
    const auto description =
        localization_.t({.cs = "Otevřít nebo zavřít panel", .en = "Open or close the panel"});
    return desktop::hotKeyBinder(means, QDBusConnection::sessionBus(),
                                 {.applicationID = QString::fromLatin1(applicationIdentifier),
                                  .description = QString::fromStdString(description)});
}

void Program::answer(desktop::SessionService& session) {
    session.setMethod(QStringLiteral("TogglePopover"), [this] { delegate_->togglePopover(); });
    session.setMethod(QString::fromLatin1(openPopoverMethod), [this] { delegate_->reopen(); });
    session.setMethod(QStringLiteral("OpenDetailWindow"), [this] { delegate_->openDetailWindow(); });
}

void Program::preferencesChanged() {
    statusBar_.bar().wishChanged();
}

// Another instance, or the user with an editor: nobody has announced which settings are now others.
void Program::preferencesChangedElsewhere() {
    if (!preferences_.reloadIfChanged()) return;
    followLanguage();
    model_->restartTimer();
    notificationCenter_.post(menuBarStyleChanged);
}

void Program::followLanguage() {
    const auto stored = appLanguage(preferenceString(preferences_, keys::appLanguage));
    if (stored && *stored != localization_.language()) localization_.setLanguage(*stored);
}

} // namespace tarvo
