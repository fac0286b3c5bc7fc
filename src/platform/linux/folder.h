#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Names in a folder, sorted, without those that begin with a dot; empty when it cannot be read.
std::vector<std::string> folderEntries(const std::string& path);

/// Whether something is there; a link counts by what it points to.
bool pathExists(const std::string& path);

/// Text of a symbolic link, not followed; absent when there is no link.
std::optional<std::string> linkText(const std::string& path);

/// The path with every link followed; absent when it does not exist.
std::optional<std::string> realPath(const std::string& path);

/// What follows the last slash; the whole text without one.
std::string_view lastComponent(std::string_view path);

} // namespace tarvo::linux_platform
