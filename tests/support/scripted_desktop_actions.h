#pragma once

#include "platform/desktop_actions.h"

#include <map>
#include <set>
#include <vector>

namespace tarvo {

/// A desktop that does what the test says and remembers what it was asked for.
class ScriptedDesktopActions : public DesktopActions {
public:
    SystemFamily family() const override { return systemFamily; }
    bool canDo(QuickAction action) const override { return !impossible.contains(action); }
    void perform(QuickAction action, Done done) override {
        performed.push_back(action);
        const auto failure = failures.find(action);
        done(failure == failures.end() ? std::nullopt : std::optional(failure->second));
    }
    bool hasAutomationSettings() const override { return systemFamily == SystemFamily::macOS; }
    void openAutomationSettings() override { ++settingsOpened; }

    SystemFamily systemFamily = SystemFamily::macOS;
    std::set<QuickAction> impossible;
    std::map<QuickAction, FailureText> failures;
    std::vector<QuickAction> performed;
    int settingsOpened = 0;
};

} // namespace tarvo
