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
#include "localization/localization_manager.h"
#include "menubar/app_delegate.h"
#include "panels.h"
#include "platform/desktop/appearance/portal_color_scheme.h"
#include "platform/desktop/desktop_notifications.h"
#include "platform/desktop/desktop_status_bar.h"
#include "platform/desktop/hot_key/desktop_hot_keys.h"
#include "platform/desktop/preference_file_watcher.h"
#include "platform/desktop/qt_application.h"
#include "platform/desktop/qt_dispatcher.h"
#include "platform/desktop/session_end.h"
#include "platform/desktop/session_service.h"
#include "platform/desktop/symbols/symbol_images.h"
#include "platform/desktop/termination_signals.h"
#include "platform/linux/autostart.h"
#include "platform/linux/preference_file.h"
#include "platform/posix/https_helper_client.h"
#include "platform/posix/posix_child_processes.h"
#include "platform/posix/system_clock.h"
#include "stored_records.h"
#include "update/update_checker.h"

#include <memory>

namespace tarvo {

/// The method that a second instance calls in the first one.
inline constexpr const char* openPopoverMethod = "OpenPopover";

/// Everything the desktop program is made of, in the order in which it is made. One object; main thread only.
class Program {
public:
    /// The application and the service outlive the program; it answers the methods of the service.
    Program(desktop::QtApplication& application, desktop::SessionService& session,
            const ProgramOptions& options);

    /// Launches, runs until the user, the session or a signal ends it, and writes what is not saved. The exit
    /// status.
    int run();
    /// False when background work hangs: then the process is to end without destroying the program.
    bool finish();

private:
    desktop::DesktopStatusBar::Needs statusBarNeeds();
    PanelServices panelServices(const ProgramOptions& options);
    ActionServices actionServices(const ProgramOptions& options);
    void processWasAskedToEnd();
    void completePanels(ui::PanelContext& context);
    AppServices appServices();
    desktop::HotKeyBinder hotKeyBinder() const;
    void answer(desktop::SessionService& session);
    void preferencesChanged();
    void preferencesChangedElsewhere();
    void followLanguage();

    desktop::QtApplication& application_;
    SystemClock clock_;
    desktop::QtDispatcher dispatcher_;
    linux_platform::PreferenceFile preferences_;
    Settings settings_;
    SharedInstance<Settings> sharedSettings_;
    NotificationCenter notificationCenter_;
    LocalizationManager localization_;
    SharedInstance<LocalizationManager> sharedLocalization_;
    POSIXChildProcesses childProcesses_;
    HTTPSHelperClient https_;
    Machine machine_;
    SharedInstance<ProcessDemandTracker> sharedDemand_;
    Bluetooth bluetooth_;
    StoredRecords records_;
    desktop::DesktopNotifications notifications_;
    AlertManager alerts_;
    UpdateChecker updates_;
    SharedInstance<UpdateChecker> sharedUpdates_;
    std::shared_ptr<StatsModel> model_;
    desktop::PortalColorScheme colorScheme_;
    desktop::SymbolImages symbols_;
    linux_platform::Autostart autostart_;
    Actions actions_;
    desktop::DesktopStatusBar statusBar_;
    desktop::DesktopHotKeys hotKeys_;
    Panels panels_;
    std::shared_ptr<AppDelegate> delegate_;
    Subscription preferenceSubscription_;
    desktop::PreferenceFileWatcher preferenceWatcher_;
    desktop::TerminationSignals signals_;
    desktop::SessionEnd sessionEnd_;
};

} // namespace tarvo
