#include "platform/linux/load_average.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(LoadAverage, IsTheFirstThreeFields) {
    EXPECT_EQ(parseLoadAverages("0.20 0.18 12.05 1/80 11206\n"), (std::array<double, 3>{0.20, 0.18, 12.05}));
    EXPECT_EQ(parseLoadAverages("1 2 3"), (std::array<double, 3>{1, 2, 3}));
}

TEST(LoadAverage, IsAbsentUnlessAllThreeAreNumbers) {
    EXPECT_EQ(parseLoadAverages(""), std::nullopt);
    EXPECT_EQ(parseLoadAverages("0.20 0.18\n0.12"), std::nullopt);
    EXPECT_EQ(parseLoadAverages("0,20 0,18 0,12\n"), std::nullopt);
    EXPECT_EQ(parseLoadAverages("0.20 nan 0.12\n"), std::nullopt);
    EXPECT_EQ(parseLoadAverages("0.20 -1 0.12\n"), std::nullopt);
    EXPECT_EQ(parseLoadAverages("inf 1 0.12\n"), std::nullopt);
}

} // namespace tarvo::linux_platform
