#pragma once

#include "platform/child_processes.h"

#include <map>
#include <mutex>
#include <utility>

namespace tarvo {

/// Tools that write what the test says; a tool without an entry cannot be started.
class ScriptedChildProcesses : public ChildProcesses {
public:
    std::optional<ChildProcessResult> run(const ChildProcessRequest& request) override {
        const std::lock_guard lock(mutex_);
        runs.emplace_back(request.executable, request.arguments);
        requests.push_back(request);
        if (const auto found = results.find(request.executable); found != results.end()) return found->second;
        const auto found = outputs.find(request.executable);
        if (found == outputs.end()) return std::nullopt;
        return ChildProcessResult{.output = found->second, .exitStatus = 0};
    }

    std::map<std::string, std::string> outputs;        ///< by executable: tools that end well
    std::map<std::string, ChildProcessResult> results; ///< by executable: tools of which more matters
    std::vector<std::pair<std::string, std::vector<std::string>>> runs;
    std::vector<ChildProcessRequest> requests;

private:
    std::mutex mutex_;
};

} // namespace tarvo
