// What desktop tools answer before an action, of any content; the first byte says which desktop.

#include "platform/linux/dark_mode_means.h"
#include "platform/linux/file_manager_means.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

namespace {

void checkCommands(const std::vector<ActionMeans>& means, std::string_view answer) {
    for (const auto& one : means) {
        for (const auto& command : one.commands(answer)) {
            if (command.tool.empty() || command.arguments.empty()) std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const DesktopEnvironment environment{static_cast<Desktop>(data[0] % 9), false, true, "/home/jana"};
    checkCommands(darkModeMeans(environment), text);
    checkCommands(restartFileManagerMeans(environment), text);
    if (settingIn(text, "gtk-theme").size() > text.size()) std::abort();
    return 0;
}
