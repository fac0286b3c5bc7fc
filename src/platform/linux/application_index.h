#pragma once

#include "platform/linux/desktop_entry.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvo::linux_platform {

/// The icons of the installed applications, by desktop file name and by program.
class ApplicationIndex {
public:
    /// Reads the desktop files below the folders, most important folder first: of files of one name, and of
    /// files for one program, the first one counts. Takes some milliseconds a hundred files: off the main
    /// thread.
    static ApplicationIndex read(const std::vector<std::string>& folders);

    void add(const std::string& id, const DesktopEntry& entry);

    /// Null when there is none.
    const std::string* iconOfApplication(const std::string& id) const;
    const std::string* iconOfProgram(const std::string& baseName) const;

private:
    std::unordered_map<std::string, std::string> byID_;
    std::unordered_map<std::string, std::string> byProgram_;
};

/// The folders of desktop files that the XDG base directories name, most important first. An empty variable
/// counts as not set.
std::vector<std::string> applicationFolders(std::string_view dataHome, std::string_view home,
                                            std::string_view dataDirs);

} // namespace tarvo::linux_platform
