#pragma once

#include <filesystem>
#include <string>

namespace tarvo::linux_platform {

/// Starts the program with the user's session, by a desktop entry in the user's autostart folder. The entry
/// is the only state: what a tool of the desktop or the user changes in it is what counts. Main thread only.
class Autostart {
public:
    /// `entry` is the entry's path (autostartFilePath()), `program` the absolute path of what it starts. With
    /// either empty it is off and stays off.
    Autostart(std::filesystem::path entry, std::string program);

    bool isOn() const;
    /// Writes the entry or removes it; a file that cannot be written or removed leaves everything as it was.
    void setOn(bool on);

private:
    std::filesystem::path entry_;
    std::string program_;
};

} // namespace tarvo::linux_platform
