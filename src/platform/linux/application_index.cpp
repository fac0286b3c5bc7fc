#include "platform/linux/application_index.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view suffix = ".desktop";
constexpr int deepest = 3;
constexpr std::size_t largestFile = 256 * 1024;

// Desktop files in subfolders are named with the folders in front: kde/konsole.desktop is "kde-konsole".
void readFolder(ApplicationIndex& index, const std::string& path, const std::string& prefix, int depth) {
    for (const std::string& name : folderEntries(path)) {
        const std::string file = path + "/" + name;
        if (!name.ends_with(suffix)) {
            if (depth < deepest && name.find('.') == std::string::npos) {
                readFolder(index, file, prefix + name + "-", depth + 1);
            }
            continue;
        }
        const auto text = readFile(file, largestFile);
        const auto entry = text ? parseDesktopEntry(*text) : std::nullopt;
        if (entry) index.add(prefix + name.substr(0, name.size() - suffix.size()), *entry);
    }
}

const std::string* find(const std::unordered_map<std::string, std::string>& icons, const std::string& key) {
    const auto position = icons.find(key);
    return position == icons.end() ? nullptr : &position->second;
}

} // namespace

ApplicationIndex ApplicationIndex::read(const std::vector<std::string>& folders) {
    ApplicationIndex index;
    for (const std::string& folder : folders)
        readFolder(index, folder, {}, 0);
    return index;
}

void ApplicationIndex::add(const std::string& id, const DesktopEntry& entry) {
    byID_.emplace(id, entry.icon);
    if (!entry.program.empty()) byProgram_.emplace(entry.program, entry.icon);
}

const std::string* ApplicationIndex::iconOfApplication(const std::string& id) const {
    return find(byID_, id);
}

const std::string* ApplicationIndex::iconOfProgram(const std::string& baseName) const {
    return find(byProgram_, baseName);
}

std::vector<std::string> applicationFolders(std::string_view dataHome, std::string_view home,
                                            std::string_view dataDirs) {
    const std::string own = dataHome.empty() ? std::string(home) + "/.local/share" : std::string(dataHome);
    std::vector<std::string> folders{own + "/applications"};
    std::string_view rest = dataDirs.empty() ? std::string_view("/usr/local/share:/usr/share") : dataDirs;
    while (!rest.empty()) {
        const auto colon = rest.find(':');
        const std::string_view folder = rest.substr(0, colon);
        rest.remove_prefix(colon == std::string_view::npos ? rest.size() : colon + 1);
        if (folder.starts_with('/')) folders.push_back(std::string(folder) + "/applications");
    }
    return folders;
}

} // namespace tarvo::linux_platform
