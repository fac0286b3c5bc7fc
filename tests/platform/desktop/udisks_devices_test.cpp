#include "platform/desktop/udisks_devices.h"

#include "support/manual_clock.h"
#include "support/mock_udisks.h"

#include <QDBusObjectPath>

#include <gtest/gtest.h>

#include <csignal>

namespace tarvo::desktop {
namespace {

const QString block = QStringLiteral("org.freedesktop.UDisks2.Block");
const QString drive = QStringLiteral("org.freedesktop.UDisks2.Drive");

QByteArray bytes(const char* text) {
    return QByteArray(text).append('\0');
}

QVariantMap blockOn(const char* device, const char* drivePath) {
    return {{"Device", bytes(device)},
            {"Drive", QVariant::fromValue(QDBusObjectPath(QString::fromUtf8(drivePath)))}};
}

std::optional<bool> removableOn(const QVariantMap& driveProperties) {
    const ManagedObjects objects{{"/block", {{block, blockOn("/dev/sda1", "/drive")}}},
                                 {"/drive", {{drive, driveProperties}}}};
    return udisksHints(objects).at("/dev/sda1").isRemovable;
}

TEST(UDisksHints, TellLabelAndWhetherToHide) {
    auto properties = blockOn("/dev/sda1", "/");
    properties["IdLabel"] = "Photos 2025";
    properties["HintIgnore"] = true;
    EXPECT_EQ(udisksHints({{"/block", {{block, properties}}}}).at("/dev/sda1"),
              (DeviceHint{"Photos 2025", std::nullopt, true}));
    EXPECT_EQ(udisksHints({{"/block", {{block, blockOn("/dev/sda1", "/")}}}}).at("/dev/sda1"), DeviceHint{});
}

TEST(UDisksHints, ADriveIsRemovableByItselfByItsMediaOrByItsBus) {
    EXPECT_EQ(removableOn({{"ConnectionBus", ""}, {"Removable", false}}), false);
    EXPECT_EQ(removableOn({{"Removable", true}}), true);
    EXPECT_EQ(removableOn({{"MediaRemovable", true}}), true);
    for (const char* bus : {"usb", "sdio", "ieee1394"})
        EXPECT_EQ(removableOn({{"ConnectionBus", bus}}), true) << bus;
    EXPECT_EQ(removableOn({{"Removable", "yes"}}), false) << "of another type";
}

TEST(UDisksHints, ADeviceIsFoundByEachOfItsPaths) {
    auto properties = blockOn("/dev/dm-0", "/");
    properties["IdLabel"] = "Home";
    properties["PreferredDevice"] = bytes("/dev/mapper/home");
    properties["Symlinks"] = QVariant::fromValue(QByteArrayList{bytes("/dev/disk/by-label/Home")});
    const auto hints = udisksHints({{"/block", {{block, properties}}}, {"/other", {}}});
    EXPECT_EQ(hints.size(), 3U);
    for (const char* path : {"/dev/dm-0", "/dev/mapper/home", "/dev/disk/by-label/Home"})
        EXPECT_EQ(hints.at(path).label, "Home") << path;
}

TEST(UDisksHints, WhatIsOfAnotherTypeIsNotKnown) {
    const QVariantMap properties{{"Device", bytes("/dev/sda1")},
                                 {"IdLabel", QStringList{"a", "b"}},
                                 {"HintIgnore", "true"},
                                 {"Drive", 3},
                                 {"Symlinks", "/dev/disk/by-id/one"}};
    const auto hints = udisksHints({{"/block", {{block, properties}}}, {"/empty", {{block, {}}}}});
    EXPECT_EQ(hints.size(), 1U);
    EXPECT_EQ(hints.at("/dev/sda1"), DeviceHint{});
}

TEST(UDisksHints, ADriveThatIsNotThereLeavesRemovableUnknown) {
    EXPECT_EQ(udisksHints({{"/block", {{block, blockOn("/dev/sda1", "/gone")}}}}).at("/dev/sda1").isRemovable,
              std::nullopt);
}

class UDisks : public testing::Test {
protected:
    TestBus bus;
    ManualClock clock;
    int connections = 0;
    UDisksDevices devices{[this] {
                              ++connections;
                              return connection;
                          },
                          clock};
    QDBusConnection connection = bus.connect();
};

TEST_F(UDisks, IsAskedOnceForAListing) {
    if (!MockService::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
    MockUDisks udisks(bus);
    ASSERT_TRUE(udisks.start());
    udisks.hold("{'/org/freedesktop/UDisks2/block_devices/sdb1': {'org.freedesktop.UDisks2.Block': {"
                "'Device': dbus.Array(b'/dev/sdb1\\0', signature='y'), 'IdLabel': 'Stick', "
                "'Symlinks': dbus.Array([dbus.Array(b'/dev/disk/by-id/stick\\0', signature='y')], "
                "signature='ay'), "
                "'Drive': dbus.ObjectPath('/org/freedesktop/UDisks2/drives/Stick')}}, "
                "'/org/freedesktop/UDisks2/drives/Stick': {'org.freedesktop.UDisks2.Drive': {"
                "'ConnectionBus': 'usb'}}}");
    const DeviceHint stick{"Stick", true, false};
    EXPECT_EQ(devices.hint("/dev/sdb1"), stick);
    EXPECT_EQ(devices.hint("/dev/disk/by-id/stick"), stick);
    EXPECT_EQ(devices.hint("/dev/sda1"), DeviceHint{});
    EXPECT_EQ(connections, 1);
    udisks.hold("{}");
    clock.advance(std::chrono::seconds(5));
    EXPECT_EQ(devices.hint("/dev/sdb1"), DeviceHint{}) << "it was taken out";
}

TEST_F(UDisks, ThatDoesNotAnswerIsAskedOnceForAListing) {
    if (!MockService::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
    MockUDisks udisks(bus);
    ASSERT_TRUE(udisks.start());
    ASSERT_EQ(::kill(static_cast<pid_t>(udisks.processId()), SIGSTOP), 0);
    UDisksDevices hurried([this] { return ++connections, connection; }, clock, std::chrono::milliseconds(50));
    EXPECT_EQ(hurried.hint("/dev/sda1"), DeviceHint{});
    EXPECT_EQ(hurried.hint("/dev/sdb1"), DeviceHint{});
    EXPECT_EQ(connections, 1);
}

TEST_F(UDisks, ThatDoesNotRunKnowsNothing) {
    EXPECT_EQ(devices.hint("/dev/sda1"), DeviceHint{});
    bus.stop();
    clock.advance(std::chrono::seconds(5));
    EXPECT_EQ(devices.hint("/dev/sda1"), DeviceHint{});
}

} // namespace
} // namespace tarvo::desktop
