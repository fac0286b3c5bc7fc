#include "core/uuid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace tarvo {
namespace {

using testing::MatchesRegex;

TEST(UUID, RandomOnesDiffer) {
    std::set<UUID> seen;
    for (int i = 0; i < 1000; ++i)
        seen.insert(UUID::random());
    EXPECT_EQ(seen.size(), 1000U);
}

TEST(UUID, ThreadsDoNotRepeatEachOther) {
    const auto here = UUID::random();
    UUID there;
    std::thread([&] { there = UUID::random(); }).join();
    EXPECT_NE(here, there);
}

TEST(UUID, TheVersionIsRandom) {
    for (int i = 0; i < 100; ++i) {
        const auto id = UUID::random();
        EXPECT_EQ(id.bytes[6] >> 4, 4);
        EXPECT_EQ(id.bytes[8] >> 6, 2);
    }
}

TEST(UUID, IsWrittenInUpperCaseWithHyphensAndItsVersion) {
    for (int i = 0; i < 100; ++i) {
        EXPECT_THAT(UUID::random().text(),
                    MatchesRegex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}"));
    }
}

TEST(UUID, IsReadInEitherCase) {
    const auto upper = UUID::parse("01234567-89AB-4CDE-8F01-23456789ABCD");
    ASSERT_TRUE(upper);
    EXPECT_EQ(upper->text(), "01234567-89AB-4CDE-8F01-23456789ABCD");
    EXPECT_EQ(UUID::parse("01234567-89ab-4cde-8f01-23456789abcd"), upper);
}

TEST(UUID, IsNotReadFromAnyOtherForm) {
    for (const auto* text : {"", "0123456789AB4CDE8F0123456789ABCD", "01234567-89AB-4CDE-8F01-23456789ABC",
                             "01234567-89AB-4CDE-8F01-23456789ABCDE", "01234567-89AB-4CDE-8F01-23456789ABCG",
                             "{1234567-89AB-4CDE-8F01-23456789ABC}", "01234567+89AB-4CDE-8F01-23456789ABCD",
                             "0123456789AB--4CDE-8F01-23456789ABCD"}) {
        EXPECT_FALSE(UUID::parse(text)) << text;
    }
}

} // namespace
} // namespace tarvo
