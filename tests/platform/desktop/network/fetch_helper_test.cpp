#include "https_test_server.h"
#include "platform/posix/https_helper_client.h"
#include "platform/posix/posix_child_processes.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Requests through the real helper process.
namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Optional;

class FetchHelperTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        authority = new TestAuthority;
        server = new HTTPSTestServer(authority->trusted());
        qputenv("TARVO_TEST_AUTHORITY", authority->certificatePath().toUtf8());
    }
    static void TearDownTestSuite() {
        delete server;
        delete authority;
    }
    void SetUp() override {
        if (!authority->isUsable() || !server->isRunning()) GTEST_SKIP() << "needs openssl and python3";
    }

    std::optional<std::string> fetch(const std::string& address, std::chrono::milliseconds timeout = 20s,
                                     const std::string& helper = TARVO_TRUSTING_HELPER) {
        std::optional<std::string> result;
        HTTPSHelperClient client(processes, dispatcher, helper);
        client.fetch(address, timeout, [&](std::optional<std::string> reply) { result = std::move(reply); });
        dispatcher.runAll();
        return result;
    }

    static TestAuthority* authority;
    static HTTPSTestServer* server;
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    POSIXChildProcesses processes;
};

TestAuthority* FetchHelperTest::authority = nullptr;
HTTPSTestServer* FetchHelperTest::server = nullptr;

TEST_F(FetchHelperTest, HandsOnTheReply) {
    EXPECT_THAT(fetch(server->address("newer")), Optional(HasSubstr(R"("version":"99.1")")));
    EXPECT_THAT(fetch(server->address("empty")), Optional(std::string()));
    const auto largest = fetch(server->address("largest"));
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->size(), std::size_t{1} << 20);
}

TEST_F(FetchHelperTest, FailsForEveryFailure) {
    for (const auto* path : {"missing", "huge", "huge-in-parts", "to-plain", "short"}) {
        EXPECT_FALSE(fetch(server->address(path))) << path;
    }
    EXPECT_FALSE(fetch(server->plainAddress("newer")));
    EXPECT_FALSE(fetch(""));
}

TEST_F(FetchHelperTest, EndsAtTheTimeOut) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(fetch(server->address("dribble"), 500ms));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
}

TEST_F(FetchHelperTest, AsItIsInstalledItTrustsOnlyTheSystemsAuthorities) {
    EXPECT_FALSE(fetch(server->address("newer"), 20s, TARVO_HELPER));
}

TEST_F(FetchHelperTest, WantsAnAddressAndATimeOut) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                      {server->address("newer")},
                                                      {server->address("newer"), "soon"},
                                                      {server->address("newer"), "0"},
                                                      {server->address("newer"), "8000", "more"}}) {
        const auto result = processes.run(
            {.executable = TARVO_TRUSTING_HELPER, .arguments = arguments, .keepErrorTail = true});
        ASSERT_TRUE(result);
        EXPECT_EQ(result->exitStatus, 1);
        EXPECT_EQ(result->output, "");
        EXPECT_THAT(result->errorTail, HasSubstr("usage"));
    }
}

} // namespace
} // namespace tarvo
