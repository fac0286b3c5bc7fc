#pragma once

#include "actions.h"
#include "bluetooth.h"
#include "command_line.h"
#include "composition/machine.h"
#include "core/notification_center.h"
#include "core/settings.h"
#include "core/shared_instance.h"
#include "core/stats_model.h"
#include "history/alert_manager.h"
#include "launch.h"
#include "localization/localization_manager.h"
#include "menubar/app_delegate.h"
#include "panels.h"
#include "platform.h"
#include "platform/desktop/qt_dispatcher.h"
#include "platform/posix/system_clock.h"
#include "stored_records.h"
#include "update/update_checker.h"

#include <memory>
#include <string>

namespace tarvo {

/// Everything the desktop program is made of, in the order in which it is made. One object; main thread only.
class Program {
public:
    /// What was launched outlives the program, which answers the requests that reach it.
    Program(Launch& launched, const ProgramOptions& options);
    ~Program();

    /// Launches, runs until the user, the session or a signal ends it, and writes what is not saved. The exit
    /// status.
    int run();
    /// False when background work hangs: then the process is to end without destroying the program.
    bool finish();

private:
    PanelServices panelServices();
    ActionServices actionServices();
    void processWasAskedToEnd();
    void completePanels(ui::PanelContext& context);
    AppServices appServices();
    std::string hotKeyDescription() const;
    OutsideRequests outsideRequests();
    PlatformEvents platformEvents();
    void preferencesChangedElsewhere();
    void followLanguage();

    desktop::QtApplication& application_;
    SystemClock clock_;
    desktop::QtDispatcher dispatcher_;
    std::unique_ptr<Platform> platform_;
    PreferenceStore& preferences_;
    Settings settings_;
    SharedInstance<Settings> sharedSettings_;
    NotificationCenter notificationCenter_;
    LocalizationManager localization_;
    SharedInstance<LocalizationManager> sharedLocalization_;
    Machine machine_;
    SharedInstance<ProcessDemandTracker> sharedDemand_;
    Bluetooth bluetooth_;
    StoredRecords records_;
    AlertManager alerts_;
    UpdateChecker updates_;
    SharedInstance<UpdateChecker> sharedUpdates_;
    std::shared_ptr<StatsModel> model_;
    Actions actions_;
    StatusBar& statusBar_;
    HotKeys& hotKeys_;
    Panels panels_;
    std::shared_ptr<AppDelegate> delegate_;
};

} // namespace tarvo
