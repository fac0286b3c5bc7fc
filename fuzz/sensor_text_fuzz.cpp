// Names, lists and tool texts that sensors, battery and backups are read from.

#include "platform/linux/accessory_batteries.h"
#include "platform/linux/back_in_time.h"
#include "platform/linux/cpu_list.h"
#include "platform/linux/deja_dup.h"
#include "platform/linux/hwmon_chip.h"
#include "platform/linux/snapper.h"
#include "platform/linux/systemd_backups.h"
#include "platform/local_time.h"
#include "sensors/time_machine_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    using namespace tarvo;
    const auto percent = backupPercent(text);
    if (percent && !(*percent >= 0)) __builtin_trap();
    const auto name = latestBackupName(text);
    if (name && name->find('/') != std::string_view::npos) __builtin_trap();
    if (name) parseLocalTime(*name, "yyyy-MM-dd-HHmmss");
    linux_platform::parseCPUList(text);
    linux_platform::parseHwmonAttribute(text);
    linux_platform::accessoryAddress(text);
    linux_platform::parseBackInTimeConfig(text);
    linux_platform::parseGSettingsTime(text);
    linux_platform::parseUnitList(text);
    linux_platform::parseSnapperConfigs(text);
    linux_platform::parseNewestSnapperDate(text);
    return 0;
}
