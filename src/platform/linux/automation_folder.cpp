#include "platform/linux/automation_folder.h"

#include "platform/linux/automation_entry.h"
#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"
#include "platform/utf8.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tarvo::linux_platform {
namespace {

/// Whoever can write into the folder can have a program run by a click, so it must be the user's alone.
bool isUsersOwn(const std::string& folder) {
    struct stat entry {};
    return ::lstat(folder.c_str(), &entry) == 0 && S_ISDIR(entry.st_mode) && entry.st_uid == ::geteuid() &&
           (entry.st_mode & S_IWOTH) == 0;
}

bool isUsableName(const std::string& name) {
    return isUTF8(name) && name.find('\n') == std::string::npos;
}

std::string lastNonEmptyLine(std::string_view text) {
    std::string last;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        if (end > 0) last = std::string(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return last;
}

} // namespace

AutomationFolder::AutomationFolder(std::string folder, std::string home, std::string language,
                                   std::shared_ptr<ChildProcesses> processes, ToolLookup lookup)
    : folder_(std::move(folder)), home_(std::move(home)), language_(std::move(language)),
      processes_(std::move(processes)), lookup_(std::move(lookup)) {}

std::vector<std::string> AutomationFolder::list() {
    makeFolder();
    std::vector<std::string> names;
    for (auto& automation : automations())
        names.push_back(std::move(automation.name));
    return names;
}

// The user's alone from the start, whatever new folders are otherwise open to.
void AutomationFolder::makeFolder() const {
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(folder_).parent_path(), ignored);
    ::mkdir(folder_.c_str(), S_IRWXU);
}

AutomationOutcome AutomationFolder::run(const std::string& name) {
    const auto all = automations();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const auto& one) { return one.name == name; });
    if (found == all.end()) return {false, FailureText(name + ": nenalezeno", name + ": not found")};

    const ChildProcessRequest request{.executable = found->command.front(),
                                      .arguments = {found->command.begin() + 1, found->command.end()},
                                      .workingFolder = home_,
                                      .mayGoOn = true};
    const auto result = processes_->run(request);
    if (!result) return {false, FailureText(name + ": nelze spustit", name + ": could not be started")};
    if (result->exitStatus == 0) return {};
    auto said = lastNonEmptyLine(result->errorTail);
    return {false, said.empty() ? std::nullopt : std::optional<FailureText>(std::move(said))};
}

std::vector<AutomationFolder::Automation> AutomationFolder::automations() const {
    std::vector<Automation> found;
    if (!isUsersOwn(folder_)) return found;
    for (const auto& fileName : folderEntries(folder_)) {
        if (auto automation = automationAt(fileName)) found.push_back(std::move(*automation));
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.name < b.name; });
    return found;
}

std::optional<AutomationFolder::Automation>
AutomationFolder::automationAt(const std::string& fileName) const {
    const auto path = folder_ + "/" + fileName;
    struct stat entry {};
    if (::stat(path.c_str(), &entry) != 0 || !S_ISREG(entry.st_mode)) return std::nullopt;
    if (!fileName.ends_with(".desktop")) {
        if (!isUsableName(fileName) || ::access(path.c_str(), X_OK) != 0) return std::nullopt;
        return Automation{fileName, {path}};
    }
    const auto text = readFile(path);
    auto parsed = text ? parseAutomationEntry(*text, language_) : std::nullopt;
    if (!parsed || !isUsableName(parsed->name)) return std::nullopt;
    if (!parsed->command.front().starts_with('/')) {
        auto tool = lookup_(parsed->command.front());
        if (!tool) return std::nullopt;
        parsed->command.front() = std::move(*tool);
    }
    return Automation{std::move(parsed->name), std::move(parsed->command)};
}

} // namespace tarvo::linux_platform
