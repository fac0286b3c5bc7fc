#include "actions/apple_script.h"

namespace tarvo {

std::optional<std::string> scriptErrorText(const ScriptOutcome& outcome) {
    if (!outcome.compiled) return "Neplatný AppleScript.";
    if (!outcome.failed) return std::nullopt;
    if (outcome.message) return outcome.message;
    return "Neznámá chyba (" + outcome.errorDescription + ")).";
}

std::string runShortcutSource(const std::string& name) {
    std::string source = "tell application \"Shortcuts Events\" to run shortcut \"";
    for (const char character : name) {
        if (character == '"') source += '\\';
        source += character;
    }
    return source + '"';
}

} // namespace tarvo
