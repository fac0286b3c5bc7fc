#include "history/history_store.h"

#include "history/history_format.h"
#include "platform/iso8601.h"
#include "support/manual_clock.h"
#include "support/memory_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::string object(WallTime date, double cpu = 1) {
    std::string json;
    EXPECT_TRUE(appendHistorySample(json, {date, cpu, 2, std::nullopt}));
    return json;
}

class HistoryStoreTest : public testing::Test {
protected:
    /// What another reader finds in the file.
    std::vector<double> storedCPU() const {
        std::vector<double> values;
        const auto samples = file.content ? parseHistory(*file.content) : std::nullopt;
        EXPECT_TRUE(samples) << file.content.value_or("no file");
        if (samples) {
            for (const auto& sample : *samples)
                values.push_back(sample.cpu);
        }
        return values;
    }

    ManualClock clock;
    MemoryFile file;
};

TEST_F(HistoryStoreTest, StartsEmptyWithoutAFileAndWritesNone) {
    const HistoryStore store(file, clock);
    EXPECT_THAT(store.samples(), IsEmpty());
    EXPECT_FALSE(store.dirty());
    EXPECT_FALSE(file.content);
}

TEST_F(HistoryStoreTest, WritesEveryAcceptedSample) {
    HistoryStore store(file, clock);
    store.maybeRecord(12.5, 48.25, 51);
    EXPECT_THAT(
        file.content,
        Optional(std::string(R"([{"date":"2025-11-16T03:53:13Z","cpu":12.5,"mem":48.25,"cpuTemp":51}])")));
    EXPECT_FALSE(store.dirty());
    clock.advance(60s);
    store.maybeRecord(13, 49, std::nullopt);
    EXPECT_THAT(file.content, Optional(std::string(
                                  R"([{"date":"2025-11-16T03:53:13Z","cpu":12.5,"mem":48.25,"cpuTemp":51},)"
                                  R"({"date":"2025-11-16T03:54:13Z","cpu":13,"mem":49}])")));
}

TEST_F(HistoryStoreTest, KeepsOnlyTheFirstOfTwoSamplesLessThanAMinuteApart) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    clock.advance(59900ms);
    store.maybeRecord(2, 0, {});
    EXPECT_THAT(store.samples(), ElementsAre(Field(&HistorySample::cpu, 1)));
    clock.advance(100ms);
    store.maybeRecord(3, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 3));
    EXPECT_EQ(store.lastSampleTime(), clock.wallNow());
}

TEST_F(HistoryStoreTest, KeepsTheFirstSampleAfterLaunchHoweverRecentTheLastOneInTheFile) {
    file.content = "[" + object(clock.wallNow() - 3s, 7) + "]";
    HistoryStore store(file, clock);
    EXPECT_EQ(store.lastSampleTime(), distantPastDate);
    store.maybeRecord(8, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(7, 8));
}

TEST_F(HistoryStoreTest, LoadsWithoutSamplesOlderThanFourteenDays) {
    file.content = "[" + object(clock.wallNow() - 15 * 24h, 1) + "," + object(clock.wallNow() - 14 * 24h, 2) +
                   "," + object(clock.wallNow() - 14 * 24h - 1s, 3) + "," + object(clock.wallNow(), 4) + "]";
    const auto before = file.content;
    HistoryStore store(file, clock);
    EXPECT_THAT(store.samples(), ElementsAre(Field(&HistorySample::cpu, 2), Field(&HistorySample::cpu, 4)));
    EXPECT_FALSE(store.dirty());
    EXPECT_EQ(file.content, before);
    store.maybeRecord(5, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(2, 4, 5));
}

TEST_F(HistoryStoreTest, StartsEmptyFromAFileItCannotReadAndOverwritesIt) {
    for (const std::string content :
         {"", "[", "{}", "no json", R"([{"date":"2025-11-16T03:53:12.5Z","cpu":1,"mem":2}])"}) {
        file.content = content;
        HistoryStore store(file, clock);
        EXPECT_THAT(store.samples(), IsEmpty()) << content;
        EXPECT_EQ(file.content, content);
        store.maybeRecord(9, 0, {});
        EXPECT_THAT(storedCPU(), ElementsAre(9));
    }
}

TEST_F(HistoryStoreTest, StartsEmptyFromAFileThatIsTooLarge) {
    file.content = "[" + std::string(HistoryStore::maxFileSize, ' ') + "]";
    EXPECT_THAT(HistoryStore(file, clock).samples(), IsEmpty());
}

TEST_F(HistoryStoreTest, AnswersTheSamplesOfTheLastHoursWithBothEnds) {
    file.content = "[" + object(clock.wallNow() - 24h - 1s, 1) + "," + object(clock.wallNow() - 24h, 2) +
                   "," + object(clock.wallNow() - 1h, 3) + "," + object(clock.wallNow() + 5s, 4) + "]";
    const HistoryStore store(file, clock);
    EXPECT_THAT(store.samples(24), ElementsAre(Field(&HistorySample::cpu, 2), Field(&HistorySample::cpu, 3),
                                               Field(&HistorySample::cpu, 4)));
    EXPECT_THAT(store.samples(1), SizeIs(2));
    EXPECT_THAT(store.samples(336), SizeIs(4));
    EXPECT_THAT(store.samples(1e300), SizeIs(4));
    EXPECT_THAT(store.samples(nan), IsEmpty());
}

TEST_F(HistoryStoreTest, AnswersOnlyWhatIsDatedNowOrLaterForNoHours) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    EXPECT_THAT(store.samples(0), SizeIs(1));
    clock.advance(1ns);
    EXPECT_THAT(store.samples(0), IsEmpty());
}

TEST_F(HistoryStoreTest, HandsOnlyTheNewSampleToTheFile) {
    HistoryStore store(file, clock);
    for (int minute = 0; minute < 100; ++minute) {
        store.maybeRecord(minute, 50.5, 40);
        clock.advance(60s);
    }
    EXPECT_EQ(file.wholeWrites, 1);
    EXPECT_EQ(file.keepingWrites, 99);
    EXPECT_LT(file.bytesHandedOver, 100u);
    EXPECT_THAT(storedCPU(), SizeIs(100));
}

TEST_F(HistoryStoreTest, LetsTheOldestGoAsNewOnesComeForTwoWeeks) {
    HistoryStore store(file, clock);
    constexpr int kept = 14 * 24 + 1; // one an hour, both ends of the fourteen days
    for (int hour = 0; hour < 1000; ++hour) {
        store.maybeRecord(hour + 1 / 3.0, hour, hour % 3 == 0 ? std::optional<double>(hour) : std::nullopt);
        ASSERT_EQ(store.samples().size(), static_cast<std::size_t>(std::min(hour + 1, kept)));
        clock.advance(1h);
    }
    EXPECT_EQ(file.wholeWrites, 1);
    clock.advance(-1h);
    const auto reread = parseHistory(*file.content);
    ASSERT_TRUE(reread);
    EXPECT_EQ(*reread, store.samples());
}

TEST_F(HistoryStoreTest, WritesEverythingAgainWhenSomebodyElseChangedTheFile) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    file.content = "[]";
    clock.advance(60s);
    store.maybeRecord(2, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 2));
    file.content.reset();
    clock.advance(60s);
    store.maybeRecord(3, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 2, 3));
}

TEST_F(HistoryStoreTest, WritesWithTheNextSampleWhatCouldNotBeWritten) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    file.writable = false;
    clock.advance(60s);
    store.maybeRecord(2, 0, {});
    EXPECT_FALSE(store.dirty());
    EXPECT_THAT(storedCPU(), ElementsAre(1));
    clock.advance(60s);
    store.maybeRecord(3, 0, {});
    file.writable = true;
    clock.advance(60s);
    store.maybeRecord(4, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 2, 3, 4));
    clock.advance(60s);
    store.maybeRecord(5, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(HistoryStoreTest, LeavesTheFileAloneUntilANumberThatIsNotFiniteIsPruned) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    clock.advance(60s);
    store.maybeRecord(nan, 0, {});
    EXPECT_TRUE(store.dirty());
    clock.advance(60s);
    store.maybeRecord(3, 0, {});
    store.save();
    EXPECT_TRUE(store.dirty());
    EXPECT_THAT(storedCPU(), ElementsAre(1));
    clock.advance(14 * 24h);
    store.maybeRecord(4, 0, {});
    EXPECT_FALSE(store.dirty());
    EXPECT_THAT(storedCPU(), ElementsAre(3, 4));
}

TEST_F(HistoryStoreTest, SavesNothingWhileClean) {
    HistoryStore store(file, clock);
    store.save();
    EXPECT_FALSE(file.content);
    store.maybeRecord(1, 0, {});
    const int writes = file.wholeWrites;
    store.save();
    EXPECT_EQ(file.wholeWrites, writes);
}

TEST_F(HistoryStoreTest, WaitsAfterTheClockWasSetBack) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    const auto start = clock.wallNow();
    clock.setWall(start - 1h);
    store.maybeRecord(2, 0, {});
    clock.setWall(start + 59s);
    store.maybeRecord(3, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1));
    clock.setWall(start + 60s);
    store.maybeRecord(4, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 4));
}

TEST_F(HistoryStoreTest, DropsEverythingOldAfterTheClockWasSetForward) {
    HistoryStore store(file, clock);
    store.maybeRecord(1, 0, {});
    clock.advance(60s);
    store.maybeRecord(2, 0, {});
    clock.advance(15 * 24h);
    store.maybeRecord(3, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(3));
    clock.advance(60s);
    store.maybeRecord(4, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(3, 4));
}

TEST_F(HistoryStoreTest, PrunesOldSamplesBehindYoungerOnes) {
    file.content = "[" + object(clock.wallNow() - 24h, 1) + "," + object(clock.wallNow() - 13 * 24h, 2) +
                   "," + object(clock.wallNow() - 1h, 3) + "]";
    HistoryStore store(file, clock);
    store.maybeRecord(4, 0, {});
    clock.advance(2 * 24h);
    store.maybeRecord(5, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 3, 4, 5));
    clock.advance(60s);
    store.maybeRecord(6, 0, {});
    EXPECT_THAT(storedCPU(), ElementsAre(1, 3, 4, 5, 6));
}

} // namespace
} // namespace tarvo
