#pragma once

#include "platform/child_processes.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

enum class Bus { system, user };

/// Asks a service on the message bus through busctl(1), which every system with systemd has. Waits for the
/// answer, at most two seconds: not on the main thread.
class BusTool {
public:
    struct Object {
        const char* service;
        std::string path;
        const char* interface;
    };

    explicit BusTool(ChildProcesses& tools) : tools_(tools) {}

    /// What busctl prints for the reply; absent when it could not be run or the call failed. `signature` is
    /// that of the arguments, empty for none.
    std::optional<std::string> call(Bus bus, const Object& object, const char* method,
                                    const std::string& signature = {},
                                    const std::vector<std::string>& arguments = {});
    std::optional<std::string> properties(Bus bus, const Object& object,
                                          const std::vector<std::string>& names);

private:
    std::optional<std::string> run(Bus bus, const char* verb, const Object& object,
                                   const std::vector<std::string>& rest);

    ChildProcesses& tools_;
};

} // namespace tarvo::linux_platform
