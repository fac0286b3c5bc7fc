#pragma once

#include "platform/child_processes.h"
#include "platform/desktop_actions.h"
#include "platform/dispatcher.h"
#include "platform/linux/quick_action_means.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// The quick actions of a Linux desktop, carried out by its own tools on a background queue.
class LinuxDesktopActions : public DesktopActions {
public:
    /// Absolute path of a tool in PATH; absent when it is not installed. Any thread.
    using ToolLookup = std::function<std::optional<std::string>(std::string_view tool)>;
    /// Empties the trash without a tool, where there is none or it failed; a failure's words, absent on
    /// success. Any thread.
    using EmptyTrash = std::function<std::optional<std::string>()>;

    LinuxDesktopActions(DesktopEnvironment environment, std::shared_ptr<ChildProcesses> processes,
                        Dispatcher& dispatcher, ToolLookup lookup, EmptyTrash emptyTrash);

    SystemFamily family() const override { return SystemFamily::other; }
    bool canDo(QuickAction action) const override;
    void perform(QuickAction action, Done done) override;
    bool hasAutomationSettings() const override { return false; }
    void openAutomationSettings() override {}

private:
    /// The means whose tools are installed.
    std::vector<ActionMeans> available(QuickAction action) const;

    DesktopEnvironment environment_;
    std::shared_ptr<ChildProcesses> processes_;
    Dispatcher& dispatcher_;
    ToolLookup lookup_;
    EmptyTrash emptyTrash_;
};

/// Looks a tool up in a colon list of folders, as PATH is.
std::optional<std::string> toolInPath(std::string_view tool, std::string_view path);

} // namespace tarvo::linux_platform
