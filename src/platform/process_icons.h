#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace tarvo {

/// Name of an icon in the desktop's icon theme, or the absolute path of a picture.
struct NamedIcon {
    std::string nameOrPath;
    bool operator==(const NamedIcon&) const = default;
};

/// The picture itself, as the bytes of a PNG file.
struct IconPicture {
    std::string png;
    bool operator==(const IconPicture&) const = default;
};

using ProcessIcon = std::variant<NamedIcon, IconPicture>;

/// Which icon belongs to a process. Main thread only; answers at once.
class ProcessIcons {
public:
    virtual ~ProcessIcons() = default;
    /// Absent when the process is gone, belongs to no application that is known yet, or that application has
    /// no icon; a later call may know more.
    virtual std::optional<ProcessIcon> icon(std::int32_t pid) = 0;
};

} // namespace tarvo
