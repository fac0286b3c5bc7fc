#include "platform/desktop/system_bus.h"

#include "support/qt_wait.h"
#include "support/test_bus.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <vector>

namespace tarvo::desktop {
namespace {

TEST(KeptConnection, IsMadeAnewOnlyWhenItWasLost) {
    const auto name = QStringLiteral("kept");
    TestBus first;
    TestBus second;
    auto address = first.address();
    int opened = 0;
    const auto connect = keptConnection(name, [&](const QString& connectionName) {
        ++opened;
        return QDBusConnection::connectToBus(address, connectionName);
    });
    EXPECT_EQ(opened, 0) << "not before it is asked for";
    EXPECT_TRUE(connect().isConnected());
    EXPECT_TRUE(connect().isConnected());
    EXPECT_EQ(opened, 1);
    first.stop();
    ASSERT_TRUE(waitUntil([&] { return !QDBusConnection(name).isConnected(); }));
    EXPECT_FALSE(connect().isConnected()) << "the bus is away";
    address = second.address();
    EXPECT_TRUE(connect().isConnected());
    EXPECT_EQ(opened, 3);
    QDBusConnection::disconnectFromBus(name);
}

TEST(KeptConnection, IsOpenedOnceForThreadsThatAskAtOnce) {
    const auto name = QStringLiteral("shared");
    TestBus bus;
    std::atomic<int> opened = 0;
    const auto connect = keptConnection(name, [&, address = bus.address()](const QString& connectionName) {
        ++opened;
        return QDBusConnection::connectToBus(address, connectionName);
    });
    std::vector<std::future<bool>> answers;
    for (int thread = 0; thread < 8; ++thread)
        answers.push_back(std::async(std::launch::async, [&connect] { return connect().isConnected(); }));
    for (auto& answer : answers)
        EXPECT_TRUE(answer.get());
    EXPECT_EQ(opened, 1);
    QDBusConnection::disconnectFromBus(name);
}

TEST(NameHasOwner, SaysYesForARunningServiceOnly) {
    TestBus bus;
    auto connection = bus.connect();
    const auto service = QStringLiteral("org.example.Service");
    EXPECT_FALSE(saysYes(connection.call(nameHasOwnerCall(service))));
    ASSERT_TRUE(connection.registerService(service));
    EXPECT_TRUE(saysYes(connection.call(nameHasOwnerCall(service))));
    bus.stop();
    ASSERT_TRUE(waitUntil([&] { return !connection.isConnected(); }));
    EXPECT_FALSE(saysYes(connection.call(nameHasOwnerCall(service))));
}

} // namespace
} // namespace tarvo::desktop
