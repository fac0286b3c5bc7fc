#include "platform/linux/snapper.h"

#include "platform/clamped_wall_time.h"
#include "platform/linux/busctl_values.h"
#include "platform/linux/folder.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

BusTool::Object snapperObject() {
    return {"org.opensuse.Snapper", "/org/opensuse/Snapper", "org.opensuse.Snapper"};
}

/// Passes a dictionary of texts.
bool skipDictionary(BusctlValues& values) {
    auto entries = values.integer();
    for (; entries && *entries > 0; --*entries) {
        if (!values.skip(2)) return false;
    }
    return entries.has_value();
}

/// The date of one snapshot, seconds since the epoch; -1 for the system as it is now.
std::optional<std::int64_t> takeSnapshotDate(BusctlValues& values) {
    if (!values.skip(3)) return std::nullopt; // number, kind, number before
    const auto date = values.integer();
    if (!date || !values.skip(3) || !skipDictionary(values))
        return std::nullopt; // user, description, clean-up
    return date;
}

} // namespace

std::vector<std::string> parseSnapperConfigs(std::string_view text) {
    BusctlValues values(text);
    std::vector<std::string> names;
    if (!values.signature("a(ssa{ss})")) return names;
    for (auto left = values.integer().value_or(0); left > 0; --left) {
        auto name = values.string();
        if (!name || !values.skip(1) || !skipDictionary(values)) break; // path, settings
        names.push_back(std::move(*name));
    }
    return names;
}

std::optional<WallTime> parseNewestSnapperDate(std::string_view text) {
    BusctlValues values(text);
    if (!values.signature("a(uquxussa{ss})")) return std::nullopt;
    std::int64_t newest = 0;
    for (auto left = values.integer().value_or(0); left > 0; --left) {
        const auto date = takeSnapshotDate(values);
        if (!date) break;
        newest = std::max(newest, *date);
    }
    if (newest <= 0) return std::nullopt;
    return clampedWallTime(std::chrono::sys_seconds(std::chrono::seconds(newest)));
}

std::optional<BackupState> Snapper::state() {
    if (!pathExists(root_.path("/usr/share/dbus-1/system-services/org.opensuse.Snapper.service"))) {
        return std::nullopt;
    }
    const auto configs =
        parseSnapperConfigs(bus_.call(Bus::system, snapperObject(), "ListConfigs").value_or(""));
    if (configs.empty()) return std::nullopt;
    BackupState state;
    for (const auto& config : configs) {
        const auto reply = bus_.call(Bus::system, snapperObject(), "ListSnapshots", "s", {config});
        state.latestBackup = std::max(state.latestBackup, parseNewestSnapperDate(reply.value_or("")));
    }
    return state;
}

} // namespace tarvo::linux_platform
