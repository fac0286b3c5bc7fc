#include "platform/macos/tmutil_backup_tool.h"

namespace tarvo::macos_platform {

std::optional<std::string> TmutilBackupTool::output(const std::string& command) {
    return children_.output("/usr/bin/tmutil", {command});
}

} // namespace tarvo::macos_platform
