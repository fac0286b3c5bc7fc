#include "platform/linux/process_stat.h"

#include "support/process_tree.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo::linux_platform {
namespace {

TEST(ProcessStat, TheWantedFieldsAreTakenByTheirNumbers) {
    const auto stat = parseProcessStat(
        "20868 (head) R 20866 20866 5264 0 -1 4194304 105 0 0 0 31 12 0 0 20 0 3 0 141108 2998272 414 "
        "18446744073709551615 94297689395200 94297689419305 140735652225920 0 0 0 0 0 0 0 0 0 17 0 0 0 0 0 "
        "0\n");
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->name, "head");
    EXPECT_EQ(stat->state, 'R');
    EXPECT_FALSE(stat->isKernelThread);
    EXPECT_EQ(stat->ticks, 43U);
    EXPECT_EQ(stat->threads, 3U);
    EXPECT_EQ(stat->startTime, 141108U);
    EXPECT_EQ(stat->residentPages, 414U);
}

TEST(ProcessStat, TheNameReachesToTheLastParenthesis) {
    for (const std::string name :
         {"we ) (x y", ")", "(", ") R 1 2 3", "a\nb", " ", "\xFF\xFE", "Web Content", ""}) {
        MadeProcess made;
        made.name = name;
        made.userTicks = 5;
        const auto text = statText(7, made);
        const auto stat = parseProcessStat(text);
        ASSERT_TRUE(stat) << name;
        EXPECT_EQ(stat->name, name);
        EXPECT_EQ(stat->ticks, 5U) << name;
    }
}

TEST(ProcessStat, AKernelThreadIsKnownByItsFlag) {
    MadeProcess made;
    made.flags = 69238880; // what kworker threads show
    EXPECT_TRUE(parseProcessStat(statText(9, made))->isKernelThread);
    made.flags = 4194560;
    EXPECT_FALSE(parseProcessStat(statText(9, made))->isKernelThread);
}

TEST(ProcessStat, AZombieIsOneWithoutOtherThreads) {
    MadeProcess made;
    EXPECT_FALSE(parseProcessStat(statText(9, made))->isZombie());
    made.state = 'Z';
    EXPECT_TRUE(parseProcessStat(statText(9, made))->isZombie());
    made.threads = 2; // the first thread has ended, the others run
    EXPECT_FALSE(parseProcessStat(statText(9, made))->isZombie());
}

TEST(ProcessStat, FewerFieldsThanWantedAreNoProcess) {
    const auto text = statText(9, {});
    const auto residentEnd = text.find(" 18446744073709551615");
    EXPECT_TRUE(parseProcessStat(text.substr(0, residentEnd)));
    for (std::size_t length = 0; length + 2 < residentEnd; ++length)
        EXPECT_FALSE(parseProcessStat(text.substr(0, length))) << length;
}

TEST(ProcessStat, FurtherFieldsDoNotMatter) {
    EXPECT_TRUE(parseProcessStat(statText(9, {}) + " 1 2 3"));
}

TEST(ProcessStat, WhatIsNoNumberIsNoProcess) {
    EXPECT_FALSE(parseProcessStat("9 (a) S 1 1 1 0 -1 x 1 0 0 0 1 1 0 0 20 0 1 0 5 6 7 8"));
    EXPECT_FALSE(parseProcessStat("9 (a) S 1 1 1 0 -1 1 1 0 0 0 1 -1 0 0 20 0 1 0 5 6 7 8"));
    EXPECT_FALSE(parseProcessStat("9 )a( S 1 1 1 0 -1 1 1 0 0 0 1 1 0 0 20 0 1 0 5 6 7 8"));
    EXPECT_FALSE(parseProcessStat("nonsense"));
    EXPECT_FALSE(parseProcessStat(""));
}

} // namespace
} // namespace tarvo::linux_platform
