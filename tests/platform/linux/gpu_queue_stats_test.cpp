#include "platform/linux/gpu_queue_stats.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(GPUQueueStats, TakesRowsAndLeavesOutTheHeader) {
    const auto queues = parseGPUQueues("queue    timestamp        jobs        runtime\n"
                                       "bin      239043069420     22620       17438164056\n"
                                       "render   239043069420     22619       23300456\n"
                                       "tfu      239043069420\n"
                                       "csd      x 0 0\n");
    ASSERT_EQ(queues.size(), 2U);
    EXPECT_EQ(queues.at("bin"), (GPUQueue{239'043'069'420, 17'438'164'056}));
    EXPECT_EQ(queues.at("render").runtime, 23'300'456U);
    EXPECT_TRUE(parseGPUQueues("").empty());
}

TEST(GPUQueueStats, UseIsThatOfTheBusiestQueue) {
    const GPUQueues before{{"bin", {1000, 100}}, {"render", {1000, 500}}};
    const GPUQueues now{{"bin", {2000, 200}}, {"render", {2000, 1150}}};
    EXPECT_DOUBLE_EQ(busiestQueue(before, now).value(), 65);
}

TEST(GPUQueueStats, UseIsAbsentWithoutAnEarlierReading) {
    const GPUQueues now{{"bin", {2000, 200}}};
    EXPECT_EQ(busiestQueue({}, now), std::nullopt);
    EXPECT_EQ(busiestQueue(now, now), std::nullopt);
    EXPECT_EQ(busiestQueue(now, {}), std::nullopt);
}

TEST(GPUQueueStats, UseStaysBetweenZeroAndAHundred) {
    EXPECT_DOUBLE_EQ(busiestQueue({{"bin", {1000, 500}}}, {{"bin", {2000, 100}}}).value(), 0);
    EXPECT_DOUBLE_EQ(busiestQueue({{"bin", {1000, 500}}}, {{"bin", {2000, 5000}}}).value(), 100);
}

} // namespace tarvo::linux_platform
