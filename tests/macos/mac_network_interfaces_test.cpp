#include "platform/macos/mac_network_interfaces.h"

#include "macos/mac_test.h"
#include "readers/local_ip_address.h"
#include "readers/network_totals.h"

#include <limits>

namespace tarvo {
namespace {

using namespace fakes;
using macos_platform::MacNetworkInterfaces;
using Family = Interface::Family;
using testing::IsEmpty;
using testing::SizeIs;

class MacNetworkInterfacesTest : public MacTest {
protected:
    MacNetworkInterfaces network;
    std::vector<LinkEntry> links;
};

TEST_F(MacNetworkInterfacesTest, LinkEntriesCarryTheCounters) {
    constexpr auto most = std::numeric_limits<std::uint32_t>::max();
    fakes::interfaces().entries = {
        {.name = "lo0", .isLoopback = true, .counters = {{10, 20}}},
        {.name = "en0", .counters = {{most, 5}}},
        {.name = "en0", .family = Family::ipv4, .address = "192.0.2.7", .counters = {{1, 1}}},
        {.name = "en1", .isUp = false}};
    ASSERT_TRUE(network.links(links));
    ASSERT_THAT(links, SizeIs(3));
    EXPECT_TRUE(links[0].isLoopback);
    EXPECT_EQ(links[1].statistics->receivedBytes, most);
    EXPECT_EQ(links[1].statistics->sentBytes, 5U);
    EXPECT_TRUE(links[1].isUp && links[1].hasAddress && !links[1].isLoopback);
    EXPECT_FALSE(links[2].isUp);
    EXPECT_FALSE(links[2].statistics.has_value());
}

TEST_F(MacNetworkInterfacesTest, TotalsCountWhatIsUpAndNoLoopback) {
    constexpr auto most = std::numeric_limits<std::uint32_t>::max();
    fakes::interfaces().entries = {{.name = "lo0", .isLoopback = true, .counters = {{100, 100}}},
                                   {.name = "en0", .counters = {{most, 1}}},
                                   {.name = "en1", .counters = {{most, 2}}},
                                   {.name = "en2", .isUp = false, .counters = {{7, 7}}},
                                   {.name = "gif0", .family = Family::noAddress, .counters = {{9, 9}}},
                                   {.name = "en3", .family = Family::ipv6, .counters = {{9, 9}}}};
    const auto totals = networkTotals(network, links);
    EXPECT_EQ(totals.inBytes, 2 * std::uint64_t{most});
    EXPECT_EQ(totals.outBytes, 3U);
}

TEST_F(MacNetworkInterfacesTest, AListOfBeforeIsReplaced) {
    links.resize(5);
    ASSERT_TRUE(network.links(links));
    EXPECT_THAT(links, IsEmpty());
}

TEST_F(MacNetworkInterfacesTest, TheLocalAddressIsThatOfTheFirstInterfaceNamedEn) {
    fakes::interfaces().entries = {
        {.name = "lo0", .family = Family::ipv4, .isLoopback = true, .address = "127.0.0.1"},
        {.name = "utun3", .family = Family::ipv4, .address = "10.8.0.2"},
        {.name = "en0", .family = Family::ipv6},
        {.name = "en0", .family = Family::ipv4, .isUp = false, .address = "192.0.2.1"},
        {.name = "en1", .family = Family::ipv4, .address = "192.0.2.7"},
        {.name = "en2", .family = Family::ipv4, .address = "192.0.2.8"}};
    EXPECT_EQ(localIPAddress(network), "192.0.2.7");
}

TEST_F(MacNetworkInterfacesTest, ATunnelsAddressIsTakenWhenThereIsNoOther) {
    fakes::interfaces().entries = {
        {.name = "lo0", .family = Family::ipv4, .isLoopback = true, .address = "127.0.0.1"},
        {.name = "utun3", .family = Family::ipv4, .address = "10.8.0.2"},
        {.name = "utun4", .family = Family::noAddress}};
    EXPECT_EQ(localIPAddress(network), "10.8.0.2");
}

TEST_F(MacNetworkInterfacesTest, AnAddressThatCannotBeWrittenIsLeftOut) {
    fakes::interfaces().entries = {{.name = "en0", .family = Family::ipv4, .address = "192.0.2.7"}};
    fakes::interfaces().namesFail = true;
    EXPECT_THAT(*network.addresses(), IsEmpty());
    EXPECT_EQ(localIPAddress(network), std::nullopt);
}

TEST_F(MacNetworkInterfacesTest, AListThatFailsIsTold) {
    fakes::interfaces().entries = {{.name = "en0", .counters = {{1, 1}}}};
    fakes::interfaces().listFails = true;
    EXPECT_FALSE(network.links(links));
    EXPECT_FALSE(network.addresses().has_value());
    EXPECT_EQ(taken("interface list"), 0);
}

} // namespace
} // namespace tarvo
