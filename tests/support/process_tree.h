#pragma once

#include "support/temporary_folder.h"

#include <fmt/format.h>

#include <cstdint>
#include <string>

namespace tarvo {

/// What the stat file of a made-up process says.
struct MadeProcess {
    std::string name = "process";
    char state = 'S';
    std::uint64_t flags = 0x400000;
    std::uint64_t userTicks = 0;
    std::uint64_t systemTicks = 0;
    std::uint64_t threads = 1;
    std::uint64_t startTime = 100;
    std::uint64_t residentPages = 0;
};

/// Content of /proc/PID/stat in the form of a present-day kernel, 52 fields.
inline std::string statText(std::int32_t pid, const MadeProcess& process) {
    return fmt::format(
        "{} ({}) {} 1 {} {} 0 -1 {} 105 0 0 0 {} {} 7 8 20 0 {} 0 {} 2998272 {} 18446744073709551615 "
        "94297689395200 94297689419305 140735652225920 0 0 0 0 0 0 0 0 0 17 0 0 0 0 0 0 0 0 0 0 0 0 0 0\n",
        pid, process.name, process.state, pid, pid, process.flags, process.userTicks, process.systemTicks,
        process.threads, process.startTime, process.residentPages);
}

/// A folder with a /proc of made-up processes; its path is the root to hand to a source.
class ProcessTree {
public:
    explicit ProcessTree(std::uint64_t memoryKilobytes = 1'000'000) {
        folder.write("proc/meminfo",
                     fmt::format("MemTotal:       {} kB\nMemFree:        5 kB\n", memoryKilobytes));
    }

    std::string root() const { return folder.path().string(); }
    void put(std::int32_t pid, const MadeProcess& process) {
        folder.write(fmt::format("proc/{}/stat", pid), statText(pid, process));
        folder.write(fmt::format("proc/{}/comm", pid), process.name + "\n");
    }
    void remove(std::int32_t pid) { folder.remove(fmt::format("proc/{}", pid)); }
    void setExecutable(std::int32_t pid, const std::string& path) {
        folder.link(fmt::format("proc/{}/exe", pid), path);
    }
    void setCommandLine(std::int32_t pid, std::string_view text) {
        folder.write(fmt::format("proc/{}/cmdline", pid), text);
    }
    void openSocket(std::int32_t pid, std::int32_t descriptor, std::uint64_t inode) {
        folder.link(fmt::format("proc/{}/fd/{}", pid, descriptor), fmt::format("socket:[{}]", inode));
    }

    TemporaryFolder folder;
};

} // namespace tarvo
