#include "linux/linux_actions.h"

#include "platform/linux/automation_folder.h"
#include "platform/linux/root.h"
#include "platform/linux/system_language.h"
#include "platform/linux/trash_folder.h"
#include "platform/linux/xdg_directories.h"
#include "platform/posix/posix_child_processes.h"

#include <unistd.h>

#include <string_view>

namespace tarvo {

using namespace linux_platform;

namespace {

constexpr std::string_view usualPath = "/usr/local/bin:/usr/bin:/bin";

LinuxDesktopActions::ToolLookup toolLookup(const Environment& environment) {
    return [path = environment("PATH").value_or(std::string(usualPath))](std::string_view tool) {
        return toolInPath(tool, path);
    };
}

DesktopEnvironment desktopOf(const Environment& environment) {
    return desktopEnvironment([&](const char* name) { return environment(name); }, ::geteuid());
}

LinuxDesktopActions::EmptyTrash trashOf(const std::string& machine, const Environment& environment) {
    return [root = Root(machine), dataFolder = dataHome(environment)] {
        return emptyTrashFolders(
            trashFolders(dataFolder.value_or(std::string()), trashVolumes(root), ::geteuid()));
    };
}

std::string automationFolder(const Environment& environment) {
    const auto folder = applicationDataFolder(environment);
    return folder ? *folder + "/automations" : std::string();
}

/// A path as people write it.
std::string belowHome(std::string path, const Environment& environment) {
    const auto home = homeDirectory(environment);
    return home && path.starts_with(*home + "/") ? path.replace(0, home->size(), "~") : path;
}

} // namespace

LinuxDesktopActions linuxDesktopActions(const std::string& root, Dispatcher& dispatcher,
                                        const Environment& environment) {
    return LinuxDesktopActions(desktopOf(environment), std::make_shared<POSIXChildProcesses>(), dispatcher,
                               toolLookup(environment), trashOf(root, environment));
}

std::shared_ptr<Automations> linuxAutomations(const Environment& environment) {
    return std::make_shared<AutomationFolder>(
        automationFolder(environment), homeDirectory(environment).value_or("/"),
        systemLanguageCode(environment).value_or(std::string()), std::make_shared<POSIXChildProcesses>(),
        toolLookup(environment));
}

std::string linuxAutomationPlace(const Environment& environment) {
    return belowHome(automationFolder(environment), environment);
}

} // namespace tarvo
