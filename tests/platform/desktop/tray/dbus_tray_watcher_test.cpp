#include "platform/desktop/tray/dbus_tray_watcher.h"

#include "support/fake_notifier_watcher.h"
#include "support/qt_wait.h"
#include "support/test_bus.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class DBusTrayWatcherTest : public testing::Test {
protected:
    std::unique_ptr<DBusTrayWatcher> makeWatcher() {
        return std::make_unique<DBusTrayWatcher>(own, [this](std::uint32_t pid) {
            askedPid = pid;
            return std::string("some-panel");
        });
    }
    static bool becomes(const TrayWatcher& watcher, TrayState state) {
        return waitUntil([&] { return watcher.state() == state; });
    }

    TestBus bus;
    QDBusConnection own = bus.connect();
    QDBusConnection panel = bus.connect();
    FakeNotifierWatcher tray{panel};
    std::uint32_t askedPid = 0;
};

TEST_F(DBusTrayWatcherTest, IsUnknownUntilTheBusHasAnswered) {
    const auto watcher = makeWatcher();
    EXPECT_EQ(watcher->state(), TrayState::unknown);
    EXPECT_TRUE(becomes(*watcher, TrayState::absent));
}

TEST_F(DBusTrayWatcherTest, FindsTheTrayAndTheProcessThatDrawsIt) {
    tray.appear();
    panel.registerService("org.kde.StatusNotifierHost-123-panel");
    const auto watcher = makeWatcher();
    EXPECT_TRUE(becomes(*watcher, TrayState::present));
    EXPECT_EQ(watcher->hostProcess(), "some-panel");
    EXPECT_EQ(askedPid, QCoreApplication::applicationPid());
}

TEST_F(DBusTrayWatcherTest, TheWatcherIsTheHostWhereNoHostHasAName) {
    tray.appear();
    const auto watcher = makeWatcher();
    EXPECT_TRUE(becomes(*watcher, TrayState::present));
    EXPECT_EQ(watcher->hostProcess(), "some-panel");
}

TEST_F(DBusTrayWatcherTest, AWatcherWithoutAHostIsNoTray) {
    tray.setHost(false);
    tray.appear();
    const auto watcher = makeWatcher();
    EXPECT_TRUE(becomes(*watcher, TrayState::absent));
    tray.setHost(true);
    EXPECT_TRUE(becomes(*watcher, TrayState::present));
    tray.setHost(false);
    EXPECT_TRUE(becomes(*watcher, TrayState::absent));
}

TEST_F(DBusTrayWatcherTest, FollowsTheTraysComingAndGoing) {
    const auto watcher = makeWatcher();
    int told = 0;
    watcher->changed = [&] { ++told; };
    EXPECT_TRUE(becomes(*watcher, TrayState::absent));
    tray.appear();
    EXPECT_TRUE(becomes(*watcher, TrayState::present));
    tray.vanish();
    EXPECT_TRUE(becomes(*watcher, TrayState::absent));
    EXPECT_EQ(told, 3);
}

TEST_F(DBusTrayWatcherTest, ABusThatGoesAwayTakesTheTrayWithIt) {
    tray.appear();
    const auto watcher = makeWatcher();
    EXPECT_TRUE(becomes(*watcher, TrayState::present));
    bus.stop();
    EXPECT_TRUE(becomes(*watcher, TrayState::absent));
}

TEST_F(DBusTrayWatcherTest, WithoutABusThereIsNoTray) {
    const DBusTrayWatcher watcher(QDBusConnection("no such connection"),
                                  [](std::uint32_t) { return std::string(); });
    EXPECT_EQ(watcher.state(), TrayState::absent);
}

} // namespace
} // namespace tarvo::desktop
