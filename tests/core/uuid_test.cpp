#include "core/uuid.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace tarvo {
namespace {

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

} // namespace
} // namespace tarvo
