#include "platform/linux/socket_owners.h"

#include "platform/linux/numbered_entries.h"
#include "platform/linux/parse_number.h"
#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <tuple>

namespace tarvo::linux_platform {

namespace {

constexpr std::string_view socketPrefix = "socket:[";
// Longer than any socket's link; what of another link does not fit is not wanted.
constexpr std::size_t longestSocketLink = 64;
constexpr std::size_t longestPid = 10;
constexpr std::string_view descriptorsFolder = "/fd";

bool isBefore(const SocketOwner& left, const SocketOwner& right) {
    return std::tie(left.pid, left.descriptor) < std::tie(right.pid, right.descriptor);
}

FileDescriptor openFolder(int parent, const char* name) {
    return FileDescriptor(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

std::optional<std::uint64_t> inodeOf(int folder, const char* descriptor) {
    std::array<char, longestSocketLink>
        link; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the kernel
    const auto length = ::readlinkat(folder, descriptor, link.data(), link.size());
    if (length <= 0) return std::nullopt;
    return socketInode({link.data(), static_cast<std::size_t>(length)});
}

void addProcess(int folder, const NumberedEntry& process, NumberedEntries& entries,
                std::vector<SocketOwner>& owners) {
    if (process.name.size() > longestPid) return;
    std::array<char, longestPid + descriptorsFolder.size() + 1> name{};
    std::copy(descriptorsFolder.begin(), descriptorsFolder.end(),
              std::copy(process.name.begin(), process.name.end(), name.begin()));
    const auto descriptors = openFolder(folder, name.data());
    if (!descriptors) return;
    entries.forEach(descriptors.get(), [&](const NumberedEntry& descriptor) {
        if (const auto inode = inodeOf(descriptors.get(), descriptor.name.data()))
            owners.push_back({process.number, descriptor.number, *inode});
    });
}

} // namespace

std::optional<std::uint64_t> socketInode(std::string_view link) {
    if (!link.starts_with(socketPrefix) || !link.ends_with(']')) return std::nullopt;
    link.remove_prefix(socketPrefix.size());
    link.remove_suffix(1);
    return parseNumber<std::uint64_t>(link);
}

SocketOwners::SocketOwners(const Root& root) : path_(root.path("/proc")) {}

// Its buffers go with the pass: none follows while no view asks.
void SocketOwners::list(std::vector<SocketOwner>& owners) const {
    owners.clear();
    const auto folder = openFolder(AT_FDCWD, path_.c_str());
    if (!folder) return;
    NumberedEntries processes;
    NumberedEntries descriptors;
    processes.forEach(folder.get(),
                      [&](const auto& process) { addProcess(folder.get(), process, descriptors, owners); });
    // The kernel lists them in order; the folder of a recorded machine need not.
    if (!std::is_sorted(owners.begin(), owners.end(), isBefore))
        std::sort(owners.begin(), owners.end(), isBefore);
}

} // namespace tarvo::linux_platform
