#pragma once

#include "platform/apple_scripts.h"

#include <optional>
#include <string>

namespace tarvo {

/// The text that a failed script is reported with; absent on success. The two texts of its own are Czech in
/// both languages.
std::optional<std::string> scriptErrorText(const ScriptOutcome& outcome);

/// Source that asks the scripting agent to run an automation. Double quotes in the name are escaped, nothing
/// else.
std::string runShortcutSource(const std::string& name);

} // namespace tarvo
