#include "platform/linux/interface_addresses.h"

#include "platform/linux/linux_network_interfaces.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr unsigned up = 0x1;
constexpr unsigned loopback = 0x8;

constexpr std::uint32_t ip(unsigned a, unsigned b, unsigned c, unsigned d) {
    return a << 24U | b << 16U | c << 8U | d;
}

PlacedAddress physical(std::string name, std::uint32_t address, unsigned index) {
    return {.entry = {std::move(name), up, address}, .index = index, .isPhysical = true};
}

PlacedAddress other(std::string name, std::uint32_t address) {
    return {.entry = {std::move(name), up, address}, .index = 0, .isPhysical = false};
}

std::vector<std::string> names(std::vector<PlacedAddress> addresses,
                               const std::vector<DefaultRoute>& routes) {
    std::vector<std::string> result;
    for (const auto& entry : orderedAddresses(std::move(addresses), routes))
        result.push_back(entry.interfaceName);
    return result;
}

} // namespace

TEST(InterfaceAddresses, AreTextWithTheirFlags) {
    const auto entries = orderedAddresses({{.entry = {"lo", up | loopback, ip(127, 0, 0, 1)}}}, {});
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].interfaceName, "lo");
    EXPECT_EQ(entries[0].address, "127.0.0.1");
    EXPECT_TRUE(entries[0].isUp);
    EXPECT_TRUE(entries[0].isLoopback);
}

TEST(InterfaceAddresses, OfHardwareHaveNamesThatBeginWithEn) {
    EXPECT_THAT(
        names({physical("enp3s0", 1, 2), physical("wlan0", 2, 3), other("enx", 3), other("tun0", 4)}, {}),
        ElementsAre("v:enx", "tun0", "enp3s0", "en:wlan0"));
}

TEST(InterfaceAddresses, OfTheBestPhysicalDefaultRouteComeFirstAmongThePhysical) {
    const std::vector<DefaultRoute> routes{{"wlan0", 600}, {"eth1", 100}, {"eth1", 700}};
    EXPECT_THAT(names({physical("eth0", 1, 2), physical("wlan0", 2, 5), physical("eth1", 3, 3)}, routes),
                ElementsAre("en:eth1", "en:wlan0", "en:eth0"));
}

TEST(InterfaceAddresses, WithoutRoutesFollowTheInterfacesNumber) {
    EXPECT_THAT(names({physical("wlan0", 1, 3), physical("eth0", 2, 2)}, {}),
                ElementsAre("en:eth0", "en:wlan0"));
}

TEST(InterfaceAddresses, OfTheDefaultRouteComeLastAmongTheOthers) {
    EXPECT_THAT(names({other("tun0", 1), other("docker0", 2), other("virbr0", 3)}, {{"tun0", 50}}),
                ElementsAre("docker0", "virbr0", "tun0"));
}

TEST(InterfaceAddresses, ThatAMachineGaveItselfComeFirstAndAreNotPhysical) {
    EXPECT_THAT(names({other("docker0", 2), physical("eth0", ip(169, 254, 7, 7), 2)}, {{"eth0", 0}}),
                ElementsAre("eth0", "docker0"));
}

TEST(InterfaceAddresses, OfOneInterfaceKeepTheKernelsOrder) {
    const auto entries = orderedAddresses({physical("eth0", 9, 2), physical("eth0", 5, 2)}, {});
    EXPECT_EQ(entries[0].address, "0.0.0.9");
    EXPECT_EQ(entries[1].address, "0.0.0.5");
}

TEST(LinuxNetworkInterfaces, PlaceAddressesByWhatTheirInterfacesStandOn) {
    const TemporaryFolder folder;
    const std::string net = "sys/class/net/";
    folder.makeFolder(net + "eth0/device");
    folder.write(net + "eth0/ifindex", "2\n");
    folder.write(net + "br0/uevent", "DEVTYPE=bridge\n");
    folder.write(net + "br0/ifindex", "7\n");
    folder.makeFolder(net + "br0/lower_eth0");
    folder.write("proc/net/route", "tun0\t00000000\t0\t0003\t0\t0\t50\t00000000\t0\t0\t0\n"
                                   "br0\t00000000\t0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n");
    const auto list = [] {
        return std::vector<InterfaceAddress>{{"lo", up | loopback, ip(127, 0, 0, 1)},
                                             {"tun0", up, ip(10, 8, 0, 2)},
                                             {"br0", up, ip(192, 168, 1, 9)}};
    };
    LinuxNetworkInterfaces interfaces(Root(folder.path("")), list);
    const auto entries = interfaces.addresses();
    ASSERT_TRUE(entries);
    ASSERT_EQ(entries->size(), 3U);
    EXPECT_EQ((*entries)[1].interfaceName, "tun0");
    EXPECT_EQ((*entries)[2].interfaceName, "en:br0");
    EXPECT_EQ((*entries)[2].address, "192.168.1.9");
}

TEST(LinuxNetworkInterfaces, OfARecordedMachineHaveNoAddresses) {
    const TemporaryFolder folder;
    EXPECT_EQ(LinuxNetworkInterfaces(Root(folder.path(""))).addresses(), std::nullopt);
}

TEST(LinuxNetworkInterfaces, OfThisMachineIncludeLoopback) {
    const auto addresses = systemAddresses();
    ASSERT_TRUE(addresses);
    const auto isLocalHost = [](const InterfaceAddress& entry) { return entry.address == ip(127, 0, 0, 1); };
    EXPECT_TRUE(std::any_of(addresses->begin(), addresses->end(), isLocalHost));
}

} // namespace tarvo::linux_platform
