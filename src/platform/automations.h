#pragma once

#include "platform/failure_text.h"
#include "platform/system_family.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// How a run of an automation ended.
struct AutomationOutcome {
    bool succeeded = true;
    std::optional<FailureText> message; ///< the failure's own words, where it has any
};

/// The user's own automations. Any thread; both operations wait.
class Automations {
public:
    virtual ~Automations() = default;
    virtual SystemFamily family() const = 0;
    /// Names in the platform's order; empty when they cannot be listed.
    virtual std::vector<std::string> list() = 0;
    /// Runs an automation to its end, however long that takes.
    virtual AutomationOutcome run(const std::string& name) = 0;
};

} // namespace tarvo
