#include "program.h"

#include "detail.h"
#include "localization/app_language.h"
#include "platform/build_options.h"
#include "platform/desktop/desktop_window.h"
#include "platform/desktop/popover/pointer_position.h"
#include "platform/posix/freed_memory.h"
#include "readers/wifi_info.h"

#include <utility>

namespace tarvo {

namespace {

/// How long the end of the program waits for background work.
constexpr std::chrono::milliseconds finishLimit{1500};

/// How long a process is given to end before the lists are read anew.
constexpr std::chrono::milliseconds endOfProcess{700};

/// A recorded machine has no network.
std::string manifestAddress(const ProgramOptions& options) {
    return options.root.empty() ? std::string(build_options::updateManifestAddress) : std::string();
}

std::optional<Point> pointer() {
    const auto position = desktop::pointerPosition();
    if (!position) return std::nullopt;
    return Point{static_cast<double>(position->x()), static_cast<double>(position->y())};
}

} // namespace

Program::Program(Launch& launched, const ProgramOptions& options)
    : application_(launched.application()),
      platform_(makePlatform(
          {.options = options, .application = application_, .clock = clock_, .dispatcher = dispatcher_})),
      preferences_(*platform_->user().preferences), settings_(preferences_), sharedSettings_(settings_),
      localization_(preferences_, platform_->user().languageCode()), sharedLocalization_(localization_),
      machine_(platform_->machineOptions(), clock_, dispatcher_), sharedDemand_(machine_.processDemand()),
      bluetooth_(platform_->bluetooth()), records_(platform_->user().dataFolder, clock_),
      alerts_({.notifications = platform_->notifications(),
               .log = []() -> AlertLogStore& { return AlertLogStore::shared(); },
               .settings = settings_,
               .localization = localization_,
               .clock = clock_}),
      updates_({.preferences = preferences_,
                .https = platform_->https(),
                .clock = clock_,
                .dispatcher = dispatcher_,
                .manifestAddress = manifestAddress(options),
                .currentVersion = std::string(build_options::version)}),
      sharedUpdates_(updates_),
      model_(StatsModel::make(settings_, clock_, dispatcher_, machine_.readers(), &records_.history())),
      actions_(actionServices()), statusBar_(platform_->statusBar()),
      hotKeys_(platform_->hotKeys(hotKeyDescription())), panels_(panelServices()),
      delegate_(std::make_shared<AppDelegate>(appServices())) {
    launched.answer(outsideRequests());
    platform_->start(platformEvents());
}

Program::~Program() {
    platform_->stop();
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

PanelServices Program::panelServices() {
    return {.model = *model_,
            .settings = settings_,
            .localization = localization_,
            .notifications = notificationCenter_,
            .history = records_.history(),
            .updates = updates_,
            .family = platform_->family(),
            .applicationIcons = platform_->applicationIcons(),
            .bluetoothBattery = &bluetooth_.batteryMonitor(),
            .openDetailWindow = [this] { delegate_->openDetailWindow(); },
            .quit = [this] { application_.terminate(); },
            .complete = [this](ui::PanelContext& context) { completePanels(context); }};
}

ActionServices Program::actionServices() {
    return {.settings = settings_,
            .localization = localization_,
            .dispatcher = dispatcher_,
            .processes = machine_.processControl(),
            .desktop = platform_->desktopActions(),
            .automations = platform_->automations(),
            .automationPlace = platform_->automationPlace(),
            .refreshProcesses = [this] { processWasAskedToEnd(); }};
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
    context.launchesAtLogin = [this] { return platform_->launchesAtLogin(); };
    context.setLaunchAtLogin = [this](bool launches) { platform_->setLaunchAtLogin(launches); };
    context.askForNetworkName = [this] { WiFiInfo(machine_.wifi()).requestPermission(); };
    context.hotKeyText = [this] { return localization_.t(platform_->hotKeyText()); };
}

AppServices Program::appServices() {
    return {.application = application_,
            .statusBar = statusBar_,
            .settings = settings_,
            .localization = localization_,
            .notificationCenter = notificationCenter_,
            .dispatcher = dispatcher_,
            .model = model_,
            .makeDetailWindow = desktop::makeWindowFactory([this](QWidget& window) {
                platform_->prepareDetailWindow(window);
                fillDetailWindow(window, detailContext(panels_.context(), machine_, bluetooth_, dispatcher_));
            }),
            .makePopover = platform_->popovers(),
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

std::string Program::hotKeyDescription() const {
    return localization_.t({.cs = "Otevřít nebo zavřít panel", .en = "Open or close the panel"});
}

OutsideRequests Program::outsideRequests() {
    return {.togglePopover = [this] { delegate_->togglePopover(); },
            .openPopover = [this] { delegate_->reopen(); },
            .openDetailWindow = [this] { delegate_->openDetailWindow(); }};
}

PlatformEvents Program::platformEvents() {
    return {.statusBarChanged = [this] { notificationCenter_.post(menuBarStyleChanged); },
            .hotKeyChanged = [this] { notificationCenter_.post(ui::hotKeyStateChanged); },
            .preferencesChanged = [this] { preferencesChangedElsewhere(); },
            .willTerminate = [this] { delegate_->applicationWillTerminate(); }};
}

// Nobody has announced which settings are now others.
void Program::preferencesChangedElsewhere() {
    followLanguage();
    model_->restartTimer();
    notificationCenter_.post(menuBarStyleChanged);
}

void Program::followLanguage() {
    const auto stored = appLanguage(preferenceString(preferences_, keys::appLanguage));
    if (stored && *stored != localization_.language()) localization_.setLanguage(*stored);
}

} // namespace tarvo
