#include "history/history_format.h"
#include "history/history_store.h"
#include "platform/posix/atomic_file.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t maxFileSize = HistoryStore::maxFileSize;

/// A real process that records one numbered sample after the other and tells each number once it was saved.
class Recorder {
public:
    Recorder(const std::filesystem::path& path, const ManualClock& clock, int firstNumber) {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) std::abort();
        child_ = ::fork();
        if (child_ == 0) record(path, clock, firstNumber, ends[1]);
        ::close(ends[1]);
        reports_ = ends[0];
    }
    ~Recorder() { ::close(reports_); }

    int nextReport() const {
        int number = -1;
        return ::read(reports_, &number, sizeof(number)) == sizeof(number) ? number : -1;
    }
    /// The last number that the process told before it died.
    int kill(int lastReport) const {
        ::kill(child_, SIGKILL);
        for (int number = 0; (number = nextReport()) >= 0;)
            lastReport = number;
        int status = 0;
        ::waitpid(child_, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        return lastReport;
    }

private:
    [[noreturn]] static void record(const std::filesystem::path& path, ManualClock clock, int number,
                                    int reports) {
        AtomicFile file(path);
        HistoryStore store(file, clock);
        for (;; ++number) {
            store.maybeRecord(number, 48.123456789012345, 51.5);
            if (::write(reports, &number, sizeof(number)) != sizeof(number)) ::_exit(1);
            clock.advance(60s);
        }
    }

    pid_t child_ = -1;
    int reports_ = -1;
};

std::string encodedMinutes(WallTime end, int count) {
    std::string json = "[";
    for (int minute = count; minute > 0; --minute) {
        EXPECT_TRUE(appendHistorySample(json, {end - minute * 60s, 23.076923076923077, 48.1, 51.5}));
        json += minute > 1 ? ',' : ']';
    }
    return json;
}

TEST(HistoryCrash, KilledAtAnyMomentOfAThousandSavesItLosesNothingThatWasSaved) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "Tarvo" / "history.json";
    ManualClock clock;
    AtomicFile(path).replace(encodedMinutes(clock.wallNow(), 5000));

    std::mt19937 random(20261116);
    int next = 1000; // numbers that no earlier sample has
    for (const int end = next + 1000; next < end;) {
        const Recorder recorder(path, clock, next);
        const int reports = std::uniform_int_distribution(0, 40)(random);
        int last = next - 1;
        for (int i = 0; i < reports; ++i)
            last = recorder.nextReport();
        // Somewhere in the middle of the next loading or save.
        const auto until = std::chrono::steady_clock::now() +
                           std::chrono::microseconds(std::uniform_int_distribution(0, 3000)(random));
        while (std::chrono::steady_clock::now() < until) {
        }
        last = recorder.kill(last);

        const auto content = AtomicFile(path).read(maxFileSize);
        ASSERT_TRUE(content);
        const auto samples = parseHistory(*content);
        ASSERT_TRUE(samples) << "unreadable after " << last;
        const auto stored = static_cast<int>(samples->back().cpu);
        // The save that was under way may have been completed without being told.
        ASSERT_TRUE(stored == last || stored == last + 1 || (last < 1000 && samples->size() == 5000u))
            << stored << " stored, " << last << " told";
        ASSERT_EQ(samples->size(),
                  5000u + static_cast<std::size_t>(std::max(0, std::max(stored, last) - 999)));
        clock.advance((std::max(stored, next - 1) - next + 1) * 60s);
        next = std::max(stored, next - 1) + 1;
    }
}

} // namespace
} // namespace tarvo
