#include "update/update_checker.h"

#include "core/setting_keys.h"
#include "https_test_server.h"
#include "platform/desktop/network/qt_https_client.h"
#include "readers/public_address.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/qt_wait.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The update check and the public address over real HTTPS connections.
namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::Optional;

class UpdateCheckTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        authority = new TestAuthority;
        server = new HTTPSTestServer(authority->trusted());
    }
    static void TearDownTestSuite() {
        delete server;
        delete authority;
    }
    void SetUp() override {
        if (!authority->isUsable() || !server->isRunning()) GTEST_SKIP() << "needs openssl and python3";
    }

    std::optional<UpdateInfo> check(const std::string& address) {
        MemoryPreferenceStore preferences;
        UpdateChecker checker({preferences, client, clock, dispatcher, address, "1.0"});
        checker.checkIfNeeded();
        EXPECT_FALSE(checker.available()) << "waited for the reply";
        EXPECT_TRUE(waitUntil([&] {
            dispatcher.runAll();
            return preferences.object(keys::lastUpdateCheck).has_value();
        })) << address;
        return checker.available();
    }

    static TestAuthority* authority;
    static HTTPSTestServer* server;
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    desktop::QtHTTPSClient client{{.extraAuthorities = {authority->certificate()}}};
};

TestAuthority* UpdateCheckTest::authority = nullptr;
HTTPSTestServer* UpdateCheckTest::server = nullptr;

TEST_F(UpdateCheckTest, FindsANewerVersion) {
    const UpdateInfo expected{"99.1", "https://tarvo.example/get", "Quicker"};
    EXPECT_THAT(check(server->address("newer")), Optional(expected));
    EXPECT_THAT(check(server->address("elsewhere")), Optional(expected));
}

TEST_F(UpdateCheckTest, FindsNothingInAnOlderVersionOrAFailure) {
    for (const auto* path :
         {"older", "malformed", "empty", "missing", "huge", "huge-in-parts", "to-plain", "short"}) {
        EXPECT_FALSE(check(server->address(path))) << path;
    }
    EXPECT_FALSE(check(server->plainAddress("newer")));
    EXPECT_FALSE(check("https://127.0.0.1:1/"));
}

TEST_F(UpdateCheckTest, FindsNothingBehindAWrongCertificate) {
    const HTTPSTestServer stranger(authority->selfSigned());
    ASSERT_TRUE(stranger.isRunning());
    EXPECT_FALSE(check(stranger.address("newer")));
}

TEST_F(UpdateCheckTest, FindsNothingWhenTheServerIsSlowAndEndsWithinEightSeconds) {
    const QDeadlineTimer deadline(10'000);
    EXPECT_FALSE(check(server->address("slow")));
    EXPECT_FALSE(deadline.hasExpired());
}

TEST_F(UpdateCheckTest, ThePublicAddressComesOverTheSameSeam) {
    std::optional<std::string> address;
    int completions = 0;
    const auto completed = [&](std::optional<std::string> found) {
        address = std::move(found);
        ++completions;
    };
    fetchPublicIP(client, completed, server->address("address"));
    ASSERT_TRUE(waitUntil([&] { return completions == 1; }));
    EXPECT_THAT(address, Optional(std::string("203.0.113.7")));
    fetchPublicIP(client, completed, server->address("missing"));
    ASSERT_TRUE(waitUntil([&] { return completions == 2; }));
    EXPECT_FALSE(address);
    fetchPublicIP(client, completed, server->plainAddress("address"));
    EXPECT_EQ(completions, 3);
    EXPECT_FALSE(address);
}

} // namespace
} // namespace tarvo
