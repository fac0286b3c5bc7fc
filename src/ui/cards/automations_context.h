#pragma once

#include "actions/automation_runner.h"
#include "core/settings.h"
#include "localization/localization_manager.h"

#include <string>

namespace tarvo::ui {

/// What the cards of the user's automations work with; references outlive them.
struct AutomationsContext {
    Settings& settings;
    LocalizationManager& loc;
    AutomationRunner& runner;
    std::string place = {}; ///< where automations are kept, as it is shown to people; empty: not told
};

} // namespace tarvo::ui
