#include "platform/desktop/network_manager_wifi.h"

#include "support/mock_network_manager.h"
#include "support/scripted_wifi_client.h"

#include <gtest/gtest.h>

#include <csignal>
#include <future>

namespace tarvo::desktop {
namespace {

using namespace std::chrono_literals;

class NetworkManagerWiFiTest : public testing::Test {
protected:
    void SetUp() override {
        if (!MockService::isInstalled()) GTEST_SKIP() << "python3-dbusmock is not installed";
    }
    void start() { ASSERT_TRUE(manager.start()); }
    /// What a background thread is told, as in the program.
    std::optional<std::string> ssid(std::chrono::milliseconds patience = 20s) {
        auto kernel = std::make_unique<ScriptedWiFiClient>();
        kernel->name = "of the kernel";
        NetworkManagerWiFi wifi([connection = bus.connect()] { return connection; }, std::move(kernel),
                                patience);
        return std::async(std::launch::async, [&wifi] { return wifi.ssid(); }).get();
    }

    TestBus bus;
    MockNetworkManager manager{bus};
};

using NetworkManager = NetworkManagerWiFiTest;

TEST_F(NetworkManager, TellsTheNameOfTheJoinedNetwork) {
    start();
    manager.addWiredDevice("eth0");
    manager.join(manager.addWiFiDevice("wlan0"), "Caf\xC3\xA9 5 GHz ");
    EXPECT_EQ(ssid(), "Caf\xC3\xA9 5 GHz ");
}

TEST_F(NetworkManager, WithoutAnAccessPointThereIsNoName) {
    start();
    const auto adapter = manager.addWiFiDevice("wlan0");
    EXPECT_EQ(ssid(), std::nullopt) << "the property is missing";
    manager.leave(adapter);
    EXPECT_EQ(ssid(), std::nullopt);
}

TEST_F(NetworkManager, AHiddenNameIsNone) {
    start();
    manager.join(manager.addWiFiDevice("wlan0"), "");
    EXPECT_EQ(ssid(), std::nullopt);
}

TEST_F(NetworkManager, ANameThatIsNotUTF8IsNone) {
    start();
    manager.join(manager.addWiFiDevice("wlan0"), "Caf\xE9");
    EXPECT_EQ(ssid(), std::nullopt);
}

TEST_F(NetworkManager, ANetworkOfTheMachinesOwnIsNotJoined) {
    start();
    const auto adapter = manager.addWiFiDevice("wlan0");
    manager.join(adapter, "My hotspot");
    manager.setMode(adapter, 3);
    EXPECT_EQ(ssid(), std::nullopt);
}

TEST_F(NetworkManager, OfTwoAdaptersTheFirstThatHasJoinedIsTaken) {
    start();
    manager.leave(manager.addWiFiDevice("wlan0"));
    manager.join(manager.addWiFiDevice("wlan1"), "first");
    manager.join(manager.addWiFiDevice("wlan2"), "second");
    EXPECT_EQ(ssid(), "first");
}

TEST_F(NetworkManager, TheAdapterOfThePrimaryConnectionComesFirst) {
    start();
    manager.join(manager.addWiFiDevice("wlan0"), "first");
    const auto second = manager.addWiFiDevice("wlan1");
    manager.join(second, "second");
    manager.makePrimary(second);
    EXPECT_EQ(ssid(), "second");
}

TEST_F(NetworkManager, AWiredPrimaryConnectionLeavesTheFirstAdapter) {
    start();
    manager.makePrimary(manager.addWiredDevice("eth0"));
    manager.join(manager.addWiFiDevice("wlan0"), "first");
    manager.join(manager.addWiFiDevice("wlan1"), "second");
    EXPECT_EQ(ssid(), "first");
}

TEST_F(NetworkManager, AdaptersThatItLeavesToOthersAreReadElsewhere) {
    start();
    manager.addWiredDevice("eth0");
    EXPECT_EQ(ssid(), "of the kernel");
    const auto adapter = manager.addWiFiDevice("wlan0");
    manager.leave(adapter);
    EXPECT_EQ(ssid(), std::nullopt);
    manager.setManaged(adapter, false);
    EXPECT_EQ(ssid(), "of the kernel");
}

TEST_F(NetworkManager, ThatDoesNotRunIsReplaced) {
    EXPECT_EQ(ssid(), "of the kernel");
    bus.stop();
    EXPECT_EQ(ssid(), "of the kernel") << "without a bus";
}

TEST_F(NetworkManager, ThatDoesNotAnswerIsReplacedAfterOneWait) {
    start();
    manager.join(manager.addWiFiDevice("wlan0"), "unheard");
    ASSERT_EQ(::kill(static_cast<pid_t>(manager.processId()), SIGSTOP), 0);
    constexpr auto patience = 2s;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(ssid(patience), "of the kernel");
    const auto waited = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(waited, patience - 100ms);
    EXPECT_LT(waited, 2 * patience) << "the next question is not asked";
}

TEST(NetworkManagerWiFi, NeedsNoPermission) {
    NetworkManagerWiFi wifi(nullptr, std::make_unique<ScriptedWiFiClient>());
    wifi.requestWhenInUseAuthorization();
    EXPECT_EQ(wifi.authorizationStatus(), WiFiClient::authorizedAlways);
}

} // namespace
} // namespace tarvo::desktop
