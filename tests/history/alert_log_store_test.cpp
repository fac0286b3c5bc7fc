#include "history/alert_log_store.h"

#include "core/lazy_instance.h"
#include "core/shared_instance.h"
#include "support/manual_clock.h"
#include "support/memory_file.h"

#include <atomic>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

class AlertLogStoreTest : public testing::Test {
protected:
    AlertLogEntry entry(const std::string& title, std::chrono::nanoseconds age = 0s) const {
        return {UUID::random(), clock.wallNow() - std::chrono::duration_cast<WallTime::duration>(age), title,
                "body"};
    }
    void store(const std::vector<AlertLogEntry>& entries) { file.content = encodeAlertLog(entries).value(); }

    ManualClock clock;
    MemoryFile file;
};

TEST_F(AlertLogStoreTest, IsEmptyWithoutAFileAndMakesNone) {
    const AlertLogStore log(file, clock);
    EXPECT_THAT(log.entries(), IsEmpty());
    EXPECT_FALSE(file.content);
}

TEST_F(AlertLogStoreTest, LoadsTheNewestFiveHundredOfSixHundred) {
    std::vector<AlertLogEntry> entries;
    for (int i = 0; i < 600; ++i)
        entries.push_back(entry(fmt::format("alert {}", i), i * 1min));
    store(entries);
    const auto before = file.content;
    const AlertLogStore log(file, clock);
    ASSERT_THAT(log.entries(), SizeIs(500));
    EXPECT_EQ(log.entries().front().title, "alert 0");
    EXPECT_EQ(log.entries().back().title, "alert 499");
    EXPECT_EQ(file.content, before);
}

TEST_F(AlertLogStoreTest, DropsWhatIsOlderThanThirtyDaysAtLoading) {
    store({entry("new"), entry("31 days", 31 * 24h), entry("30 days", 30 * 24h),
           entry("and a second", 30 * 24h + 1s)});
    const AlertLogStore log(file, clock);
    EXPECT_THAT(log.entries(),
                ElementsAre(Field(&AlertLogEntry::title, "new"), Field(&AlertLogEntry::title, "30 days")));
}

TEST_F(AlertLogStoreTest, DropsWhatBecameTooOldWithTheNextEntry) {
    store({entry("old", 29 * 24h)});
    AlertLogStore log(file, clock);
    clock.advance(2 * 24h);
    EXPECT_THAT(log.entries(), SizeIs(1));
    log.insert(entry("new"));
    log.prune();
    log.save();
    EXPECT_THAT(parseAlertLog(*file.content), Optional(ElementsAre(Field(&AlertLogEntry::title, "new"))));
}

TEST_F(AlertLogStoreTest, PutsNewEntriesFirst) {
    AlertLogStore log(file, clock);
    log.insert(entry("first"));
    log.insert(entry("second"));
    log.save();
    EXPECT_THAT(parseAlertLog(*file.content), Optional(ElementsAre(Field(&AlertLogEntry::title, "second"),
                                                                   Field(&AlertLogEntry::title, "first"))));
}

TEST_F(AlertLogStoreTest, StartsEmptyFromAFileItCannotReadAndOverwritesIt) {
    for (const std::string content : {"", "[1]", "{", "[]]"}) {
        file.content = content;
        AlertLogStore log(file, clock);
        EXPECT_THAT(log.entries(), IsEmpty()) << content;
        EXPECT_EQ(file.content, content);
        log.insert(entry("new"));
        log.prune();
        log.save();
        EXPECT_THAT(parseAlertLog(*file.content), Optional(SizeIs(1)));
    }
}

TEST_F(AlertLogStoreTest, KeepsTheEntryInMemoryWhenTheFileCannotBeWritten) {
    file.writable = false;
    AlertLogStore log(file, clock);
    log.insert(entry("new"));
    log.save();
    EXPECT_THAT(log.entries(), SizeIs(1));
    EXPECT_FALSE(file.content);
}

TEST_F(AlertLogStoreTest, LeavesTheFileAloneWhenATextCannotBeEncoded) {
    store({entry("old")});
    const auto before = file.content;
    AlertLogStore log(file, clock);
    log.insert(entry("\xFF"));
    log.save();
    EXPECT_EQ(file.content, before);
}

TEST_F(AlertLogStoreTest, IsMadeOnceForTheWholeProcessByWhicheverThreadComesFirst) {
    std::atomic<int> made = 0;
    LazyInstance<AlertLogStore> lazy([&] {
        ++made;
        return std::make_unique<AlertLogStore>(file, clock);
    });
    const SharedInstance installed(lazy);
    EXPECT_EQ(made, 0);

    constexpr int threads = 8;
    std::atomic<int> ready = 0;
    std::vector<const AlertLogStore*> seen(threads);
    std::vector<std::thread> workers;
    for (int i = 0; i < threads; ++i) {
        workers.emplace_back([&, i] {
            ++ready;
            while (ready < threads)
                std::this_thread::yield();
            seen[static_cast<std::size_t>(i)] = &AlertLogStore::shared();
        });
    }
    for (auto& worker : workers)
        worker.join();
    EXPECT_EQ(made, 1);
    EXPECT_THAT(seen, testing::Each(&AlertLogStore::shared()));
}

} // namespace
} // namespace tarvo
