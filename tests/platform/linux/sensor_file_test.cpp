#include "platform/linux/sensor_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo::linux_platform {
namespace {

TEST(SensorFile, ReadsItsLineAnewEachTime) {
    const TemporaryFolder folder;
    folder.write("chip/temp1_input", "45000\n");
    SensorFile file(openSensorFolder(folder.path("chip")), "temp1_input");
    EXPECT_EQ(file.readInteger(), 45000);
    folder.write("chip/temp1_input", "-250");
    EXPECT_EQ(file.readInteger(), -250);
    EXPECT_EQ(file.read(), "-250");
}

TEST(SensorFile, AnythingButAnIntegerIsAbsent) {
    const TemporaryFolder folder;
    folder.makeFolder("chip/folder");
    SensorFile file(openSensorFolder(folder.path("chip")), "temp1_input");
    EXPECT_EQ(file.readInteger(), std::nullopt) << "not there yet";
    for (const char* text :
         {"", "\n", " 1\n", "1.5\n", "45000 \n", "0x10\n", "99999999999999999999\n", "1\n2\n"}) {
        folder.write("chip/temp1_input", text);
        EXPECT_EQ(file.readInteger(), std::nullopt) << text;
    }
    SensorFile notAFile(openSensorFolder(folder.path("chip")), "folder");
    EXPECT_EQ(notAFile.readInteger(), std::nullopt);
}

TEST(SensorFile, ADeviceThatVanishedIsNotReplacedByAnotherOfItsNumber) {
    const TemporaryFolder folder;
    folder.write("hwmon1/temp1_input", "45000\n");
    folder.write("hwmon1/temp2_input", "46000\n");
    const auto opened = openSensorFolder(folder.path("hwmon1"));
    SensorFile notReadYet(opened, "temp2_input");
    folder.remove("hwmon1");
    folder.write("hwmon1/temp2_input", "99000\n");
    EXPECT_EQ(notReadYet.readInteger(), std::nullopt);
}

TEST(SensorFile, AMissingFolderHasNoFiles) {
    SensorFile file(openSensorFolder("/nonexistent/tarvo"), "temp1_input");
    EXPECT_EQ(file.readInteger(), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
