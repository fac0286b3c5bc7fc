#include "platform/linux/deja_dup.h"

#include "platform/linux/iso_time.h"
#include "platform/linux/key_value_text.h"
#include "platform/linux/read_file.h"
#include "platform/linux/running_program.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

constexpr const char* program = "deja-dup";
constexpr std::chrono::seconds longestWait{2};

bool isBackup(const RunningProgram& candidate) {
    return candidate.name == program && candidate.isOwn &&
           (candidate.hasArgument("--backup") || candidate.hasArgument("--auto"));
}

/// Its helpers do the work; one that the user started by hand is not its own.
bool isHelper(const RunningProgram& candidate, const std::vector<RunningProgram>& programs) {
    return candidate.name != program && candidate.isOwn &&
           std::any_of(programs.begin(), programs.end(), [&candidate](const auto& parent) {
               return parent.name == program && parent.pid == candidate.parent;
           });
}

} // namespace

std::optional<WallTime> parseGSettingsTime(std::string_view text) {
    while (text.ends_with('\n'))
        text.remove_suffix(1);
    if (text.size() < 2 || !text.starts_with('\'') || !text.ends_with('\'')) return std::nullopt;
    return parseISOTime(text.substr(1, text.size() - 2));
}

std::optional<BackupState> DejaDup::state() {
    const auto last = lastBackup();
    if (!last) return std::nullopt;
    BackupState state;
    state.isRunning = isRunning();
    state.latestBackup = last;
    return state;
}

std::optional<WallTime> DejaDup::lastBackup() const {
    std::optional<WallTime> last;
    if (tools_) {
        const auto answer = tools_->run({.executable = "/usr/bin/gsettings",
                                         .arguments = {"get", "org.gnome.DejaDup", "last-backup"},
                                         .timeLimit = longestWait});
        if (answer) last = parseGSettingsTime(answer->output);
    }
    const auto flatpak = root_.path(home_ + "/.var/app/org.gnome.DejaDup/config/glib-2.0/settings/keyfile");
    const auto values = parseKeyValues(readFile(flatpak).value_or(""), "org/gnome/deja-dup");
    const auto found = values.find("last-backup");
    return found == values.end() ? last : std::max(last, parseGSettingsTime(found->second));
}

bool DejaDup::isRunning() const {
    const auto programs = findPrograms(root_, {program, "duplicity", "restic", "borg"});
    return std::any_of(programs.begin(), programs.end(), [&programs](const auto& candidate) {
        return isBackup(candidate) || isHelper(candidate, programs);
    });
}

} // namespace tarvo::linux_platform
