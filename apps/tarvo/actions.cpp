#include "actions.h"

#include "platform/linux/automation_folder.h"
#include "platform/linux/root.h"
#include "platform/linux/system_language.h"
#include "platform/linux/trash_folder.h"
#include "platform/linux/xdg_directories.h"
#include "platform/posix/posix_child_processes.h"
#include "ui/cards/automations_card.h"
#include "ui/cards/quick_actions_card.h"
#include "ui/pages/automations_settings_card.h"

#include <unistd.h>

#include <memory>
#include <optional>
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

LinuxDesktopActions::EmptyTrash trashOf(const ActionServices& services) {
    return [root = Root(services.root), dataFolder = dataHome(services.environment)] {
        return emptyTrashFolders(
            trashFolders(dataFolder.value_or(std::string()), trashVolumes(root), ::geteuid()));
    };
}

/// Empty when the user has no home: then there are no automations.
std::string automationPlace(const Environment& environment) {
    const auto folder = applicationDataFolder(environment);
    return folder ? *folder + "/automations" : std::string();
}

std::shared_ptr<Automations> automationsOf(const Environment& environment) {
    return std::make_shared<AutomationFolder>(
        automationPlace(environment), homeDirectory(environment).value_or("/"),
        systemLanguageCode(environment).value_or(std::string()), std::make_shared<POSIXChildProcesses>(),
        toolLookup(environment));
}

/// A path as people write it.
std::string belowHome(std::string path, const Environment& environment) {
    const auto home = homeDirectory(environment);
    return home && path.starts_with(*home + "/") ? path.replace(0, home->size(), "~") : path;
}

} // namespace

Actions::Actions(const ActionServices& services)
    : desktop_(desktopOf(services.environment), std::make_shared<POSIXChildProcesses>(), services.dispatcher,
               toolLookup(services.environment), trashOf(services)),
      quickActions_(desktop_, dialogs_, services.processes, services.localization, services.refreshProcesses),
      automations_(automationsOf(services.environment), services.dispatcher, dialogs_, services.localization),
      automationsContext_{services.settings, services.localization, automations_,
                          belowHome(automationPlace(services.environment), services.environment)} {}

void Actions::complete(ui::PanelContext& panel) {
    panel.confirmKill = [this](const ProcInfo& process) { quickActions_.confirmKill(process); };
    panel.makeQuickActionsCard = [this, &loc = panel.loc](QWidget* parent) {
        return new ui::QuickActionsCard(quickActions_, loc, parent);
    };
    panel.makeAutomationsCard = [this](QWidget* parent) {
        return new ui::AutomationsCard(automationsContext_, parent);
    };
    panel.makeAutomationsSettingsCard = [this](QWidget* parent) {
        return new ui::CustomAutomationsCard(automationsContext_, parent);
    };
}

} // namespace tarvo
