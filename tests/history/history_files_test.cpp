#include "core/setting_keys.h"
#include "history/alert_manager.h"
#include "history/history_format.h"
#include "history/history_store.h"
#include "platform/posix/atomic_file.h"
#include "support/manual_clock.h"
#include "support/memory_preference_store.h"
#include "support/ordinary_user.h"
#include "support/recording_notifications.h"
#include "support/temporary_folder.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/mount.h>

/// The stores on a real file system: what other programs read there, and what they do when it does not let
/// them.
namespace tarvo {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::IsEmpty;
using testing::SizeIs;

class HistoryFilesTest : public testing::Test {
protected:
    std::string contentOf(const fs::path& path) {
        return AtomicFile(path).read(HistoryStore::maxFileSize).value();
    }

    /// Records two samples and one alert as a run of the program would, whatever stands in the way.
    void runProgram() {
        AtomicFile historyFile(history);
        AtomicFile logFile(log);
        HistoryStore store(historyFile, clock);
        loadedSamples = store.samples().size();
        for (int i = 0; i < 2; ++i) {
            store.maybeRecord(23.076923076923077, 48.25, i == 0 ? std::optional(51.5) : std::nullopt);
            clock.advance(60s);
        }
        AlertLogStore alertLog(logFile, clock);
        loadedEntries = alertLog.entries().size();
        AlertManager(
            {notifications, [&]() -> AlertLogStore& { return alertLog; }, settings, localization, clock})
            .notify("Málo místa na disku", "Zbývá jen 9.5 GB volného místa");
        EXPECT_EQ(store.samples().size(), loadedSamples + 2);
        EXPECT_FALSE(store.dirty());
    }

    TemporaryFolder folder;
    fs::path home = folder.path() / "Tarvo";
    fs::path history = home / "history.json";
    fs::path log = home / "alertlog.json";
    ManualClock clock;
    MemoryPreferenceStore preferences;
    Settings settings{preferences};
    LocalizationManager localization{preferences, "cs"};
    RecordingNotifications notifications;
    std::size_t loadedSamples = 0;
    std::size_t loadedEntries = 0;
};

TEST_F(HistoryFilesTest, AreReadByTheNextRun) {
    runProgram();
    EXPECT_EQ(loadedSamples, 0u);
    runProgram();
    EXPECT_EQ(loadedSamples, 2u);
    EXPECT_EQ(loadedEntries, 1u);
}

TEST_F(HistoryFilesTest, AreReadByAnyReaderOfJSON) {
    runProgram();
    const auto samples = nlohmann::json::parse(contentOf(history));
    EXPECT_EQ(samples,
              nlohmann::json::array(
                  {{{"date", "2025-11-16T03:53:13Z"},
                    {"cpu", 23.076923076923077},
                    {"mem", 48.25},
                    {"cpuTemp", 51.5}},
                   {{"date", "2025-11-16T03:54:13Z"}, {"cpu", 23.076923076923077}, {"mem", 48.25}}}));
    const auto entries = nlohmann::json::parse(contentOf(log));
    ASSERT_THAT(entries, SizeIs(1));
    EXPECT_EQ(entries[0]["date"], "2025-11-16T03:55:13Z");
    EXPECT_EQ(entries[0]["title"], "Málo místa na disku");
    EXPECT_EQ(entries[0]["body"], "Zbývá jen 9.5 GB volného místa");
    EXPECT_EQ(entries[0]["id"].get<std::string>().size(), 36u);
    EXPECT_THAT(entries[0], SizeIs(4));
}

TEST_F(HistoryFilesTest, AreReadAsAnyWriterOfJSONWritesThem) {
    nlohmann::json samples = nlohmann::json::array();
    for (int i = 0; i < 3; ++i) {
        samples.push_back({{"date", "2025-11-16T03:5" + std::to_string(i) + ":00Z"},
                           {"cpu", i},
                           {"mem", 0.1 + i},
                           {"cpuTemp", i == 1 ? nlohmann::json() : nlohmann::json(40.5)}});
    }
    ASSERT_TRUE(AtomicFile(history).replace(samples.dump(2) + "\n"));
    runProgram();
    EXPECT_EQ(loadedSamples, 3u);
    const auto rewritten = nlohmann::json::parse(contentOf(history));
    ASSERT_THAT(rewritten, SizeIs(5));
    samples[1].erase("cpuTemp");
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(rewritten[i], samples[i]);
}

TEST_F(HistoryFilesTest, AreReplacedWhenTheyHoldTwoHundredMegabytesOfGarbage) {
    folder.write("Tarvo/history.json", "garbage");
    folder.write("Tarvo/alertlog.json", "garbage");
    fs::resize_file(history, std::uintmax_t{200} << 20);
    fs::resize_file(log, std::uintmax_t{200} << 20);
    const auto start = std::chrono::steady_clock::now();
    runProgram();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 2s);
    EXPECT_EQ(loadedSamples, 0u);
    EXPECT_LT(fs::file_size(history), 1000u);
    EXPECT_LT(fs::file_size(log), 1000u);
}

TEST_F(HistoryFilesTest, StartEmptyFromGarbageOfTheLargestSizeThatIsRead) {
    for (const char filler : {'[', '"', '\xFF', '\0', '0', ' '}) {
        ASSERT_TRUE(AtomicFile(history).replace(std::string(HistoryStore::maxFileSize, filler)));
        const auto start = std::chrono::steady_clock::now();
        AtomicFile file(history);
        EXPECT_THAT(HistoryStore(file, clock).samples(), IsEmpty());
        EXPECT_LT(std::chrono::steady_clock::now() - start, 10s) << filler;
    }
}

TEST_F(HistoryFilesTest, DoNotStopTheProgramOnAFullDisk) {
    fs::create_directory(home);
    if (::mount("tmpfs", home.c_str(), "tmpfs", 0, "size=4k,nr_inodes=4") != 0)
        GTEST_SKIP() << "mounting needs root";
    folder.write("Tarvo/filler", std::string(4096, 'x'));
    runProgram();
    EXPECT_TRUE(fs::exists(home / "filler"));
    EXPECT_EQ(fs::exists(history) ? fs::file_size(history) : 0, 0u);
    fs::remove(home / "filler");
    runProgram();
    EXPECT_TRUE(parseHistory(contentOf(history)));
    EXPECT_EQ(::umount(home.c_str()), 0);
}

TEST_F(HistoryFilesTest, DoNotStopTheProgramInAReadOnlyFolder) {
    fs::create_directory(home);
    const OrdinaryUser user(folder);
    fs::permissions(home, fs::perms::owner_read | fs::perms::owner_exec);
    runProgram();
    EXPECT_FALSE(fs::exists(history));
    fs::permissions(home, fs::perms::owner_all);
}

TEST_F(HistoryFilesTest, DoNotStopTheProgramWhereThereIsNoFolder) {
    folder.write("Tarvo", "a file in the folder's place");
    runProgram();
    EXPECT_TRUE(fs::is_regular_file(home));
}

TEST_F(HistoryFilesTest, AreReplacedWhenAnotherUserOwnsThem) {
    if (::geteuid() != 0) GTEST_SKIP() << "giving files away needs root";
    runProgram();
    const OrdinaryUser user(folder);
    runProgram();
    EXPECT_EQ(loadedSamples, 0u);
    EXPECT_EQ(loadedEntries, 0u);
    runProgram();
    EXPECT_EQ(loadedSamples, 2u);
}

TEST_F(HistoryFilesTest, DoNotStopTheProgramWhenFoldersStandInTheirPlace) {
    fs::create_directories(history / "inside");
    fs::create_directories(log);
    runProgram();
    EXPECT_TRUE(fs::is_directory(history / "inside"));
    EXPECT_TRUE(fs::is_directory(log));
    EXPECT_EQ(std::distance(fs::directory_iterator(home), {}), 2);
}

} // namespace
} // namespace tarvo
