#include "platform/linux/autostart.h"

#include "platform/linux/autostart_entry.h"
#include "platform/linux/read_file.h"
#include "platform/posix/atomic_file.h"

#include <system_error>
#include <utility>

namespace tarvo::linux_platform {

Autostart::Autostart(std::filesystem::path entry, std::string program)
    : entry_(std::move(entry)), program_(std::move(program)) {}

bool Autostart::isOn() const {
    if (entry_.empty()) return false;
    const auto text = readFile(entry_.string());
    return text && isFollowedAutostartEntry(*text);
}

void Autostart::setOn(bool on) {
    if (entry_.empty() || program_.empty()) return;
    if (on) {
        AtomicFile(entry_, AtomicFile::Durability::afterPowerCut).replace(autostartEntry(program_));
    } else {
        std::error_code ignored;
        std::filesystem::remove(entry_, ignored);
    }
}

} // namespace tarvo::linux_platform
