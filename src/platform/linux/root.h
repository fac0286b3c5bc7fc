#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// The folder in which the machine's /proc, /sys, /dev, /etc and /run stand: empty on the running machine, a
/// recorded tree elsewhere. Put before every absolute path; no source opens a path without it.
class Root {
public:
    Root() = default;
    /// Trailing slashes do not matter; "/" is the running machine.
    explicit Root(std::string folder);

    /// True for the running machine: only then may a source ask the kernel other than by files.
    bool isLive() const { return folder_.empty(); }
    /// The path to open for a path of the machine, e.g. "/proc/stat".
    std::string path(std::string_view absolute) const;
    /// The machine's path with every symbolic link followed; absent when it does not exist or leads out of
    /// the root.
    std::optional<std::string> resolve(std::string_view absolute) const;

private:
    std::string folder_;
};

} // namespace tarvo::linux_platform
