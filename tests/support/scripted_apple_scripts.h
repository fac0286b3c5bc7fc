#pragma once

#include "platform/apple_scripts.h"

#include <string>
#include <vector>

namespace tarvo {

/// Scripts that end as the test says.
class ScriptedAppleScripts : public AppleScripts {
public:
    ScriptOutcome run(const std::string& source) override {
        sources.push_back(source);
        return outcome;
    }

    ScriptOutcome outcome;
    std::vector<std::string> sources;
};

} // namespace tarvo
