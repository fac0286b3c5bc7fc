#include "platform/linux/running_program.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

std::string processFolder(const Root& root, std::string_view pid) {
    return root.path("/proc/").append(pid);
}

/// The arguments stand one after the other, each with a null byte behind it.
std::vector<std::string> splitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    while (!text.empty()) {
        const auto end = std::min(text.find('\0'), text.size());
        arguments.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return arguments;
}

std::int32_t parentOf(const std::string& folder) {
    constexpr std::string_view key = "\nPPid:\t";
    const auto status = readFile(folder + "/status").value_or("");
    const auto found = status.find(key);
    if (found == std::string::npos) return 0;
    const auto start = found + key.size();
    return parseNumber<std::int32_t>(std::string_view(status).substr(start, status.find('\n', start) - start))
        .value_or(0);
}

bool belongsToUser(const std::string& folder) {
    struct stat facts {};
    return ::stat(folder.c_str(), &facts) == 0 && facts.st_uid == ::getuid();
}

} // namespace

bool RunningProgram::hasArgument(std::string_view argument) const {
    return std::find(arguments.begin(), arguments.end(), argument) != arguments.end();
}

std::vector<RunningProgram> findPrograms(const Root& root, const std::vector<std::string_view>& names) {
    std::vector<RunningProgram> programs;
    for (const auto& entry : folderEntries(root.path("/proc"))) {
        const auto pid = parseNumber<std::int32_t>(entry);
        if (!pid) continue;
        const auto folder = processFolder(root, entry);
        auto name = readAttribute(folder + "/comm").value_or("");
        if (std::find(names.begin(), names.end(), name) == names.end()) continue;
        programs.push_back({*pid, parentOf(folder), std::move(name),
                            splitArguments(readFile(folder + "/cmdline").value_or("")),
                            belongsToUser(folder)});
    }
    return programs;
}

bool isRunning(const Root& root, std::int32_t pid, std::string_view name) {
    return readAttribute(processFolder(root, std::to_string(pid)) + "/comm") == std::string(name);
}

} // namespace tarvo::linux_platform
