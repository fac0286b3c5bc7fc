#include "readers/disk_space.h"

#include "support/scripted_volumes.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(DiskSpace, IsGivenInDecimalGigabytes) {
    ScriptedVolumes volumes;
    volumes.rootAnswer = VolumeValues{.path = "/",
                                      .name = {},
                                      .availableForImportantUsage = 83'500'000'000,
                                      .totalCapacity = 500'000'000'000,
                                      .isRemovable = {},
                                      .isInternal = {}};
    EXPECT_EQ(diskSpace(volumes), (DiskSpace{83.5, 500}));
}

TEST(DiskSpace, IsAbsentUnlessBothCapacitiesAreKnown) {
    ScriptedVolumes volumes;
    EXPECT_EQ(diskSpace(volumes), std::nullopt);
    volumes.rootAnswer.emplace();
    volumes.rootAnswer->totalCapacity = 1;
    EXPECT_EQ(diskSpace(volumes), std::nullopt);
    volumes.rootAnswer->totalCapacity.reset();
    volumes.rootAnswer->availableForImportantUsage = 1;
    EXPECT_EQ(diskSpace(volumes), std::nullopt);
}

} // namespace tarvo
