#include "ui/sections/loader.h"

#include "support/manual_dispatcher.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tarvo::ui {
namespace {

struct LoaderTest : ::testing::Test {
    LoaderTest() {
        loading.emplace(
            inBackground<int>(dispatcher, [this] { return ++reads; }),
            [this](int value) { log += "publish " + std::to_string(value) + ";"; },
            [this] { log += loading->isLoading() ? "begin;" : "end;"; });
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    int reads = 0;
    std::string log;
    std::optional<Loading<int>> loading;
};

} // namespace

TEST_F(LoaderTest, ReadsInTheBackgroundAndPublishesOnTheMainThread) {
    loading->start();
    EXPECT_TRUE(loading->isLoading());
    EXPECT_EQ(reads, 0);
    dispatcher.runBackground();
    EXPECT_EQ(reads, 1);
    EXPECT_EQ(log, "begin;");
    dispatcher.runMain();
    EXPECT_EQ(log, "begin;publish 1;end;");
    EXPECT_FALSE(loading->isLoading());
    EXPECT_TRUE(loading->hasLoaded());
}

TEST_F(LoaderTest, StartsNoSecondLoadMeanwhile) {
    loading->start();
    loading->start();
    dispatcher.runAll();
    EXPECT_EQ(reads, 1);
    loading->start();
    dispatcher.runAll();
    EXPECT_EQ(reads, 2);
}

TEST_F(LoaderTest, LoadsOnceMoreWhenTheLoadUnderWayIsOutOfDate) {
    loading->start();
    loading->startAfresh();
    loading->startAfresh();
    dispatcher.runAll();
    EXPECT_EQ(reads, 2);
    EXPECT_FALSE(loading->isLoading());
    loading->startAfresh();
    dispatcher.runAll();
    EXPECT_EQ(reads, 3);
}

TEST_F(LoaderTest, PublishesNothingOnceItIsGone) {
    loading->start();
    dispatcher.runBackground();
    loading.reset();
    dispatcher.runAll();
    EXPECT_EQ(log, "begin;");
}

TEST_F(LoaderTest, GoneBeforeTheReadItStillPublishesNothing) {
    loading->start();
    loading.reset();
    dispatcher.runAll();
    EXPECT_EQ(log, "begin;");
}

TEST_F(LoaderTest, WithoutALoaderNeverLoads) {
    Loading<int> none(
        {}, [](int) { FAIL(); }, [] { FAIL(); });
    none.start();
    none.startAfresh();
    EXPECT_FALSE(none.isLoading());
}

} // namespace tarvo::ui
