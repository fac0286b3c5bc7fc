#include "platform/linux/drm_fdinfo.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(DRMFdinfo, TakesBusyTimesAndCapacities) {
    const auto client = parseDRMFdinfo("pos:\t0\nflags:\t02100002\nmnt_id:\t26\n"
                                       "drm-driver:\ti915\n"
                                       "drm-client-id:\t17\n"
                                       "drm-pdev:\t0000:00:02.0\n"
                                       "drm-engine-render:\t25662044495 ns\n"
                                       "drm-engine-video:\t12 ns\n"
                                       "drm-engine-capacity-video:\t2\n");
    ASSERT_TRUE(client);
    EXPECT_EQ(client->driver, "i915");
    EXPECT_EQ(client->address, "0000:00:02.0");
    EXPECT_EQ(client->id, 17U);
    ASSERT_EQ(client->engines.size(), 2U);
    EXPECT_EQ(client->engines.at("render").busyNanoseconds, 25'662'044'495U);
    EXPECT_EQ(client->engines.at("render").capacity, 1U);
    EXPECT_EQ(client->engines.at("video").capacity, 2U);
}

TEST(DRMFdinfo, TakesCycles) {
    const auto client = parseDRMFdinfo("drm-driver:\txe\ndrm-client-id:\t3\n"
                                       "drm-cycles-rcs:\t28257900\ndrm-total-cycles-rcs:\t7655183225\n");
    ASSERT_TRUE(client);
    EXPECT_EQ(client->address, "");
    EXPECT_EQ(client->engines.at("rcs").cycles, 28'257'900U);
    EXPECT_EQ(client->engines.at("rcs").totalCycles, 7'655'183'225U);
}

TEST(DRMFdinfo, IsAbsentForOtherDescriptors) {
    EXPECT_EQ(parseDRMFdinfo(""), std::nullopt);
    EXPECT_EQ(parseDRMFdinfo("pos:\t0\nflags:\t02\n"), std::nullopt);
    EXPECT_EQ(parseDRMFdinfo("drm-driver:\ti915\n"), std::nullopt);
    EXPECT_EQ(parseDRMFdinfo("drm-client-id:\t17\n"), std::nullopt);
    EXPECT_EQ(parseDRMFdinfo("drm-driver:\ti915\ndrm-client-id:\tmany\n"), std::nullopt);
}

TEST(DRMFdinfo, PassesOverValuesItCannotRead) {
    const auto client = parseDRMFdinfo("drm-driver:\ti915\ndrm-client-id:\t1\ndrm-engine-:\t5 ns\n"
                                       "drm-engine-render:\tbusy\ndrm-engine-capacity-copy:\t0\nno colon");
    ASSERT_TRUE(client);
    EXPECT_FALSE(client->engines.contains("render"));
    EXPECT_FALSE(client->engines.contains(""));
    EXPECT_EQ(client->engines.at("copy").capacity, 1U);
}

} // namespace tarvo::linux_platform
