#include "platform/linux/link_counters.h"

#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <map>

namespace tarvo::linux_platform {

namespace {

class LinkCountersOfATree : public testing::Test {
protected:
    // Interface n of the list has received n + 1 bytes and sent (n + 1) x 100.
    void listInterfaces(const std::vector<std::string>& names) {
        std::string text = "Inter-|   Receive | Transmit\n face |bytes |bytes\n";
        std::uint64_t number = 0;
        for (const auto& name : names) {
            ++number;
            text += fmt::format("{}: {} 0 0 0 0 0 0 0 {} 0 0 0 0 0 0 0\n", name, number, number * 100);
        }
        folder.write("proc/net/dev", text);
    }
    void add(const std::string& name, bool hasDevice, const std::string& flags = "0x1003",
             const std::string& deviceType = "", int type = 1) {
        const auto path = "sys/class/net/" + name + "/";
        const auto index = std::to_string(++lastIndex);
        folder.write(path + "flags", flags + "\n");
        folder.write(path + "ifindex", index + "\n");
        folder.write(path + "iflink", index + "\n");
        folder.write(path + "type", std::to_string(type) + "\n");
        folder.write(path + "uevent", deviceType.empty() ? "" : "DEVTYPE=" + deviceType + "\n");
        if (hasDevice) folder.makeFolder(path + "device");
    }
    // Received bytes by position; absent ones are not counted.
    std::map<std::size_t, std::uint64_t> counted() {
        EXPECT_TRUE(counters.read(entries));
        std::map<std::size_t, std::uint64_t> result;
        for (std::size_t index = 0; index < entries.size(); ++index) {
            const auto& entry = entries[index];
            if (entry.statistics) result[index] = entry.statistics->receivedBytes;
        }
        return result;
    }
    using Counted = std::map<std::size_t, std::uint64_t>;

    TemporaryFolder folder;
    LinkCounters counters{Root(folder.path(""))};
    std::vector<LinkEntry> entries;
    int lastIndex = 0;
};

} // namespace

TEST_F(LinkCountersOfATree, CountHardwareAndNothingAboveIt) {
    listInterfaces(
        {"lo", "eth0", "wlan0", "br0", "veth0", "docker0", "bond0", "eth1", "eth2", "tun0", "wg0", "eth0.5"});
    add("lo", false, "0x9", "", 772);
    add("eth0", true);
    add("wlan0", true, "0x1003", "wlan");
    add("br0", false, "0x1003", "bridge");
    add("veth0", false);
    add("docker0", false, "0x1003", "bridge");
    add("bond0", false, "0x1403", "bond");
    add("eth1", true, "0x1803");
    add("eth2", true, "0x1803");
    folder.link("sys/class/net/eth1/master", "../bond0");
    folder.link("sys/class/net/eth2/master", "../bond0");
    add("tun0", false, "0x10d1", "", 65534);
    add("wg0", false, "0x91", "wireguard", 65534);
    add("eth0.5", false, "0x1003", "vlan");
    EXPECT_EQ(counted(), (Counted{{1, 2}, {2, 3}, {7, 8}, {8, 9}}));
    EXPECT_EQ(entries.size(), 12U);
    EXPECT_EQ(entries[1].statistics->sentBytes, 200U);
    EXPECT_TRUE(entries[1].isUp);
    EXPECT_TRUE(entries[0].isLoopback);
}

TEST_F(LinkCountersOfATree, FollowTheFlagsOfWhatCounts) {
    listInterfaces({"eth0"});
    add("eth0", true);
    EXPECT_EQ(counted(), (Counted{{0, 1}}));
    EXPECT_TRUE(entries[0].isUp);
    folder.write("sys/class/net/eth0/flags", "0x1002\n");
    counted();
    EXPECT_FALSE(entries[0].isUp);
}

TEST_F(LinkCountersOfATree, FollowInterfacesThatComeGoAndChangePlaces) {
    listInterfaces({"eth0", "br0"});
    add("eth0", true);
    add("br0", false, "0x1003", "bridge");
    EXPECT_EQ(counted(), (Counted{{0, 1}}));
    listInterfaces({"br0", "eth0", "usb0"});
    add("usb0", true);
    EXPECT_EQ(counted(), (Counted{{1, 2}, {2, 3}}));
    listInterfaces({"br0"});
    EXPECT_EQ(counted(), Counted{});
    EXPECT_EQ(entries.size(), 1U);
}

TEST_F(LinkCountersOfATree, LookAgainAtAnInterfaceWhoseFlagsAreGone) {
    listInterfaces({"eth0"});
    add("eth0", true);
    EXPECT_EQ(counted(), (Counted{{0, 1}}));
    folder.write("sys/class/net/eth0/flags", "");
    counted();
    EXPECT_FALSE(entries[0].isUp);
    folder.remove("sys/class/net/eth0");
    add("eth0", false, "0x1003", "bridge");
    EXPECT_EQ(counted(), Counted{});
}

TEST_F(LinkCountersOfATree, CountDialUpOnlyWhileNoHardwareIsUp) {
    listInterfaces({"eth0", "ppp0"});
    add("eth0", true);
    add("ppp0", false, "0x10d1", "ppp", 512);
    EXPECT_EQ(counted(), (Counted{{0, 1}}));
    folder.write("sys/class/net/eth0/flags", "0x1002\n");
    EXPECT_EQ(counted(), (Counted{{0, 1}, {1, 2}}));
    EXPECT_FALSE(entries[0].isUp);
    EXPECT_TRUE(entries[1].isUp);
}

TEST_F(LinkCountersOfATree, CountPlainVirtualInterfacesInAContainer) {
    listInterfaces({"lo", "eth0", "br0", "tun0", "veth1"});
    add("lo", false, "0x9", "", 772);
    add("eth0", false);
    add("br0", false, "0x1003", "bridge");
    add("tun0", false, "0x10d1", "", 65534);
    add("veth1", false);
    folder.link("sys/class/net/veth1/master", "../br0");
    EXPECT_EQ(counted(), (Counted{{1, 2}}));
}

TEST_F(LinkCountersOfATree, CountNothingWhereTheClassesAreHidden) {
    listInterfaces({"lo", "eth0"});
    counted();
    EXPECT_FALSE(entries[0].isUp);
    EXPECT_FALSE(entries[1].isUp);
}

TEST_F(LinkCountersOfATree, DoNotHandOutSumsThatDoNotFit) {
    folder.write("proc/net/dev", "eth0: 18446744073709551615 0 0 0 0 0 0 0 5\neth1: 1 0 0 0 0 0 0 0 5\n");
    add("eth0", true);
    add("eth1", true);
    EXPECT_EQ(counted(), (Counted{{0, UINT64_MAX}}));
}

TEST_F(LinkCountersOfATree, FailWithoutCounters) {
    EXPECT_FALSE(counters.read(entries));
    folder.write("proc/net/dev", "");
    EXPECT_FALSE(counters.read(entries));
    folder.write("proc/net/dev", "garbage\n");
    EXPECT_TRUE(counters.read(entries));
    EXPECT_TRUE(entries.empty());
}

} // namespace tarvo::linux_platform
