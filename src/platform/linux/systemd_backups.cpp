#include "platform/linux/systemd_backups.h"

#include "platform/clamped_wall_time.h"
#include "platform/linux/busctl_values.h"

#include <algorithm>
#include <array>

namespace tarvo::linux_platform {

namespace {

constexpr std::array<std::string_view, 7> words{"backup",    "borg",  "restic",    "duplicity",
                                                "rsnapshot", "kopia", "backintime"};
constexpr const char* service = "org.freedesktop.systemd1";
constexpr std::string_view unitSignature = "a(ssssssouso)";

struct ServiceFacts {
    std::string type;
    std::string result;
    std::int64_t endedAt = 0; ///< us since the epoch; 0: never
};

std::optional<std::int64_t> unsignedValue(BusctlValues& values) {
    return values.signature("t") ? values.integer() : std::nullopt;
}

std::optional<std::string> textValue(BusctlValues& values) {
    return values.signature("s") ? values.string() : std::nullopt;
}

std::optional<SystemdUnit> takeUnit(BusctlValues& values) {
    auto name = values.string();
    if (!name || !values.skip(2)) return std::nullopt; // description, load state
    auto active = values.string();
    auto sub = active ? values.string() : std::nullopt;
    if (!sub || !values.skip(1)) return std::nullopt; // unit that is followed
    auto path = values.string();
    if (!path || !values.skip(3)) return std::nullopt; // job: number, type, path
    return SystemdUnit{std::move(*name), std::move(*active), std::move(*sub), std::move(*path)};
}

std::vector<std::string> listArguments() {
    std::vector<std::string> arguments{"0", std::to_string(words.size() * 2)}; // any state; these patterns
    for (const auto word : words) {
        for (const auto* const kind : {".service", ".timer"})
            arguments.push_back("*" + std::string(word) + "*" + kind);
    }
    return arguments;
}

/// A oneshot service that stays active after its work has no process any more.
bool isWorking(const SystemdUnit& unit) {
    return unit.activeState == "activating" || (unit.activeState == "active" && unit.subState != "exited");
}

} // namespace

std::vector<SystemdUnit> parseUnitList(std::string_view text) {
    BusctlValues values(text);
    std::vector<SystemdUnit> units;
    if (!values.signature(unitSignature)) return units;
    for (auto left = values.integer().value_or(0); left > 0; --left) {
        auto unit = takeUnit(values);
        if (!unit) break;
        units.push_back(std::move(*unit));
    }
    return units;
}

bool isBackupUnit(std::string_view name) {
    if (name.starts_with("dpkg-db-backup.")) return false; // keeps a few old package lists
    return std::any_of(words.begin(), words.end(),
                       [name](auto word) { return name.find(word) != std::string_view::npos; });
}

std::optional<BackupState> SystemdBackups::state() {
    std::optional<BackupState> state;
    for (const auto bus : {Bus::user, Bus::system}) {
        for (const auto& unit : units(bus)) {
            if (!isBackupUnit(unit.name)) continue;
            if (!state) state.emplace();
            if (unit.name.ends_with(".service")) addService(bus, unit, *state);
        }
    }
    return state;
}

std::vector<SystemdUnit> SystemdBackups::units(Bus bus) {
    const auto reply =
        bus_.call(bus, {service, "/org/freedesktop/systemd1", "org.freedesktop.systemd1.Manager"},
                  "ListUnitsByPatterns", "asas", listArguments());
    return parseUnitList(reply.value_or(""));
}

void SystemdBackups::addService(Bus bus, const SystemdUnit& unit, BackupState& state) {
    const auto facts =
        bus_.properties(bus, {service, unit.path, "org.freedesktop.systemd1.Service"}, {"Type", "Result"});
    const auto times = bus_.properties(bus, {service, unit.path, "org.freedesktop.systemd1.Unit"},
                                       {"InactiveEnterTimestamp"});
    if (!facts || !times) return;
    BusctlValues factValues(*facts);
    const auto type = textValue(factValues);
    const auto result = textValue(factValues);
    BusctlValues timeValues(*times);
    const auto endedAt = unsignedValue(timeValues).value_or(0);
    if (type != "oneshot") return; // a service that runs for ever makes its backups unseen
    state.isRunning = state.isRunning || isWorking(unit);
    if (result != "success" || endedAt <= 0) return;
    const auto ended = clampedWallTime(std::chrono::sys_seconds(
        std::chrono::floor<std::chrono::seconds>(std::chrono::microseconds(endedAt))));
    state.latestBackup = std::max(state.latestBackup, std::optional(ended));
}

} // namespace tarvo::linux_platform
