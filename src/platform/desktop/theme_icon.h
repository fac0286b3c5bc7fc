#pragma once

#include "platform/process_icons.h"

#include <QIcon>

#include <optional>
#include <string>

namespace tarvo::desktop {

/// The icon of that name in the desktop's icon theme, or the picture at that absolute path. Absent when there
/// is none.
std::optional<QIcon> themeIcon(const std::string& nameOrPath);

/// The icon of an application; absent when there is no such icon or its picture cannot be read.
std::optional<QIcon> applicationIcon(const ProcessIcon& icon);

} // namespace tarvo::desktop
