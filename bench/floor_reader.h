#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvo::bench {

/// The least that a tick can cost: reads /proc/stat, meminfo, loadavg and net/dev of a root folder with pread
/// and parses the numbers that a snapshot needs. No rules, no records, no error handling; the measure for the
/// real tick.
class FloorReader {
public:
    explicit FloorReader(const std::string& root);
    ~FloorReader();
    FloorReader(const FloorReader&) = delete;
    FloorReader& operator=(const FloorReader&) = delete;

    /// Folds every number that was parsed, so that no compiler drops the work.
    std::uint64_t tick();

private:
    const char* read(int descriptor);
    std::uint64_t cores();
    std::uint64_t memory();
    std::uint64_t load();
    std::uint64_t network();

    int stat_;
    int meminfo_;
    int loadavg_;
    int netDev_;
    std::vector<int> flags_;
    std::vector<char> buffer_;
    const char* end_ = nullptr;
};

} // namespace tarvo::bench
