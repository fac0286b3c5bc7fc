#pragma once

#include "actions/automation_runner.h"
#include "actions/quick_actions.h"
#include "core/settings.h"
#include "platform/desktop/qt_dialogs.h"
#include "ui/cards/automations_context.h"
#include "ui/pages/panel_context.h"

#include <functional>
#include <memory>
#include <string>

namespace tarvo {

/// What the actions are wired to; the references outlive them.
struct ActionServices {
    Settings& settings;
    LocalizationManager& localization;
    Dispatcher& dispatcher;
    ProcessControl& processes;
    DesktopActions& desktop;
    std::shared_ptr<Automations> automations;
    std::string automationPlace;            ///< as it is shown to people; empty: it is not told
    std::function<void()> refreshProcesses; ///< asks the model for fresh process lists now
};

/// The one-click actions and the automations of the desktop program with the dialogs that they show. Main
/// thread only.
class Actions {
public:
    explicit Actions(const ActionServices& services);

    /// Puts the cards of the actions and automations into a panel, and the question before a process ends.
    /// This outlives the panel.
    void complete(ui::PanelContext& panel);

private:
    desktop::QtDialogs dialogs_;
    QuickActions quickActions_;
    AutomationRunner automations_;
    ui::AutomationsContext automationsContext_;
};

} // namespace tarvo
