#include "platform/linux/back_in_time.h"

#include "platform/linux/key_value_text.h"
#include "platform/linux/newest_snapshot.h"
#include "platform/linux/read_file.h"
#include "platform/linux/running_program.h"

#include <algorithm>
#include <map>

namespace tarvo::linux_platform {

namespace {

using Values = std::map<std::string, std::string, std::less<>>;

std::string valueOf(const Values& values, const std::string& key) {
    const auto found = values.find(key);
    return found == values.end() ? "" : found->second;
}

std::vector<std::string> profileNumbers(const Values& values) {
    const auto list = valueOf(values, "profiles");
    if (list.empty()) return {"1"};
    std::vector<std::string> numbers;
    for (std::size_t start = 0; start <= list.size();) {
        const auto end = std::min(list.find(':', start), list.size());
        if (end > start) numbers.push_back(list.substr(start, end - start));
        start = end + 1;
    }
    return numbers;
}

} // namespace

std::vector<BackInTimeProfile> parseBackInTimeConfig(std::string_view text) {
    const auto values = parseKeyValues(text);
    std::vector<BackInTimeProfile> profiles;
    for (const auto& number : profileNumbers(values)) {
        const auto key = "profile" + number + ".snapshots.path";
        BackInTimeProfile profile{number, valueOf(values, key), valueOf(values, key + ".host"),
                                  valueOf(values, key + ".user"), valueOf(values, key + ".profile")};
        if (profile.place.empty()) profile.place = number;
        if (!profile.path.empty()) profiles.push_back(std::move(profile));
    }
    return profiles;
}

std::optional<BackupState> BackInTime::state() {
    const auto config = readFile(root_.path(folders_.config + "/backintime/config"));
    if (!config) return std::nullopt;
    BackupState state;
    for (const auto& profile : parseBackInTimeConfig(*config)) {
        if (!state.isRunning && isRunning(profile)) {
            state.isRunning = true;
            state.fraction = fraction(profile);
        }
        state.latestBackup = std::max(state.latestBackup, latest(profile));
    }
    return state;
}

std::string BackInTime::worker(const BackInTimeProfile& profile) const {
    const auto suffix = profile.number == "1" ? "" : profile.number;
    return root_.path(folders_.data + "/backintime/worker" + suffix);
}

/// The lock names the process that holds it; one that was left behind by a crash names none that runs.
bool BackInTime::isRunning(const BackInTimeProfile& profile) const {
    const auto lock = readAttribute(worker(profile) + ".lock").value_or("");
    const auto lineEnd = lock.find('\n');
    if (lineEnd == std::string::npos) return false;
    const auto pid = parseNumber<std::int32_t>(std::string_view(lock).substr(0, lineEnd));
    return pid && linux_platform::isRunning(root_, *pid, std::string_view(lock).substr(lineEnd + 1));
}

std::optional<double> BackInTime::fraction(const BackInTimeProfile& profile) const {
    const auto values = parseKeyValues(readFile(worker(profile) + ".progress").value_or(""));
    const auto percent = parseNumber<double>(valueOf(values, "percent"));
    return percent && *percent >= 0 && *percent <= 100 ? std::optional(*percent / 100) : std::nullopt;
}

std::optional<WallTime> BackInTime::latest(const BackInTimeProfile& profile) const {
    constexpr std::size_t tag = 4; // "-123"
    const auto machine = readAttribute(root_.path("/proc/sys/kernel/hostname")).value_or("");
    const auto folder = profile.path + "/backintime/" + (profile.host.empty() ? machine : profile.host) +
                        "/" + (profile.user.empty() ? user_ : profile.user) + "/" + profile.place;
    return newestSnapshot(root_.path(folder), "yyyyMMdd-HHmmss", tag);
}

} // namespace tarvo::linux_platform
