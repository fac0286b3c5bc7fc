#include "platform/linux/trash_folder.h"

#include "platform/linux/mountinfo.h"
#include "platform/linux/read_file.h"

#include <filesystem>
#include <system_error>

namespace tarvo::linux_platform {
namespace {

namespace files = std::filesystem;

bool isRealFolder(const files::path& path) {
    std::error_code failed;
    return files::symlink_status(path, failed).type() == files::file_type::directory;
}

/// A folder without write permission keeps even its owner from deleting what is in it.
void makeWritable(const files::path& tree) {
    if (!isRealFolder(tree)) return;
    std::error_code failed;
    files::permissions(tree, files::perms::owner_all, files::perm_options::add, failed);
    for (files::directory_iterator entry(tree, failed), end; !failed && entry != end; entry.increment(failed))
        makeWritable(entry->path());
}

std::error_code removeTree(const files::path& tree) {
    std::error_code failed;
    files::remove_all(tree, failed);
    if (!failed) return failed;
    makeWritable(tree);
    files::remove_all(tree, failed);
    return failed;
}

void emptyFolder(const files::path& folder, std::optional<std::string>& failure) {
    std::error_code failed;
    for (files::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const std::error_code kept = removeTree(entry->path());
        if (kept && !failure) failure = entry->path().filename().string() + ": " + kept.message();
    }
    if (failed && !failure) failure = folder.string() + ": " + failed.message();
}

} // namespace

std::vector<std::string> trashVolumes(const Root& root) {
    std::vector<std::string> points;
    for (const Mount& mount : parseMountInfo(readFile(root.path("/proc/self/mountinfo")).value_or(""))) {
        if (mount.type != "autofs") points.push_back(root.path(mount.point));
    }
    return points;
}

std::vector<std::string> trashFolders(const std::string& dataHome,
                                      const std::vector<std::string>& mountPoints, unsigned userId) {
    const auto user = std::to_string(userId);
    std::vector<files::path> candidates{files::path(dataHome) / "Trash"};
    for (const auto& mountPoint : mountPoints) {
        // The shared folder counts only with its sticky bit, as the trash specification demands.
        const auto shared = files::path(mountPoint) / ".Trash";
        std::error_code failed;
        const auto status = files::symlink_status(shared, failed);
        if ((status.permissions() & files::perms::sticky_bit) != files::perms::none)
            candidates.push_back(shared / user);
        candidates.push_back(files::path(mountPoint) / (".Trash-" + user));
    }
    std::vector<std::string> found;
    for (const auto& candidate : candidates) {
        if (isRealFolder(candidate)) found.push_back(candidate.string());
    }
    return found;
}

std::optional<std::string> emptyTrashFolders(const std::vector<std::string>& folders) {
    std::optional<std::string> failure;
    for (const auto& folder : folders) {
        // Contents first: an interrupted run leaves the record of what is still there.
        for (const char* part : {"files", "info"}) {
            const auto path = files::path(folder) / part;
            if (isRealFolder(path)) emptyFolder(path, failure);
        }
        std::error_code ignored;
        files::remove(files::path(folder) / "directorysizes", ignored);
    }
    return failure;
}

} // namespace tarvo::linux_platform
