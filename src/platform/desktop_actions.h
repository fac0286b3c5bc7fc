#pragma once

#include "platform/failure_text.h"
#include "platform/system_family.h"

#include <functional>
#include <optional>

namespace tarvo {

enum class QuickAction {
    emptyTrash,
    restartFileManager,
    restartDock,
    sleepDisplay,
    toggleDarkMode,
    newFileManagerWindow,
};

/// What a desktop can be asked to do by one click. Main thread only; nothing here waits, except for scripts
/// where they run inside the program.
class DesktopActions {
public:
    /// Absent on success. Runs once, on the main thread.
    using Done = std::function<void(std::optional<FailureText> failure)>;

    virtual ~DesktopActions() = default;
    virtual SystemFamily family() const = 0;
    /// False for an action that this desktop has no means for.
    virtual bool canDo(QuickAction action) const = 0;
    virtual void perform(QuickAction action, Done done) = 0;
    /// Whether the system has a page of privacy settings that a failed action may be due to.
    virtual bool hasAutomationSettings() const = 0;
    virtual void openAutomationSettings() = 0;
};

} // namespace tarvo
