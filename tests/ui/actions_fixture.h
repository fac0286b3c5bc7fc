#pragma once

#include "actions/automation_runner.h"
#include "actions/quick_actions.h"
#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/recording_process_control.h"
#include "support/scripted_automations.h"
#include "support/scripted_desktop_actions.h"
#include "support/scripted_dialogs.h"
#include "ui/cards/automations_context.h"

#include <QApplication>

#include <memory>

namespace tarvo::ui {

/// What the cards of actions and automations need, made of doubles. A desktop that is not a Mac.
struct ActionParts {
    ActionParts() {
        desktop.systemFamily = SystemFamily::other;
        automations->systemFamily = SystemFamily::other;
    }

    // What was asked for runs in one turn of the loop; new widgets are laid out and shown in the next.
    static void settle() {
        QApplication::processEvents();
        QApplication::processEvents();
    }

    MemoryPreferenceStore store;
    Settings settings{store};
    LocalizationManager loc{store, "en"};
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    ScriptedDialogs dialogs;
    ScriptedDesktopActions desktop;
    RecordingProcessControl processes;
    QuickActions actions{desktop, dialogs, processes, loc, [] {}};
    std::shared_ptr<ScriptedAutomations> automations = std::make_shared<ScriptedAutomations>();
    /// Made when it is first asked for, so that a test may choose the system before.
    AutomationsContext context() {
        if (!runner) runner = std::make_unique<AutomationRunner>(automations, dispatcher, dialogs, loc);
        return {settings, loc, *runner, "~/automations"};
    }

private:
    std::unique_ptr<AutomationRunner> runner;
};

} // namespace tarvo::ui
