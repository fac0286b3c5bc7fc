#include "platform/linux/interface_facts.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

namespace {

InterfaceFacts hardware() {
    InterfaceFacts facts;
    facts.flags = 0x1003;
    facts.index = facts.linkIndex = 2;
    facts.type = 1;
    facts.hasDevice = true;
    return facts;
}

InterfaceFacts plainVirtual() {
    auto facts = hardware();
    facts.hasDevice = false;
    return facts;
}

} // namespace

TEST(InterfaceFacts, AreReadFromItsFolder) {
    const TemporaryFolder folder;
    const std::string net = "sys/class/net/";
    folder.write(net + "wlan0/flags", "0x1003\n");
    folder.write(net + "wlan0/ifindex", "3\n");
    folder.write(net + "wlan0/iflink", "4\n");
    folder.write(net + "wlan0/type", "1\n");
    folder.write(net + "wlan0/uevent", "DEVTYPE=wlan\nINTERFACE=wlan0\nIFINDEX=3\n");
    folder.makeFolder(net + "wlan0/device");
    folder.link(net + "wlan0/master", "../br0");
    folder.makeFolder(net + "br0/device");
    const auto facts = readInterfaceFacts(Root(folder.path("")), "wlan0");
    EXPECT_EQ(facts.flags, 0x1003U);
    EXPECT_EQ(facts.index, 3U);
    EXPECT_EQ(facts.linkIndex, 4U);
    EXPECT_EQ(facts.type, 1U);
    EXPECT_EQ(facts.deviceType, "wlan");
    EXPECT_TRUE(facts.hasDevice);
    EXPECT_TRUE(facts.isPort);
    EXPECT_TRUE(facts.masterHasDevice);
}

TEST(InterfaceFacts, OfAMissingInterfaceAreEmpty) {
    const TemporaryFolder folder;
    const auto facts = readInterfaceFacts(Root(folder.path("")), "eth0");
    EXPECT_EQ(facts.flags, 0U);
    EXPECT_EQ(facts.index, std::nullopt);
    EXPECT_EQ(facts.deviceType, "");
    EXPECT_FALSE(facts.hasDevice);
}

TEST(InterfaceRole, HardwareIsCountedAtItsEdge) {
    EXPECT_EQ(interfaceRole(hardware()), InterfaceRole::hardware);
    auto inBond = hardware();
    inBond.isPort = true;
    EXPECT_EQ(interfaceRole(inBond), InterfaceRole::hardware);
}

TEST(InterfaceRole, HardwareThatAnotherOneCarriesIsNotCounted) {
    auto switchPort = hardware();
    switchPort.linkIndex = 9;
    EXPECT_EQ(interfaceRole(switchPort), InterfaceRole::none);
    auto virtualFunction = hardware();
    virtualFunction.isPort = virtualFunction.masterHasDevice = true;
    EXPECT_EQ(interfaceRole(virtualFunction), InterfaceRole::none);
}

TEST(InterfaceRole, PlainVirtualInterfacesStandInForHardware) {
    EXPECT_EQ(interfaceRole(plainVirtual()), InterfaceRole::standIn);
    auto loopback = plainVirtual();
    loopback.flags = 0x9;
    EXPECT_EQ(interfaceRole(loopback), InterfaceRole::none);
    auto port = plainVirtual();
    port.isPort = true;
    EXPECT_EQ(interfaceRole(port), InterfaceRole::none);
    auto tunnel = plainVirtual();
    tunnel.type = 65534;
    EXPECT_EQ(interfaceRole(tunnel), InterfaceRole::none);
    for (const auto* const type : {"bridge", "bond", "vlan", "wireguard"}) {
        auto stacked = plainVirtual();
        stacked.deviceType = type;
        EXPECT_EQ(interfaceRole(stacked), InterfaceRole::none) << type;
    }
}

TEST(InterfaceRole, DialUpIsARoleOfItsOwn) {
    auto dialUp = plainVirtual();
    dialUp.type = 512;
    dialUp.deviceType = "ppp";
    EXPECT_EQ(interfaceRole(dialUp), InterfaceRole::dialUp);
}

TEST(LeadsToHardware, ThroughBridgesBondsTeamsAndVLANs) {
    const TemporaryFolder folder;
    const Root root(folder.path(""));
    const std::string net = "sys/class/net/";
    folder.makeFolder(net + "eth0/device");
    folder.write(net + "bond0/uevent", "DEVTYPE=bond\nINTERFACE=bond0\n");
    folder.makeFolder(net + "bond0/lower_eth0");
    folder.write(net + "bond0.5/uevent", "DEVTYPE=vlan\n");
    folder.makeFolder(net + "bond0.5/lower_bond0");
    folder.write(net + "br0/uevent", "INTERFACE=br0\nDEVTYPE=bridge\n");
    folder.makeFolder(net + "br0/lower_bond0.5");
    folder.write(net + "team0/uevent", "INTERFACE=team0\n");
    folder.makeFolder(net + "team0/lower_eth0");
    for (const auto* const name : {"eth0", "bond0", "bond0.5", "br0", "team0"}) {
        EXPECT_TRUE(leadsToHardware(root, name)) << name;
    }
}

TEST(LeadsToHardware, NotThroughOtherStacksOrToVirtualEnds) {
    const TemporaryFolder folder;
    const Root root(folder.path(""));
    const std::string net = "sys/class/net/";
    folder.makeFolder(net + "eth0/device");
    folder.write(net + "macvlan0/uevent", "DEVTYPE=macvlan\n");
    folder.makeFolder(net + "macvlan0/lower_eth0");
    folder.write(net + "docker0/uevent", "DEVTYPE=bridge\n");
    folder.makeFolder(net + "docker0/lower_veth1");
    folder.makeFolder(net + "veth1");
    folder.write(net + "loop0/uevent", "DEVTYPE=bridge\n");
    folder.makeFolder(net + "loop0/lower_loop0");
    for (const auto* const name : {"macvlan0", "docker0", "veth1", "loop0", "missing"}) {
        EXPECT_FALSE(leadsToHardware(root, name)) << name;
    }
}

} // namespace tarvo::linux_platform
