#pragma once

#include "platform/automations.h"
#include "platform/dispatcher.h"
#include "platform/linux/linux_desktop_actions.h"
#include "platform/posix/environment.h"

#include <memory>
#include <string>

namespace tarvo {

/// What this desktop can be asked to do by one click. `root` is the folder of a recorded machine, whose
/// volumes hold the trash; empty for this one. The dispatcher outlives it.
linux_platform::LinuxDesktopActions linuxDesktopActions(const std::string& root, Dispatcher& dispatcher,
                                                        const Environment& environment);

/// The user's automations, which are programs in a folder.
std::shared_ptr<Automations> linuxAutomations(const Environment& environment);
/// That folder as it is shown to people; empty when the user has no home: then there are no automations.
std::string linuxAutomationPlace(const Environment& environment);

} // namespace tarvo
