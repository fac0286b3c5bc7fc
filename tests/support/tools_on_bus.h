#pragma once

#include "platform/posix/posix_child_processes.h"

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace tarvo {

/// Real tools, with variables of the test's own in their environment and time enough on a busy machine.
class ToolsOnBus : public ChildProcesses {
public:
    std::optional<ChildProcessResult> run(const ChildProcessRequest& request) override {
        requests.push_back(request);
        auto own = request;
        own.environment.insert(own.environment.end(), environment.begin(), environment.end());
        own.timeLimit = std::chrono::seconds(20);
        return tools_.run(own);
    }

    std::vector<std::pair<std::string, std::string>> environment;
    std::vector<ChildProcessRequest> requests; ///< as they were asked for

private:
    POSIXChildProcesses tools_;
};

} // namespace tarvo
