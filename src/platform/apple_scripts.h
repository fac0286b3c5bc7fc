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

/// Runs AppleScript sources inside the program, on a platform that has them.
class AppleScripts {
public:
    virtual ~AppleScripts() = default;
    /// Compiles and runs the source on the calling thread, which waits for its end. Any thread.
    virtual ScriptOutcome run(const std::string& source) = 0;
};

} // namespace tarvo
