#include "platform/linux/preference_file.h"

#include "support/manual_clock.h"
#include "support/ordinary_user.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <thread>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct PreferenceFileTest : testing::Test {
    PreferenceFile open() { return PreferenceFile(path, clock); }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path("tarvo"))) {
            names.push_back(entry.path().filename());
        }
        return names;
    }

    TemporaryFolder folder;
    std::string path = folder.path("tarvo/preferences.json");
    ManualClock clock;
};

TEST_F(PreferenceFileTest, WithoutAFileEveryKeyIsAbsentAndNothingIsMade) {
    const auto store = open();
    EXPECT_FALSE(store.object("appLanguage"));
    EXPECT_FALSE(std::filesystem::exists(folder.path("tarvo")));
}

TEST_F(PreferenceFileTest, AValueIsThereForTheNextRun) {
    open().set("appLanguage", std::string("cs"));
    open().set("lastUpdateCheck", clock.wallNow());
    const auto store = open();
    EXPECT_EQ(store.object("appLanguage"), PreferenceValue(std::string("cs")));
    EXPECT_EQ(store.object("lastUpdateCheck"), PreferenceValue(clock.wallNow()));
}

TEST_F(PreferenceFileTest, ARemovedKeyIsAbsentAgain) {
    auto store = open();
    store.set("a", true);
    store.remove("a");
    EXPECT_FALSE(store.object("a"));
    EXPECT_FALSE(open().object("a"));
}

TEST_F(PreferenceFileTest, TheFileAndItsFolderAreTheOwnersAlone) {
    open().set("a", true);
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(::stat(folder.path("tarvo").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(PreferenceFileTest, OnlyTheFileIsLeftInTheFolder) {
    auto store = open();
    store.set("a", true);
    store.set("b", true);
    EXPECT_THAT(files(), ElementsAre("preferences.json"));
}

TEST_F(PreferenceFileTest, KeysOfOthersAreKept) {
    folder.write("tarvo/preferences.json", R"({"window": {"width": 3}, "future": [1, 2]})");
    open().set("a", true);
    EXPECT_EQ(contentOf(path), "{\n    \"a\": true,\n    \"future\": [\n        1,\n        2\n    ],\n"
                               "    \"window\": {\n        \"width\": 3\n    }\n}\n");
}

TEST_F(PreferenceFileTest, AKeyOfAnotherKindIsReplacedWhenItIsSetAndGoneWhenRemoved) {
    folder.write("tarvo/preferences.json", R"({"a": {"x": 1}, "b": null})");
    auto store = open();
    EXPECT_FALSE(store.object("a"));
    store.set("a", std::int64_t{5});
    store.remove("b");
    EXPECT_EQ(contentOf(path), "{\n    \"a\": 5\n}\n");
}

TEST_F(PreferenceFileTest, ObserversAreToldOfEveryChange) {
    auto store = open();
    int changes = 0;
    const auto subscription = store.observe([&] { ++changes; });
    store.set("a", true);
    store.set("a", true);
    store.remove("a");
    EXPECT_EQ(changes, 3);
}

TEST_F(PreferenceFileTest, AValueThatIsThereAlreadyIsNotWrittenAgain) {
    auto store = open();
    store.set("a", true);
    const auto before = fileIdentity(path);
    store.set("a", true);
    store.remove("never there");
    EXPECT_EQ(fileIdentity(path), before);
}

TEST_F(PreferenceFileTest, ADamagedFileCountsAsEmptyAndIsSetAsideBeforeTheFirstWrite) {
    for (const std::string damaged : {"{\"a\": tr", "[1]", "\x01\x02\xff\xfe binary"}) {
        folder.remove("tarvo");
        folder.write("tarvo/preferences.json", damaged);
        auto store = open();
        EXPECT_FALSE(store.object("a"));
        EXPECT_EQ(contentOf(path), damaged); // reading changes nothing
        store.set("b", true);
        EXPECT_THAT(files(),
                    UnorderedElementsAre("preferences.json", "preferences.json.damaged-20251116T035313Z"));
        EXPECT_EQ(contentOf(path + ".damaged-20251116T035313Z"), damaged);
        EXPECT_EQ(open().object("b"), PreferenceValue(true));
    }
}

TEST_F(PreferenceFileTest, AFileLongerThanAnyHonestOneIsSetAsideToo) {
    folder.write("tarvo/preferences.json", "{\"a\": \"" + std::string(2'000'000, 'x') + "\"}");
    auto store = open();
    EXPECT_FALSE(store.object("a"));
    store.set("b", true);
    EXPECT_EQ(std::filesystem::file_size(path + ".damaged-20251116T035313Z"), 2'000'009U);
}

TEST_F(PreferenceFileTest, AnEmptyFileIsNoDamage) {
    folder.write("tarvo/preferences.json", "");
    auto store = open();
    store.set("a", true);
    EXPECT_THAT(files(), ElementsAre("preferences.json"));
}

TEST_F(PreferenceFileTest, AFolderInPlaceOfTheFileIsSetAside) {
    folder.write("tarvo/preferences.json/notes", "keep me");
    auto store = open();
    EXPECT_FALSE(store.object("a"));
    store.set("a", true);
    EXPECT_EQ(open().object("a"), PreferenceValue(true));
    EXPECT_EQ(contentOf(path + ".damaged-20251116T035313Z/notes"), "keep me");
}

TEST_F(PreferenceFileTest, APipeInPlaceOfTheFileIsNotWaitedFor) {
    folder.makeFolder("tarvo");
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    auto store = open();
    store.set("a", true);
    EXPECT_EQ(open().object("a"), PreferenceValue(true));
}

TEST_F(PreferenceFileTest, WhereNoFolderCanBeMadeAValueHoldsForThisRun) {
    folder.write("tarvo", "a file where the folder should be");
    auto store = open();
    int changes = 0;
    const auto subscription = store.observe([&] { ++changes; });
    store.set("a", true);
    store.set("b", std::int64_t{2});
    store.remove("b");
    EXPECT_EQ(store.object("a"), PreferenceValue(true));
    EXPECT_FALSE(store.object("b"));
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(contentOf(folder.path("tarvo")), "a file where the folder should be");
}

TEST_F(PreferenceFileTest, InAReadOnlyFolderAValueHoldsForThisRunAndTheFileStays) {
    folder.write("tarvo/preferences.json", "{\"a\": 1}");
    ASSERT_EQ(::chmod(folder.path("tarvo").c_str(), 0500), 0);
    const OrdinaryUser user(folder);
    auto store = open();
    store.set("a", std::int64_t{2});
    EXPECT_EQ(store.object("a"), PreferenceValue(std::int64_t{2}));
    EXPECT_EQ(contentOf(path), "{\"a\": 1}");
    ::chmod(folder.path("tarvo").c_str(), 0700);
}

TEST_F(PreferenceFileTest, WhatCouldNotBeWrittenIsWrittenWithTheNextChangeThatCan) {
    folder.write("tarvo", "in the way");
    auto store = open();
    store.set("a", true);
    folder.remove("tarvo");
    store.set("b", true);
    EXPECT_EQ(open().object("a"), PreferenceValue(true));
    EXPECT_EQ(open().object("b"), PreferenceValue(true));
}

TEST_F(PreferenceFileTest, WithoutAPathValuesHoldForThisRun) {
    PreferenceFile store("", clock);
    store.set("a", true);
    EXPECT_EQ(store.object("a"), PreferenceValue(true));
    EXPECT_FALSE(store.reloadIfChanged());
}

TEST_F(PreferenceFileTest, ALinkStaysALink) {
    folder.write("elsewhere/settings.json", "{\"a\": 1}");
    folder.link("tarvo/preferences.json", "../elsewhere/settings.json");
    auto store = open();
    EXPECT_EQ(store.object("a"), PreferenceValue(std::int64_t{1}));
    store.set("a", std::int64_t{2});
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_THAT(contentOf(folder.path("elsewhere/settings.json")), HasSubstr("\"a\": 2"));
}

TEST_F(PreferenceFileTest, ADamagedFileBehindALinkIsSetAsideWhereItIs) {
    folder.write("elsewhere/settings.json", "{");
    folder.link("tarvo/preferences.json", "../elsewhere/settings.json");
    open().set("a", true);
    EXPECT_EQ(contentOf(folder.path("elsewhere/settings.json.damaged-20251116T035313Z")), "{");
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(open().object("a"), PreferenceValue(true));
}

TEST_F(PreferenceFileTest, AWriteThatWasInterruptedLeavesTheOldValuesAndDoesNotHinderTheNext) {
    open().set("a", std::int64_t{1});
    folder.write("tarvo/preferences.json.new", "{\"a\": 2, \"b"); // killed before the rename
    auto store = open();
    EXPECT_EQ(store.object("a"), PreferenceValue(std::int64_t{1}));
    store.set("a", std::int64_t{3});
    EXPECT_EQ(open().object("a"), PreferenceValue(std::int64_t{3}));
    EXPECT_THAT(files(), ElementsAre("preferences.json"));
}

TEST_F(PreferenceFileTest, TwoInstancesKeepEachOthersKeys) {
    auto one = open();
    auto other = open();
    one.set("a", std::int64_t{1});
    other.set("b", std::int64_t{2});
    one.set("c", std::int64_t{3});
    const auto later = open();
    EXPECT_EQ(later.object("a"), PreferenceValue(std::int64_t{1}));
    EXPECT_EQ(later.object("b"), PreferenceValue(std::int64_t{2}));
    EXPECT_EQ(later.object("c"), PreferenceValue(std::int64_t{3}));
}

TEST_F(PreferenceFileTest, ARemovalByAnotherInstanceIsNotUndone) {
    auto one = open();
    one.set("a", true);
    auto other = open();
    other.remove("a");
    one.set("b", true);
    EXPECT_FALSE(open().object("a"));
}

TEST_F(PreferenceFileTest, AChangeByAnotherInstanceIsNoticedOnce) {
    auto one = open();
    auto other = open();
    int changes = 0;
    const auto subscription = one.observe([&] { ++changes; });
    other.set("a", true);
    EXPECT_FALSE(one.object("a"));
    EXPECT_TRUE(one.reloadIfChanged());
    EXPECT_EQ(one.object("a"), PreferenceValue(true));
    EXPECT_FALSE(one.reloadIfChanged());
    EXPECT_EQ(changes, 1);
}

TEST_F(PreferenceFileTest, AnOwnWriteIsNoChangeByAnother) {
    auto store = open();
    store.set("a", true);
    EXPECT_FALSE(store.reloadIfChanged());
}

TEST_F(PreferenceFileTest, AFileThatWasWrittenAgainWithTheSameValuesIsNoChange) {
    auto store = open();
    store.set("a", true);
    folder.write("tarvo/preferences.json", "{ \"a\":true }");
    EXPECT_FALSE(store.reloadIfChanged());
}

TEST_F(PreferenceFileTest, AFileThatWasDeletedMeansEveryDefaultAgain) {
    auto store = open();
    store.set("a", true);
    folder.remove("tarvo");
    EXPECT_TRUE(store.reloadIfChanged());
    EXPECT_FALSE(store.object("a"));
    store.set("b", true);
    EXPECT_FALSE(open().object("a"));
}

TEST_F(PreferenceFileTest, AFileThatIsDamagedWhileWeRunKeepsTheValuesAndIsSetAsideAtTheNextWrite) {
    auto store = open();
    store.set("a", true);
    folder.write("tarvo/preferences.json", "{\"a\": true, \"b");
    EXPECT_FALSE(store.reloadIfChanged());
    EXPECT_EQ(store.object("a"), PreferenceValue(true));
    store.set("c", true);
    const auto later = open();
    EXPECT_EQ(later.object("a"), PreferenceValue(true));
    EXPECT_EQ(later.object("c"), PreferenceValue(true));
    EXPECT_EQ(contentOf(path + ".damaged-20251116T035313Z"), "{\"a\": true, \"b");
}

TEST_F(PreferenceFileTest, ManyInstancesThatWriteAtOnceLoseNothing) {
    std::vector<std::thread> writers;
    for (int writer = 0; writer < 3; ++writer) {
        writers.emplace_back([this, writer] {
            auto store = open();
            for (int i = 0; i < 10; ++i)
                store.set(std::to_string(writer) + "." + std::to_string(i), true);
        });
    }
    for (auto& writer : writers)
        writer.join();
    const auto store = open();
    for (int writer = 0; writer < 3; ++writer) {
        for (int i = 0; i < 10; ++i) {
            EXPECT_TRUE(store.object(std::to_string(writer) + "." + std::to_string(i))) << writer << ' ' << i;
        }
    }
}

} // namespace
} // namespace tarvo::linux_platform
