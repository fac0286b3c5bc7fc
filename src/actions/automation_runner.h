#pragma once

#include "actions/shortcuts_integration.h"
#include "platform/dialogs.h"
#include "platform/dispatcher.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarvo {

/// Lists and runs the user's automations in the background, and tells of a run that failed. Main thread only;
/// nothing here waits. Outlives the event loop that its completions run in.
class AutomationRunner {
public:
    using Listed = std::function<void(std::vector<std::string> names)>;

    AutomationRunner(std::shared_ptr<Automations> automations, Dispatcher& dispatcher, Dialogs& dialogs,
                     LocalizationManager& localization);

    SystemFamily family() const { return family_; }
    /// Hands over the names in the platform's order, later.
    void list(Listed listed);
    /// Success is silent. Runs of the same automation may overlap.
    void run(const std::string& name);

private:
    void showFailure(const AutomationFailure& failure);

    ShortcutsIntegration shortcuts_;
    SystemFamily family_;
    Dispatcher& dispatcher_;
    Dialogs& dialogs_;
    LocalizationManager& localization_;
};

} // namespace tarvo
