#include "actions/automation_runner.h"

#include <utility>

namespace tarvo {

AutomationRunner::AutomationRunner(std::shared_ptr<Automations> automations, Dispatcher& dispatcher,
                                   Dialogs& dialogs, LocalizationManager& localization)
    : shortcuts_(automations), family_(automations->family()), dispatcher_(dispatcher), dialogs_(dialogs),
      localization_(localization) {}

void AutomationRunner::list(Listed listed) {
    dispatcher_.global(QualityOfService::userInitiated,
                       [shortcuts = shortcuts_, listed = std::move(listed), &dispatcher = dispatcher_] {
                           dispatcher.async([listed, names = shortcuts.listShortcuts()] { listed(names); });
                       });
}

void AutomationRunner::run(const std::string& name) {
    dispatcher_.global(QualityOfService::userInitiated,
                       [this, shortcuts = shortcuts_, name, &dispatcher = dispatcher_] {
                           const auto failure = shortcuts.attempt(name, ShortcutsIntegration::runTimeout);
                           if (failure) dispatcher.async([this, failure] { showFailure(*failure); });
                       });
}

void AutomationRunner::showFailure(const AutomationFailure& failure) {
    dialogs_.show({localization_.t({.cs = "Akce se nezdařila", .en = "Action Failed"}),
                   failure.text(localization_.language()),
                   {}},
                  nullptr);
}

} // namespace tarvo
