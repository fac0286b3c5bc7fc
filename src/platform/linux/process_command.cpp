#include "platform/linux/process_command.h"

#include "platform/linux/folder.h"
#include "platform/posix/file_descriptor.h"
#include "platform/utf8.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <array>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t longestPath = 4096;
constexpr std::string_view removed = " (deleted)";
constexpr std::string_view unreachable = "(unreachable)";

using PathBuffer = std::array<char, longestPath>;

std::string_view readLink(int folder, const char* name, PathBuffer& buffer) {
    const auto length = ::readlinkat(folder, name, buffer.data(), buffer.size());
    if (length <= 0) return {};
    return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string_view readBeginning(int folder, const char* name, PathBuffer& buffer) {
    const FileDescriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) return {};
    const auto length = ::read(file.get(), buffer.data(), buffer.size());
    if (length <= 0) return {};
    return {buffer.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string processCommand(int folder, std::int32_t pid, std::string_view name) {
    PathBuffer buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the kernel
    const auto executable =
        pathInExecutableLink(readLink(folder, fmt::format("{}/exe", pid).c_str(), buffer));
    if (!executable.empty()) return printableLine(executable);
    const auto arguments = readBeginning(folder, fmt::format("{}/cmdline", pid).c_str(), buffer);
    const auto path = pathInCommandLine(arguments, name);
    if (!path.empty()) return printableLine(path);
    return printableName(name);
}

std::string printableName(std::string_view name) {
    return name.empty() ? "?" : printableLine(name);
}

std::string_view pathInCommandLine(std::string_view commandLine, std::string_view name) {
    const auto first = commandLine.substr(0, commandLine.find('\0'));
    if (!first.starts_with('/')) return {};
    const auto last = lastComponent(first);
    return !last.empty() && last.starts_with(name) ? first : std::string_view{};
}

std::string_view pathInExecutableLink(std::string_view link) {
    if (link.starts_with(unreachable)) link.remove_prefix(unreachable.size());
    if (link.ends_with(removed)) link.remove_suffix(removed.size());
    return link;
}

} // namespace tarvo::linux_platform
