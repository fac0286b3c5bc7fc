#pragma once

#include <QIcon>

#include <optional>
#include <string>

namespace tarvo::desktop {

/// The icon of that name in the desktop's icon theme, or the picture at that absolute path. Absent when there
/// is none.
std::optional<QIcon> themeIcon(const std::string& nameOrPath);

} // namespace tarvo::desktop
