#include "platform/linux/xdg_directories.h"

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace tarvo::linux_platform {
namespace {

std::optional<std::string> absolute(std::optional<std::string> path) {
    if (!path || !path->starts_with('/')) return std::nullopt;
    while (path->size() > 1 && path->ends_with('/'))
        path->pop_back();
    return path;
}

std::optional<std::string> homeOfUser() {
    std::array<char, 4096> buffer;
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return std::nullopt;
    return found->pw_dir ? std::optional<std::string>(found->pw_dir) : std::nullopt;
}

std::optional<std::string> below(const std::optional<std::string>& folder, const char* name) {
    return folder ? std::optional(*folder + name) : std::nullopt;
}

} // namespace

std::optional<std::string> homeDirectory(const Environment& environment) {
    if (auto home = absolute(environment("HOME"))) return home;
    return absolute(homeOfUser());
}

std::optional<std::string> configHome(const Environment& environment) {
    if (auto configured = absolute(environment("XDG_CONFIG_HOME"))) return configured;
    return below(homeDirectory(environment), "/.config");
}

std::optional<std::string> dataHome(const Environment& environment) {
    if (auto configured = absolute(environment("XDG_DATA_HOME"))) return configured;
    return below(homeDirectory(environment), "/.local/share");
}

std::optional<std::string> preferenceFilePath(const Environment& environment) {
    return below(configHome(environment), "/tarvo/preferences.json");
}

std::optional<std::string> applicationDataFolder(const Environment& environment) {
    return below(dataHome(environment), "/Tarvo");
}

std::optional<std::string> autostartFilePath(const Environment& environment) {
    return below(configHome(environment), "/autostart/tarvo.desktop");
}

} // namespace tarvo::linux_platform
