#include "platform/linux/bus_tool.h"

namespace tarvo::linux_platform {

namespace {

constexpr std::chrono::seconds longestWait{2};

} // namespace

std::optional<std::string> BusTool::call(Bus bus, const Object& object, const char* method,
                                         const std::string& signature,
                                         const std::vector<std::string>& arguments) {
    std::vector<std::string> rest{method};
    if (!signature.empty()) rest.push_back(signature);
    rest.insert(rest.end(), arguments.begin(), arguments.end());
    return run(bus, "call", object, rest);
}

std::optional<std::string> BusTool::properties(Bus bus, const Object& object,
                                               const std::vector<std::string>& names) {
    return run(bus, "get-property", object, names);
}

std::optional<std::string> BusTool::run(Bus bus, const char* verb, const Object& object,
                                        const std::vector<std::string>& rest) {
    std::vector<std::string> arguments{bus == Bus::system ? "--system" : "--user", verb, object.service,
                                       object.path, object.interface};
    arguments.insert(arguments.end(), rest.begin(), rest.end());
    auto result = tools_.run(
        {.executable = "/usr/bin/busctl", .arguments = std::move(arguments), .timeLimit = longestWait});
    if (!result || result->exitStatus != 0) return std::nullopt;
    return std::move(result->output);
}

} // namespace tarvo::linux_platform
