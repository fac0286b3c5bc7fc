#include "actions/quick_actions.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tarvo {
namespace {

struct Row {
    QuickAction action;
    std::string_view icon;
    LKey label;          ///< where the system is the one that the names are from
    LKey labelElsewhere; ///< on other systems
    ActionColor color;
    bool reportsFailure;
};

const std::array<Row, 6>& rows() {
    static const std::array<Row, 6> table = {{
        {QuickAction::emptyTrash, "trash.fill", {"Koš", "Trash"}, {"Koš", "Trash"}, ActionColor::red, true},
        {QuickAction::restartFileManager,
         "arrow.clockwise",
         {"Finder", "Finder"},
         {"Soubory", "Files"},
         ActionColor::blue,
         false},
        {QuickAction::restartDock,
         "arrow.clockwise",
         {"Dock", "Dock"},
         {"Panel", "Panel"},
         ActionColor::indigo,
         false},
        {QuickAction::sleepDisplay,
         "moon.fill",
         {"Displej", "Display"},
         {"Displej", "Display"},
         ActionColor::purple,
         false},
        {QuickAction::toggleDarkMode,
         "circle.lefthalf.filled",
         {"Tmavý režim", "Dark Mode"},
         {"Tmavý režim", "Dark Mode"},
         ActionColor::gray,
         true},
        {QuickAction::newFileManagerWindow,
         "macwindow.badge.plus",
         {"Nové okno", "New Window"},
         {"Nové okno", "New Window"},
         ActionColor::teal,
         true},
    }};
    return table;
}

const Row& rowOf(QuickAction action) {
    return *std::find_if(rows().begin(), rows().end(), [&](const Row& row) { return row.action == action; });
}

constexpr std::size_t firstButton = 0;

} // namespace

QuickActions::QuickActions(DesktopActions& desktop, Dialogs& dialogs, ProcessControl& processes,
                           LocalizationManager& localization, std::function<void()> refreshProcesses)
    : desktop_(desktop), dialogs_(dialogs), processes_(processes), localization_(localization),
      refreshProcesses_(std::move(refreshProcesses)) {}

std::vector<QuickActionTile> QuickActions::tiles() const {
    std::vector<QuickActionTile> shown;
    for (const auto& row : rows()) {
        if (!desktop_.canDo(row.action)) continue;
        const auto& label = desktop_.family() == SystemFamily::macOS ? row.label : row.labelElsewhere;
        shown.push_back({row.action, row.icon, localization_.t(label), row.color});
    }
    return shown;
}

void QuickActions::trigger(QuickAction action) {
    if (action == QuickAction::emptyTrash) {
        confirmEmptyTrash();
    } else {
        perform(action);
    }
}

void QuickActions::confirmEmptyTrash() {
    const Alert question{
        localization_.t({"Vyprázdnit koš?", "Empty the Trash?"}),
        localization_.t({"Tato akce je nevratná — soubory v koši budou trvale smazány.",
                         "This action is irreversible — files in the Trash will be permanently deleted."}),
        {localization_.t({"Vyprázdnit", "Empty"}), localization_.t({"Zrušit", "Cancel"})}};
    dialogs_.show(question, [this](std::size_t button) {
        if (button == firstButton) perform(QuickAction::emptyTrash);
    });
}

void QuickActions::confirmKill(const ProcInfo& process) {
    const Alert question{localization_.t({"Ukončit proces?", "Quit this process?"}),
                         fmt::format("{} (PID {})", process.name, process.pid),
                         {localization_.t({"Ukončit", "Quit"}), localization_.t({"Zrušit", "Cancel"})}};
    // Held from the question on: while it waits for its answer the number may go to another process.
    dialogs_.show(question, [this, terminate = processes_.terminator(process.pid)](std::size_t button) {
        if (button != firstButton) return;
        terminate();
        refreshProcesses_();
    });
}

void QuickActions::perform(QuickAction action) {
    desktop_.perform(action,
                     [this, reports = rowOf(action).reportsFailure](std::optional<FailureText> failure) {
                         if (failure && reports) showFailure(*failure);
                     });
}

void QuickActions::showFailure(const FailureText& reason) {
    Alert alert{
        localization_.t({"Akce se nezdařila", "Action Failed"}), localization_.t({reason.cs, reason.en}), {}};
    const bool offersSettings = desktop_.hasAutomationSettings();
    if (offersSettings) alert.buttons.push_back(localization_.t({"Otevřít nastavení", "Open Settings"}));
    alert.buttons.push_back(localization_.t({"Zrušit", "Cancel"}));
    dialogs_.show(alert, [this, offersSettings](std::size_t button) {
        if (offersSettings && button == firstButton) desktop_.openAutomationSettings();
    });
}

} // namespace tarvo
