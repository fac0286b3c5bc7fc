#include "platform/linux/preference_file.h"

#include "platform/iso8601.h"
#include "platform/linux/folder_lock.h"
#include "platform/linux/read_file.h"
#include "platform/posix/atomic_file.h"

#include <filesystem>
#include <utility>

namespace tarvo::linux_platform {
namespace {

void apply(PreferenceDocument& document, const std::string& key,
           const std::optional<PreferenceValue>& value) {
    document.others.erase(key);
    if (value) {
        document.values.insert_or_assign(key, *value);
    } else {
        document.values.erase(key);
    }
}

/// "20261116T035312Z", which every file system takes as part of a name.
std::string timeForName(WallTime time) {
    std::string text = formatISO8601(time);
    std::erase_if(text, [](char letter) { return letter == '-' || letter == ':'; });
    return text;
}

/// Where the content lives: the end of the path's links.
std::filesystem::path target(const std::string& path) {
    std::error_code missing;
    const auto end = std::filesystem::canonical(path, missing);
    return missing ? std::filesystem::path(path) : end;
}

bool setAside(const std::filesystem::path& damaged, WallTime now) {
    std::error_code error;
    std::filesystem::rename(damaged, damaged.string() + ".damaged-" + timeForName(now), error);
    return !error;
}

} // namespace

PreferenceFile::PreferenceFile(std::string path, const Clock& clock) : path_(std::move(path)), clock_(clock) {
    load();
}

std::optional<PreferenceValue> PreferenceFile::object(std::string_view key) const {
    if (const auto pending = pending_.find(key); pending != pending_.end()) return pending->second;
    const auto found = document_.values.find(key);
    return found == document_.values.end() ? std::nullopt : std::optional(found->second);
}

void PreferenceFile::set(std::string_view key, PreferenceValue value) {
    change(key, std::move(value));
}

void PreferenceFile::remove(std::string_view key) {
    change(key, std::nullopt);
}

void PreferenceFile::change(std::string_view key, std::optional<PreferenceValue> value) {
    pending_.insert_or_assign(std::string(key), std::move(value));
    save();
    changed_.notify();
}

bool PreferenceFile::reloadIfChanged() {
    const auto before = document_;
    loadIfChanged();
    if (document_.values == before.values) return false;
    changed_.notify();
    return true;
}

void PreferenceFile::loadIfChanged() {
    if (fileIdentity(path_) != seen_) load();
}

// The identity is taken first: a file that is replaced while it is read is then read once more.
void PreferenceFile::load() {
    seen_ = fileIdentity(path_);
    damaged_ = false;
    if (!seen_ || seen_->size == 0) {
        document_ = {};
        return;
    }
    const auto text = readFile(path_);
    auto parsed = text ? parsePreferences(*text) : std::nullopt;
    damaged_ = !parsed;
    if (parsed) document_ = std::move(*parsed);
}

void PreferenceFile::save() {
    if (path_.empty()) return;
    const auto place = target(path_);
    AtomicFile file(place, AtomicFile::Durability::afterPowerCut); // makes the folder, which the lock needs
    const FolderLock lock(std::filesystem::path(path_).parent_path());
    load(); // whatever its identity says: clocks of file systems are coarse
    PreferenceDocument next = document_;
    for (const auto& [key, value] : pending_)
        apply(next, key, value);
    if (next == document_ && !damaged_) {
        pending_.clear();
        return;
    }
    if (damaged_ && !setAside(place, clock_.wallNow())) return;
    if (!file.replace(formatPreferences(next))) return;
    damaged_ = false;
    document_ = std::move(next);
    pending_.clear();
    seen_ = fileIdentity(path_);
}

} // namespace tarvo::linux_platform
