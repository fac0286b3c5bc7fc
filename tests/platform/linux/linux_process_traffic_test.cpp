#include "platform/linux/linux_process_traffic.h"

#include "platform/linux/kernel_sockets.h"
#include "support/loopback_sockets.h"
#include "support/process_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScriptedSocketSource : public SocketSource {
public:
    explicit ScriptedSocketSource(const std::vector<SocketRecord>& answer) : answer_(answer) {}
    void list(std::vector<SocketRecord>& sockets) override { sockets = answer_; }
    void listTraffic(std::vector<SocketRecord>& sockets) override { sockets = answer_; }

private:
    const std::vector<SocketRecord>& answer_;
};

class ProcessTrafficTest : public testing::Test {
protected:
    void setSocket(std::uint64_t inode, std::uint64_t cookie, std::optional<SocketTraffic> traffic) {
        SocketRecord record;
        record.inode = inode;
        record.cookie = cookie;
        record.traffic = traffic;
        sockets_.push_back(record);
    }
    void start(std::int32_t pid, std::string name, std::uint64_t startTime = 100) {
        MadeProcess made;
        made.name = std::move(name);
        made.startTime = startTime;
        tree_.put(pid, made);
    }

    ProcessTree tree_;
    std::vector<SocketRecord> sockets_;
    LinuxProcessTraffic traffic_{Root(tree_.root()), std::make_unique<ScriptedSocketSource>(sockets_)};
};

TEST_F(ProcessTrafficTest, BytesAddUpByProcess) {
    start(5, "browser");
    tree_.openSocket(5, 3, 71);
    tree_.openSocket(5, 4, 72);
    start(6, "mail");
    tree_.setExecutable(6, "/opt/Some App/Some App");
    tree_.openSocket(6, 3, 73);
    setSocket(71, 1, SocketTraffic{10, 20});
    setSocket(72, 2, SocketTraffic{100, 200});
    setSocket(73, 3, SocketTraffic{1, 2});
    setSocket(74, 4, SocketTraffic{9, 9}); // nobody's that may be seen
    EXPECT_THAT(traffic_.rows(), ElementsAre(TrafficRow{"browser", 110, 220}, TrafficRow{"Some App", 1, 2}));
}

TEST_F(ProcessTrafficTest, AClosedSocketStaysInTheTotal) {
    start(5, "browser");
    tree_.openSocket(5, 3, 71);
    setSocket(71, 1, SocketTraffic{10, 20});
    traffic_.rows();
    sockets_.clear();
    EXPECT_THAT(traffic_.rows(), ElementsAre(TrafficRow{"browser", 10, 20}));
    setSocket(71, 2, SocketTraffic{1, 1}); // the same inode again, another socket
    EXPECT_THAT(traffic_.rows(), ElementsAre(TrafficRow{"browser", 11, 21}));
}

TEST_F(ProcessTrafficTest, AnEndedProcessIsDropped) {
    start(5, "browser");
    tree_.openSocket(5, 3, 71);
    setSocket(71, 1, SocketTraffic{10, 20});
    traffic_.rows();
    sockets_.clear();
    tree_.remove(5);
    EXPECT_THAT(traffic_.rows(), IsEmpty());
}

TEST_F(ProcessTrafficTest, AReusedNumberBeginsAnew) {
    start(5, "browser");
    tree_.openSocket(5, 3, 71);
    setSocket(71, 1, SocketTraffic{10, 20});
    traffic_.rows();
    start(5, "other", 900);
    sockets_.clear();
    setSocket(71, 9, SocketTraffic{1, 2});
    EXPECT_THAT(traffic_.rows(), ElementsAre(TrafficRow{"other", 1, 2}));
}

TEST_F(ProcessTrafficTest, ASharedSocketCountsOnce) {
    start(5, "parent");
    start(6, "child");
    for (const auto pid : {5, 6})
        tree_.openSocket(pid, 3, 71);
    tree_.openSocket(5, 4, 71);
    setSocket(71, 1, SocketTraffic{10, 20});
    EXPECT_THAT(traffic_.rows(), ElementsAre(TrafficRow{"parent", 10, 20}));
}

TEST_F(ProcessTrafficTest, SocketsWithoutCountersDoNotCount) {
    start(5, "browser");
    tree_.openSocket(5, 3, 71);
    setSocket(71, 1, std::nullopt);
    EXPECT_THAT(traffic_.rows(), IsEmpty());
}

TEST(ProcessTraffic, ATransferOnTheRunningMachineIsCountedToTheByte) {
    LinuxProcessTraffic traffic(Root(), std::make_unique<KernelSockets>(Root()));
    const auto own = [&] {
        for (const auto& row : traffic.rows()) {
            if (row.process == "platform_linux_processes_tests") return row;
        }
        return TrafficRow{};
    };
    const loopback::Pair pair;
    const auto before = own();
    const std::string sent(100'000, 'x');
    std::string received(sent.size(), ' ');
    ASSERT_EQ(::send(pair.client.get(), sent.data(), sent.size(), 0), static_cast<ssize_t>(sent.size()));
    ASSERT_EQ(::recv(pair.server.get(), received.data(), received.size(), MSG_WAITALL),
              static_cast<ssize_t>(sent.size()));
    ASSERT_EQ(::send(pair.server.get(), "y", 1, 0), 1);
    ASSERT_EQ(::recv(pair.client.get(), received.data(), 1, MSG_WAITALL), 1);
    loopback::acknowledge(pair.client);
    loopback::acknowledge(pair.server);
    const auto after = own();
    // Both ends belong to this process, so each byte is received once and sent once.
    EXPECT_EQ(after.bytesIn - before.bytesIn, 100'001U);
    EXPECT_EQ(after.bytesOut - before.bytesOut, 100'001U);
}

} // namespace
} // namespace tarvo::linux_platform
