#include "platform/linux/nl80211.h"

#include "platform/linux/linux_wifi_client.h"
#include "platform/linux/netlink_message.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <linux/genetlink.h>
#include <linux/nl80211.h>

namespace tarvo::linux_platform {

namespace {

std::string bytesOf(std::uint32_t value) {
    return std::string(reinterpret_cast<const char*>(&value), sizeof(value));
}

const std::string genericHeader(sizeof(genlmsghdr), '\0');

std::string interfacePayload(const std::string& name, std::uint32_t type, const std::string& ssid) {
    auto payload = genericHeader;
    payload += netlinkAttributeBytes(NL80211_ATTR_IFINDEX, bytesOf(3));
    payload += netlinkAttributeBytes(NL80211_ATTR_IFNAME, name + '\0');
    payload += netlinkAttributeBytes(NL80211_ATTR_IFTYPE, bytesOf(type));
    if (!ssid.empty()) payload += netlinkAttributeBytes(NL80211_ATTR_SSID, ssid);
    return payload;
}

WirelessInterface station(std::string name, std::optional<std::string> ssid) {
    return {.name = std::move(name), .isStation = true, .ssid = std::move(ssid)};
}

} // namespace

TEST(NL80211, ReadsTheNumberOfTheFamily) {
    const std::string number("\x1c\0", 2);
    EXPECT_EQ(parseFamilyNumber(genericHeader + netlinkAttributeBytes(CTRL_ATTR_FAMILY_ID, number)), 28);
    EXPECT_EQ(parseFamilyNumber(genericHeader), std::nullopt);
    EXPECT_EQ(parseFamilyNumber(""), std::nullopt);
}

TEST(NL80211, ReadsAnInterface) {
    EXPECT_EQ(parseWirelessInterface(interfacePayload("wlan0", NL80211_IFTYPE_STATION, "Home")),
              station("wlan0", "Home"));
    const auto accessPoint = parseWirelessInterface(interfacePayload("ap0", NL80211_IFTYPE_AP, "Mine"));
    ASSERT_TRUE(accessPoint);
    EXPECT_FALSE(accessPoint->isStation);
    EXPECT_EQ(parseWirelessInterface(interfacePayload("wlan0", NL80211_IFTYPE_STATION, ""))->ssid,
              std::nullopt);
    EXPECT_EQ(parseWirelessInterface(genericHeader), std::nullopt);
    EXPECT_EQ(parseWirelessInterface("ab"), std::nullopt);
}

TEST(JoinedNetwork, IsThatOfThePreferredInterfaceElseTheFirst) {
    const std::vector<WirelessInterface> interfaces{station("wlan0", "Home"), station("wlan1", "Office")};
    EXPECT_EQ(joinedNetwork(interfaces, {}), "Home");
    EXPECT_EQ(joinedNetwork(interfaces, {"eth0", "wlan1"}), "Office");
    EXPECT_EQ(joinedNetwork({station("wlan0", std::nullopt), station("wlan1", "Office")}, {"wlan0"}),
              "Office");
}

TEST(JoinedNetwork, IsNoneWithoutAReadableName) {
    EXPECT_EQ(joinedNetwork({}, {}), std::nullopt);
    EXPECT_EQ(
        joinedNetwork({station("wlan0", std::nullopt), station("wlan1", ""), station("wlan2", "\xFF")}, {}),
        std::nullopt);
    EXPECT_EQ(joinedNetwork({{.name = "ap0", .isStation = false, .ssid = "Mine"}}, {}), std::nullopt);
}

TEST(LinuxWiFiClient, PrefersTheInterfaceOfTheDefaultRoute) {
    const TemporaryFolder folder;
    folder.write("proc/net/route", "wlan1\t00000000\t0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                                   "wlan0\t00000000\t0\t0003\t0\t0\t700\t00000000\t0\t0\t0\n");
    LinuxWiFiClient client(Root(folder.path("")), [] {
        return std::vector<WirelessInterface>{station("wlan0", "Home"), station("wlan1", "Office")};
    });
    EXPECT_EQ(client.ssid(), "Office");
    EXPECT_EQ(client.authorizationStatus(), WiFiClient::authorizedAlways);
}

TEST(LinuxWiFiClient, OfARecordedMachineKnowsNoNetwork) {
    const TemporaryFolder folder;
    EXPECT_EQ(LinuxWiFiClient(Root(folder.path(""))).ssid(), std::nullopt);
}

TEST(LinuxWiFiClient, AsksTheKernelWithoutFailing) {
    for (const auto& interface : systemWirelessInterfaces())
        EXPECT_FALSE(interface.name.empty());
}

} // namespace tarvo::linux_platform
