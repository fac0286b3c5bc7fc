#pragma once

#include "platform/child_processes.h"

#include <map>
#include <utility>

namespace tarvo {

/// Tools that write what the test says; a tool without an entry cannot be started.
class ScriptedChildProcesses : public ChildProcesses {
public:
    std::optional<std::string> output(const std::string& executable,
                                      const std::vector<std::string>& arguments) override {
        runs.emplace_back(executable, arguments);
        const auto position = outputs.find(executable);
        return position == outputs.end() ? std::nullopt : std::optional(position->second);
    }

    std::map<std::string, std::string> outputs; ///< by executable
    std::vector<std::pair<std::string, std::vector<std::string>>> runs;
};

} // namespace tarvo
