// What a pass over the processes costs beside the floor that only opens, reads and closes the same files. The
// two take turns; printed are the medians of the processor time of one turn, in microseconds. Usage:
// process_pass ROOT ROUNDS          ROOT "" is this machine

#include "platform/linux/process_sampler.h"
#include "support/allocation_counter.h"
#include "support/manual_clock.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace tarvo;
using namespace tarvo::linux_platform;

double processorMicroseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

/// Opens, reads and closes the stat file of each process, whose names it knows beforehand.
class Floor {
public:
    Floor(const Root& root, const std::vector<ProcessRow>& rows)
        : folder_(::open(root.path("/proc").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        for (const auto& row : rows)
            names_.push_back(fmt::format("{}/stat", row.pid));
        std::sort(names_.begin(), names_.end());
    }
    void pass() {
        for (const auto& name : names_) {
            const int file = ::openat(folder_.get(), name.c_str(), O_RDONLY | O_CLOEXEC);
            if (file < 0) continue;
            if (::read(file, buffer_.data(), buffer_.size()) > 0) ++read_;
            ::close(file);
        }
    }
    std::size_t files() const { return names_.size(); }

private:
    FileDescriptor folder_;
    std::vector<std::string> names_;
    std::vector<char> buffer_ = std::vector<char>(4096);
    std::size_t read_ = 0;
};

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Turns {
    std::vector<double> floor;
    std::vector<double> lists; ///< one pass, the first five of both orders
    std::vector<double> table; ///< one pass, the first five hundred
    std::vector<double> allocations;
};

template <typename Work>
double timed(Work&& work) {
    const auto before = processorMicroseconds();
    work();
    return processorMicroseconds() - before;
}

void run(const Root& root, int rounds) {
    ManualClock clock;
    ProcessSampler sampler(root, clock, [&](std::chrono::milliseconds time) { clock.advance(time); });
    SampledProcessTable table(sampler);
    Floor floor(root, table.rows(ProcessOrder::cpu, 1'000'000));
    Turns turns;
    for (int round = 0; round < rounds; ++round) {
        turns.floor.push_back(timed([&] { floor.pass(); }));
        clock.advance(std::chrono::seconds(3));
        const auto allocated = allocationCount();
        turns.lists.push_back(timed([&] {
            table.rows(ProcessOrder::cpu, 5);
            table.rows(ProcessOrder::memory, 5);
        }));
        turns.allocations.push_back(static_cast<double>(allocationCount() - allocated));
        clock.advance(std::chrono::seconds(3));
        turns.table.push_back(timed([&] { table.rows(ProcessOrder::cpu, 500); }));
    }
    fmt::print(
        "{} processes: floor {:.0f} us, both lists {:.0f} us, table of 500 {:.0f} us, {:.0f} allocations\n",
        floor.files(), median(turns.floor), median(turns.lists), median(turns.table),
        median(turns.allocations));
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) return EXIT_FAILURE;
    run(Root(arguments[1]), std::max(std::atoi(arguments[2]), 1));
    return EXIT_SUCCESS;
}
