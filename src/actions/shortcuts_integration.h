#pragma once

#include "localization/localization_manager.h"
#include "platform/automations.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

/// Names in the text of the listing tool: one a line, kept as they are. Empty when the text is not UTF-8.
std::vector<std::string> parseShortcutNames(std::string_view text);

/// Why a run failed: in the automation's own words or, where it has none, in both languages.
struct AutomationFailure {
    std::optional<FailureText> ownWords;
    LKey otherwise;
    std::string text(AppLanguage language) const;
};

/// The user's automations: listed, and run with a limit. Any thread but the main one: both operations wait.
class ShortcutsIntegration {
public:
    static constexpr std::chrono::seconds runTimeout{20};

    explicit ShortcutsIntegration(std::shared_ptr<Automations> automations);

    std::vector<std::string> listShortcuts() const;
    /// Absent on success. An automation that runs longer than the time-out goes on, and what becomes of it is
    /// not heard of.
    std::optional<AutomationFailure> attempt(const std::string& name,
                                             std::chrono::duration<double> timeout) const;
    /// The same as a text to show the user.
    std::optional<std::string> run(const std::string& name, std::chrono::duration<double> timeout,
                                   AppLanguage language) const;

private:
    std::shared_ptr<Automations> automations_;
};

} // namespace tarvo
