#pragma once

#include "platform/linux/root.h"

#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Where file systems are mounted on which trash may lie, as paths to open. Without those that are mounted by
/// looking at them.
std::vector<std::string> trashVolumes(const Root& root);

/// Folders that hold trash: the user's own and, on each mounted volume, the one that belongs to the user
/// (freedesktop.org trash specification). Only existing ones that are real folders, never links.
std::vector<std::string> trashFolders(const std::string& dataHome,
                                      const std::vector<std::string>& mountPoints, unsigned userId);

/// Deletes what the folders hold, following no link. A failure's words for the first thing that could not be
/// deleted; the rest is deleted all the same.
std::optional<std::string> emptyTrashFolders(const std::vector<std::string>& folders);

} // namespace tarvo::linux_platform
