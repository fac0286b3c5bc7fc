#include "readers/local_ip_address.h"

#include "support/scripted_network_interfaces.h"

#include <gtest/gtest.h>

namespace tarvo {

namespace {

IPv4Entry entry(std::string name, std::string address) {
    return {
        .interfaceName = std::move(name), .isUp = true, .isLoopback = false, .address = std::move(address)};
}

std::optional<std::string> chosen(std::vector<IPv4Entry> entries) {
    ScriptedNetworkInterfaces interfaces;
    interfaces.addressAnswer = std::move(entries);
    return localIPAddress(interfaces);
}

} // namespace

TEST(LocalIPAddress, PrefersTheFirstInterfaceWhoseNameBeginsWithEn) {
    EXPECT_EQ(chosen({entry("utun0", "10.8.0.2"), entry("en0", "192.168.1.5"), entry("en1", "192.168.1.6"),
                      entry("utun1", "10.9.0.2")}),
              "192.168.1.5");
}

TEST(LocalIPAddress, OfATunnelIsTakenWhenNothingElseIsUp) {
    auto loopback = entry("lo0", "127.0.0.1");
    loopback.isLoopback = true;
    EXPECT_EQ(chosen({loopback, entry("utun3", "10.8.0.2")}), "10.8.0.2");
}

TEST(LocalIPAddress, WithoutEnTakesTheLastOther) {
    EXPECT_EQ(chosen({entry("bridge0", "192.168.64.1"), entry("utun3", "10.8.0.2")}), "10.8.0.2");
}

TEST(LocalIPAddress, PassesOverInterfacesThatAreDown) {
    auto down = entry("en0", "192.168.1.5");
    down.isUp = false;
    EXPECT_EQ(chosen({down, entry("utun3", "10.8.0.2")}), "10.8.0.2");
    EXPECT_EQ(chosen({down}), std::nullopt);
}

TEST(LocalIPAddress, IsAbsentWithoutEntries) {
    EXPECT_EQ(chosen({}), std::nullopt);
    ScriptedNetworkInterfaces failing;
    EXPECT_EQ(localIPAddress(failing), std::nullopt);
}

} // namespace tarvo
