#pragma once

#include "platform/desktop_actions.h"
#include "platform/linux/desktop_environment.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// A tool by the name it has in PATH, with its arguments. No shell is involved.
struct ToolCommand {
    std::string tool;
    std::vector<std::string> arguments;
    /// It may be or become a program that stays: then it is not waited for, and speaks the user's language.
    bool staysOpen = false;
    bool operator==(const ToolCommand&) const = default;
};

/// One way to carry out an action.
struct ActionMeans {
    /// Tools that must be there for it.
    std::vector<std::string> needs;
    /// At least one of these must be there too, unless the list is empty.
    std::vector<std::string> needsOneOf;
    /// Asked first, where what is to be done depends on the present state.
    std::optional<ToolCommand> question;
    /// What to run, one after the other, given the answer (empty without a question).
    /// Nothing to run means that it cannot be done.
    std::function<std::vector<ToolCommand>(std::string_view answer)> commands;
};

/// Asks the user's own processes of that name to end.
ToolCommand endCommand(const std::string& name, unsigned userId);

/// The ways in which this desktop can carry out an action, best first.
std::vector<ActionMeans> meansFor(QuickAction action, const DesktopEnvironment& environment);

} // namespace tarvo::linux_platform
