#include "processes/network_connections_fetcher.h"

#include "support/manual_dispatcher.h"
#include "support/scripted_child_processes.h"
#include "support/scripted_sockets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

class NetworkConnectionsFetcherTest : public testing::Test {
protected:
    NetworkConnectionsFetcher::Completion keep() {
        return [this](std::vector<NetworkConnection> list) {
            ++calls_;
            list_ = std::move(list);
        };
    }

    ManualClock clock_;
    ManualDispatcher dispatcher_{clock_};
    ScriptedSocketTable table_;
    ScriptedChildProcesses children_;
    int calls_ = 0;
    std::vector<NetworkConnection> list_;
};

TEST_F(NetworkConnectionsFetcherTest, TheListIsMadeInTheBackgroundAndHandedOverOnTheMainThread) {
    table_.answer = {{"sshd", 1, "TCP", "*:22", std::nullopt, "LISTEN"}};
    NetworkConnectionsFetcher::fetch(table_, dispatcher_, keep());
    EXPECT_FALSE(dispatcher_.runMain());
    EXPECT_TRUE(dispatcher_.runBackground());
    EXPECT_EQ(calls_, 0);
    EXPECT_TRUE(dispatcher_.runMain());
    EXPECT_EQ(calls_, 1);
    EXPECT_THAT(list_, SizeIs(1));
}

TEST_F(NetworkConnectionsFetcherTest, WhatARowLacksIsADash) {
    table_.answer = {{"a", 4, "UDP", "*:5353", std::nullopt, std::nullopt},
                     {"b", 5, "TCP", "127.0.0.1:1", "127.0.0.1:2", "CLOSE_WAIT"}};
    NetworkConnectionsFetcher::fetch(table_, dispatcher_, keep());
    dispatcher_.runAll();
    ASSERT_THAT(list_, SizeIs(2));
    EXPECT_EQ(list_[0].process, "a");
    EXPECT_EQ(list_[0].pid, 4);
    EXPECT_EQ(list_[0].proto_, "UDP");
    EXPECT_EQ(list_[0].localAddress, "*:5353");
    EXPECT_EQ(list_[0].remoteAddress, "—");
    EXPECT_EQ(list_[0].state, "—");
    EXPECT_EQ(list_[1].remoteAddress, "127.0.0.1:2");
    EXPECT_EQ(list_[1].state, "CLOSE_WAIT");
}

TEST_F(NetworkConnectionsFetcherTest, TwoListingsShareNoIdentities) {
    table_.answer = {{"a", 4, "UDP", "*:5353", std::nullopt, std::nullopt}};
    NetworkConnectionsFetcher::fetch(table_, dispatcher_, keep());
    dispatcher_.runAll();
    const auto first = list_.at(0).id;
    NetworkConnectionsFetcher::fetch(table_, dispatcher_, keep());
    dispatcher_.runAll();
    EXPECT_NE(list_.at(0).id, first);
}

TEST_F(NetworkConnectionsFetcherTest, AFailedListingStillCompletes) {
    NetworkConnectionsFetcher::fetch(children_, dispatcher_, keep());
    dispatcher_.runAll();
    EXPECT_EQ(calls_, 1);
    EXPECT_THAT(list_, IsEmpty());
}

TEST_F(NetworkConnectionsFetcherTest, TheToolIsAskedForNumericInternetSockets) {
    children_.outputs["/usr/sbin/lsof"] = "HEADER\nsshd 1 root 3u IPv4 0x12 0t0 TCP *:22 (LISTEN)\n";
    NetworkConnectionsFetcher::fetch(children_, dispatcher_, keep());
    dispatcher_.runAll();
    EXPECT_THAT(children_.runs, ElementsAre(Pair("/usr/sbin/lsof", ElementsAre("-i", "-n", "-P"))));
    ASSERT_THAT(list_, SizeIs(1));
    EXPECT_EQ(list_[0].process, "sshd");
}

} // namespace
} // namespace tarvo
