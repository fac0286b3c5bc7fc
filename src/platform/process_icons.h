#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarvo {

/// Which icon belongs to a process. Main thread only; answers at once.
class ProcessIcons {
public:
    virtual ~ProcessIcons() = default;
    /// Name of the icon in the desktop's icon theme, or the absolute path of a picture. Absent when the
    /// process is gone, belongs to no application that is known yet, or that application has no icon; a later
    /// call may know more.
    virtual std::optional<std::string> iconName(std::int32_t pid) = 0;
};

} // namespace tarvo
