#pragma once

#include "core/stats_snapshot.h"
#include "localization/localization_manager.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/process_control.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

enum class ActionColor { red, blue, indigo, purple, gray, teal, yellow };

/// One tile of the card, as a person sees it.
struct QuickActionTile {
    QuickAction action;
    std::string_view icon; ///< system symbol name
    std::string label;     ///< in the current language
    ActionColor color;
};

/// The one-click actions, their confirmations and their failure reports. Main thread only.
class QuickActions {
public:
    /// `refreshProcesses` asks the model for fresh process lists now.
    QuickActions(DesktopActions& desktop, Dialogs& dialogs, ProcessControl& processes,
                 LocalizationManager& localization, std::function<void()> refreshProcesses);

    /// The tiles in the card's order, without those that this desktop cannot do.
    std::vector<QuickActionTile> tiles() const;
    /// What a click on a tile does: asks first where the action cannot be taken back.
    void trigger(QuickAction action);

    void confirmEmptyTrash();
    /// Asks, and then requests the process to end. A process that took over the number meanwhile is left
    /// alone.
    void confirmKill(const ProcInfo& process);

private:
    void perform(QuickAction action);
    void showFailure(const FailureText& reason);

    DesktopActions& desktop_;
    Dialogs& dialogs_;
    ProcessControl& processes_;
    LocalizationManager& localization_;
    std::function<void()> refreshProcesses_;
};

} // namespace tarvo
