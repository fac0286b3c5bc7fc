#include "readers/user_volumes.h"

#include "support/scripted_volumes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

VolumeValues volume(std::string path, std::optional<std::string> name, std::optional<std::uint64_t> total) {
    VolumeValues values;
    values.path = std::move(path);
    values.name = std::move(name);
    values.totalCapacity = total;
    values.availableForImportantUsage = total;
    return values;
}

std::vector<std::string> names(ScriptedVolumes& volumes) {
    std::vector<std::string> result;
    for (const auto& row : listUserVolumes(volumes))
        result.push_back(row.name);
    return result;
}

} // namespace

TEST(UserVolumes, DescribeEachVolume) {
    ScriptedVolumes volumes;
    auto stick = volume("/media/ann/STICK", "STICK", 32'000'000'000);
    stick.availableForImportantUsage = 8'000'000'000;
    stick.isRemovable = true;
    volumes.mountedAnswer = {stick};
    const DiskVolume expected{
        .name = "STICK", .path = "/media/ann/STICK", .freeGB = 8, .totalGB = 32, .isRemovable = true};
    EXPECT_THAT(listUserVolumes(volumes), ElementsAre(expected));
}

TEST(UserVolumes, UnknownValuesAreNeutral) {
    ScriptedVolumes volumes;
    auto plain = volume("/srv/data", std::nullopt, 1'000'000'000);
    plain.availableForImportantUsage.reset();
    volumes.mountedAnswer = {plain};
    const DiskVolume expected{
        .name = "data", .path = "/srv/data", .freeGB = 0, .totalGB = 1, .isRemovable = false};
    EXPECT_THAT(listUserVolumes(volumes), ElementsAre(expected));
}

TEST(UserVolumes, APseudoFileSystemDoesNotAppear) {
    ScriptedVolumes volumes;
    volumes.mountedAnswer = {volume("/a", "zero", 0), volume("/b", "unknown", std::nullopt),
                             volume("/c", "one", 1)};
    EXPECT_THAT(names(volumes), ElementsAre("one"));
}

TEST(UserVolumes, AreSortedByCodePointsWithTheRootFirst) {
    ScriptedVolumes volumes;
    volumes.mountedAnswer = {volume("/1", "data", 1), volume("/2", "Data", 1), volume("/3", "\xC5\x98", 1),
                             volume("/", "zroot", 1)};
    EXPECT_THAT(names(volumes), ElementsAre("zroot", "Data", "data", "\xC5\x98"));
}

TEST(UserVolumes, OfEqualNamesKeepTheirOrder) {
    ScriptedVolumes volumes;
    volumes.mountedAnswer = {volume("/z", "same", 1), volume("/a", "same", 1)};
    const auto rows = listUserVolumes(volumes);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].path, "/z");
}

TEST(UserVolumes, WithoutANameTakeTheLastComponentOfTheirPath) {
    ScriptedVolumes volumes;
    volumes.mountedAnswer = {volume("/", std::nullopt, 1), volume("/mnt/disk/", std::nullopt, 1)};
    EXPECT_THAT(names(volumes), ElementsAre("/", "disk"));
}

TEST(UserVolumes, AreEmptyWithoutAList) {
    ScriptedVolumes volumes;
    EXPECT_THAT(listUserVolumes(volumes), IsEmpty());
}

} // namespace tarvo
