#include "program.h"

#include "localization/app_language.h"
#include "platform/desktop/desktop_window.h"
#include "platform/linux/process_name.h"
#include "platform/linux/system_language.h"
#include "platform/linux/xdg_directories.h"
#include "platform/posix/environment.h"

#include <string>

namespace tarvo {

namespace {

/// How long the end of the program waits for background work.
constexpr std::chrono::milliseconds finishLimit{1500};

std::string preferencePath() {
    return linux_platform::preferenceFilePath(processEnvironment).value_or(std::string());
}

} // namespace

Program::Program(desktop::QtApplication& application, const ProgramOptions& options)
    : application_(application), preferences_(preferencePath(), clock_), settings_(preferences_),
      sharedSettings_(settings_),
      localization_(preferences_, linux_platform::systemLanguageCode(processEnvironment)),
      sharedLocalization_(localization_),
      machine_({.root = options.root, .https = nullptr}, clock_, dispatcher_),
      model_(StatsModel::make(settings_, clock_, dispatcher_, machine_.readers(), nullptr)),
      statusBar_(statusBarNeeds()), delegate_(std::make_shared<AppDelegate>(appServices())),
      preferenceSubscription_(preferences_.observe([this] { preferencesChanged(); })),
      preferenceWatcher_(preferences_.path(), [this] { preferencesChangedElsewhere(); }),
      signals_([this] { application_.terminate(); }) {
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

AppServices Program::appServices() {
    return {.application = application_,
            .statusBar = statusBar_.bar(),
            .settings = settings_,
            .localization = localization_,
            .notificationCenter = notificationCenter_,
            .dispatcher = dispatcher_,
            .model = model_,
            .makeDetailWindow = desktop::makeWindowFactory({}),
            .makePopover = {},
            .makePopoverContent = {},
            .makePreviewContent = {},
            .pointerPosition = {},
            .evaluateAlerts = {},
            .registerHotKey = {},
            .checkForUpdatesIfDue = {},
            .saveUnsavedHistory = {}};
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
