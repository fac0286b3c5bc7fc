#include "readers/load_averages.h"

#include "support/scripted_host_statistics.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(LoadAverages, AreHandedOnInOrder) {
    ScriptedHostStatistics host;
    host.loads = {0.5, 1.25, 2};
    const auto loads = loadAverages(host);
    ASSERT_TRUE(loads);
    EXPECT_EQ(loads->one, 0.5);
    EXPECT_EQ(loads->five, 1.25);
    EXPECT_EQ(loads->fifteen, 2);
}

TEST(LoadAverages, AreAbsentWhenUnreadable) {
    ScriptedHostStatistics host;
    EXPECT_FALSE(loadAverages(host));
}

} // namespace tarvo
