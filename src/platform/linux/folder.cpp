#include "platform/linux/folder.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t longestLink = 4096;

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
struct FreeText {
    void operator()(char* text) const { std::free(text); }
};

} // namespace

std::vector<std::string> folderEntries(const std::string& path) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir(path.c_str()));
    if (!folder) return names;
    while (const dirent* entry = ::readdir(folder.get())) {
        if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool pathExists(const std::string& path) {
    return ::access(path.c_str(), F_OK) == 0;
}

std::optional<std::string> linkText(const std::string& path) {
    std::array<char, longestLink> text{};
    const auto length = ::readlink(path.c_str(), text.data(), text.size());
    if (length <= 0) return std::nullopt;
    return std::string(text.data(), static_cast<std::size_t>(length));
}

std::optional<std::string> realPath(const std::string& path) {
    const std::unique_ptr<char, FreeText> resolved(::realpath(path.c_str(), nullptr));
    if (!resolved) return std::nullopt;
    return std::string(resolved.get());
}

std::string_view lastComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

} // namespace tarvo::linux_platform
