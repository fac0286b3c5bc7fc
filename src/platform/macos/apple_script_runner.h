#pragma once

#include "platform/apple_scripts.h"

namespace tarvo::macos_platform {

/// AppleScript inside the program. The system may ask the user first whether this application may control the
/// one that the script is for.
class AppleScriptRunner : public AppleScripts {
public:
    ScriptOutcome run(const std::string& source) override;
};

} // namespace tarvo::macos_platform
