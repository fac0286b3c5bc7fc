#pragma once

#include <optional>
#include <string>

namespace tarvo {

/// What running a script source came to, before any wording.
struct ScriptOutcome {
    bool compiled = true;
    bool failed = false;
    std::optional<std::string> message; ///< the error's own message, where it has one
    std::string errorDescription;       ///< printed form of the whole error
};

/// The text that a failed script is reported with; absent on success. The two texts of its own are Czech in
/// both languages.
std::optional<std::string> scriptErrorText(const ScriptOutcome& outcome);

/// Source that asks the scripting agent to run an automation. Double quotes in the name are escaped, nothing
/// else.
std::string runShortcutSource(const std::string& name);

} // namespace tarvo
