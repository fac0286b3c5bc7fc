#include "platform/desktop/network/qt_https_client.h"

#include "https_test_server.h"
#include "support/qt_wait.h"

#include <QElapsedTimer>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Optional;
using testing::SizeIs;
using testing::StartsWith;

using Reply = std::optional<std::string>;

class QtHTTPSClientTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        qunsetenv("https_proxy");
        qunsetenv("HTTPS_PROXY");
        qunsetenv("all_proxy");
        qunsetenv("ALL_PROXY");
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

    Reply fetch(const std::string& address, std::chrono::milliseconds timeout = 20s) {
        return fetch(client, address, timeout);
    }
    static Reply fetch(QtHTTPSClient& client, const std::string& address,
                       std::chrono::milliseconds timeout = 20s) {
        Reply result;
        int completions = 0;
        client.fetch(address, timeout, [&](Reply reply) {
            result = std::move(reply);
            ++completions;
        });
        EXPECT_EQ(completions, 0) << "completed from inside fetch";
        EXPECT_TRUE(waitUntil([&] { return completions > 0; }));
        runPostedEvents();
        EXPECT_EQ(completions, 1);
        return result;
    }
    static QtHTTPSClient trustingClient() {
        return QtHTTPSClient({.extraAuthorities = {authority->certificate()}});
    }
    static Reply fetchFrom(const TestAuthority::Identity& identity) {
        const HTTPSTestServer other(identity);
        EXPECT_TRUE(other.isRunning());
        auto client = trustingClient();
        return fetch(client, other.address("newer"));
    }

    static TestAuthority* authority;
    static HTTPSTestServer* server;
    QtHTTPSClient client{{.extraAuthorities = {authority->certificate()}}};
};

TestAuthority* QtHTTPSClientTest::authority = nullptr;
HTTPSTestServer* QtHTTPSClientTest::server = nullptr;

TEST_F(QtHTTPSClientTest, HandsOnTheBodyOfASuccessfulReply) {
    EXPECT_THAT(fetch(server->address("newer")), Optional(HasSubstr(R"("version":"99.1")")));
    EXPECT_THAT(fetch(server->address("newer", "localhost")), Optional(StartsWith("{")));
    EXPECT_THAT(fetch(server->address("empty")), Optional(std::string()));
}

TEST_F(QtHTTPSClientTest, FailsForAStatusThatIsNoSuccess) {
    EXPECT_FALSE(fetch(server->address("missing")));
    EXPECT_FALSE(fetch(server->address("broken")));
}

TEST_F(QtHTTPSClientTest, FailsForWhatIsNoHTTPSAddress) {
    server->takeAskedPaths();
    for (const auto& address :
         {server->plainAddress("newer"), std::string(), std::string("https://"), std::string("newer"),
          std::string("file:///etc/passwd"), std::string("https:///x")}) {
        EXPECT_FALSE(fetch(address)) << address;
    }
    EXPECT_THAT(server->takeAskedPaths(), SizeIs(0));
}

TEST_F(QtHTTPSClientTest, FailsWhereNobodyListens) {
    EXPECT_FALSE(fetch("https://127.0.0.1:1/newer"));
}

// Certificates

TEST_F(QtHTTPSClientTest, TrustsNobodyTheSystemDoesNotKnow) {
    QtHTTPSClient ordinary;
    EXPECT_FALSE(fetch(ordinary, server->address("newer")));
}

TEST_F(QtHTTPSClientTest, RefusesASelfSignedCertificate) {
    EXPECT_FALSE(fetchFrom(authority->selfSigned()));
}

TEST_F(QtHTTPSClientTest, RefusesAnExpiredCertificate) {
    EXPECT_FALSE(fetchFrom(authority->expired()));
}

TEST_F(QtHTTPSClientTest, RefusesACertificateForAnotherHost) {
    EXPECT_FALSE(fetchFrom(authority->otherHost()));
}

// Redirects

TEST_F(QtHTTPSClientTest, FollowsARedirectToHTTPS) {
    EXPECT_THAT(fetch(server->address("elsewhere")), Optional(StartsWith("{")));
}

TEST_F(QtHTTPSClientTest, RefusesARedirectToPlainHTTP) {
    server->takeAskedPaths();
    EXPECT_FALSE(fetch(server->address("to-plain")));
    EXPECT_EQ(server->takeAskedPaths(), QStringList{"/to-plain"});
}

TEST_F(QtHTTPSClientTest, GivesUpOnRedirectsInCircles) {
    EXPECT_FALSE(fetch(server->address("in-circles")));
}

// Time and size

TEST_F(QtHTTPSClientTest, FailsAfterTheTimeOutWithoutAnAnswer) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(fetch(server->address("slow"), 200ms));
    EXPECT_GE(timer.elapsed(), 190);
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST_F(QtHTTPSClientTest, BoundsTheWholeRequestAlthoughBytesKeepComing) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(fetch(server->address("dribble"), 300ms));
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST_F(QtHTTPSClientTest, FailsWhenTheConnectionEndsEarly) {
    EXPECT_FALSE(fetch(server->address("short")));
}

TEST_F(QtHTTPSClientTest, TakesAMebibyteAndNotAByteMore) {
    const Reply largest = fetch(server->address("largest"));
    ASSERT_TRUE(largest);
    EXPECT_EQ(largest->size(), std::size_t{1} << 20);
    EXPECT_FALSE(fetch(server->address("huge")));
    EXPECT_FALSE(fetch(server->address("huge-in-parts")));
}

// What a request leaves behind

TEST_F(QtHTTPSClientTest, SendsNoCookiesBack) {
    fetch(server->address("cookies"));
    EXPECT_THAT(fetch(server->address("cookies")), Optional(std::string("none")));
}

TEST_F(QtHTTPSClientTest, SaysWhichProgramAsks) {
    EXPECT_THAT(fetch(server->address("agent")), Optional(StartsWith("Tarvo/")));
}

TEST_F(QtHTTPSClientTest, KeepsNothingBetweenRequests) {
    for (int i = 0; i < 3; ++i)
        fetch(server->address("newer"));
    EXPECT_TRUE(client.children().isEmpty());
}

TEST_F(QtHTTPSClientTest, DropsWhatIsUnderWayWhenItGoes) {
    int completions = 0;
    {
        auto shortLived = trustingClient();
        shortLived.fetch(server->address("slow"), 10s, [&](const Reply&) { ++completions; });
        EXPECT_TRUE(waitUntil([] { return !server->takeAskedPaths().isEmpty(); }));
    }
    runPostedEvents();
    EXPECT_EQ(completions, 0);
}

} // namespace
} // namespace tarvo::desktop
