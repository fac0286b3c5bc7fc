#include "floor_reader.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <unistd.h>

namespace tarvo::bench {
namespace {

int openFile(const std::string& path) {
    return ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
}

std::uint64_t number(const char*& at) {
    while (*at == ' ')
        ++at;
    std::uint64_t value = 0;
    for (; *at >= '0' && *at <= '9'; ++at)
        value = value * 10 + static_cast<std::uint64_t>(*at - '0');
    return value;
}

const char* nextLine(const char* at, const char* end) {
    const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    return found ? static_cast<const char*>(found) + 1 : end;
}

bool begins(const char* at, std::string_view text) {
    return std::memcmp(at, text.data(), text.size()) == 0;
}

constexpr std::array<std::string_view, 15> wanted = {
    "MemTotal:",    "MemFree:",    "MemAvailable:", "Buffers:", "Cached:",
    "Unevictable:", "SwapTotal:",  "SwapFree:",     "Zswap:",   "KernelStack",
    "PageTables:",  "SUnreclaim:", "SecPageTa",     "Percpu:",  "Hugetlb:"};

} // namespace

FloorReader::FloorReader(const std::string& root)
    : stat_(openFile(root + "/proc/stat")), meminfo_(openFile(root + "/proc/meminfo")),
      loadavg_(openFile(root + "/proc/loadavg")), netDev_(openFile(root + "/proc/net/dev")),
      buffer_(1U << 20U) {
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(root + "/sys/class/net", failed)) {
        if (std::filesystem::exists(entry.path() / "device"))
            flags_.push_back(openFile(entry.path() / "flags"));
    }
}

FloorReader::~FloorReader() {
    for (const int descriptor : {stat_, meminfo_, loadavg_, netDev_})
        ::close(descriptor);
    for (const int descriptor : flags_)
        ::close(descriptor);
}

std::uint64_t FloorReader::tick() {
    return cores() + memory() + load() + network();
}

const char* FloorReader::read(int descriptor) {
    const auto count = ::pread(descriptor, buffer_.data(), buffer_.size() - 1, 0);
    const auto length = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    buffer_[length] = '\0';
    end_ = buffer_.data() + length;
    return buffer_.data();
}

std::uint64_t FloorReader::cores() {
    std::uint64_t sum = 0;
    const char* text = read(stat_);
    for (const char* at = nextLine(text, end_); at + 3 < end_ && begins(at, "cpu"); at = nextLine(at, end_)) {
        const char* field = at + 3;
        sum += number(field);
        for (int column = 0; column < 8; ++column)
            sum += number(field);
    }
    return sum;
}

std::uint64_t FloorReader::memory() {
    std::uint64_t sum = 0;
    for (const char* at = read(meminfo_); at < end_; at = nextLine(at, end_)) {
        for (const auto name : wanted) {
            if (at[0] != name[0] || !begins(at, name)) continue;
            const char* field = at + name.size();
            while (*field == ':')
                ++field;
            sum += number(field);
            break;
        }
    }
    return sum;
}

std::uint64_t FloorReader::load() {
    const char* at = read(loadavg_);
    std::uint64_t sum = 0;
    for (int value = 0; value < 3; ++value) {
        sum += number(at);
        if (*at == '.') ++at;
        sum += number(at);
    }
    return sum;
}

std::uint64_t FloorReader::network() {
    std::uint64_t sum = 0;
    const char* text = read(netDev_);
    for (const char* at = nextLine(nextLine(text, end_), end_); at < end_; at = nextLine(at, end_)) {
        const void* colon = std::memchr(at, ':', static_cast<std::size_t>(end_ - at));
        if (!colon) break;
        const char* field = static_cast<const char*>(colon) + 1;
        for (int column = 0; column < 9; ++column) {
            const auto value = number(field);
            if (column == 0 || column == 8) sum += value;
        }
    }
    for (const int descriptor : flags_)
        sum += static_cast<std::uint64_t>(*read(descriptor));
    return sum;
}

} // namespace tarvo::bench
