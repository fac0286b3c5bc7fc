#pragma once

#include "core/notification_center.h"
#include "core/settings.h"
#include "core/stats_model.h"
#include "history/history_store.h"
#include "localization/localization_manager.h"
#include "platform/popover.h"
#include "platform/system_family.h"
#include "ui/elements/app_icon_cache.h"
#include "ui/pages/panel_context.h"
#include "update/update_checker.h"

#include <functional>
#include <memory>

namespace tarvo {

/// What the panels are wired to; all references outlive them.
struct PanelServices {
    StatsModel& model;
    Settings& settings;
    LocalizationManager& localization;
    NotificationCenter& notifications;
    HistoryStore& history;
    UpdateChecker& updates;
    SystemFamily family = SystemFamily::other;
    ui::ApplicationIconSource applicationIcons;
    BluetoothBatteryMonitor* bluetoothBattery = nullptr; ///< null: no accessory is ever known
    std::function<void()> openDetailWindow;
    std::function<void()> quit;
    /// What stands in the panels besides the readings: actions, automations, the start with the session.
    std::function<void(ui::PanelContext&)> complete = {};
};

/// Makes the content of the popovers and of the windows out of the program's objects. Main thread only.
class Panels {
public:
    explicit Panels(PanelServices services);

    std::unique_ptr<PopoverContent> makePopoverContent();
    /// What every page works with.
    ui::PanelContext context();

private:
    PanelServices services_;
    ui::AppIconCache icons_;
};

} // namespace tarvo
