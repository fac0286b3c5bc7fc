#include "platform/desktop/desktop_notifications.h"

#include "private_bus.h"
#include "scripted_notification_service.h"
#include "support/qt_wait.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

using namespace std::chrono_literals;
using testing::SizeIs;

class DesktopNotificationsTest : public testing::Test {
protected:
    static void SetUpTestSuite() { bus = new PrivateBus; }
    static void TearDownTestSuite() { delete bus; }
    void SetUp() override {
        if (!bus->isRunning()) GTEST_SKIP() << "needs dbus-daemon";
    }

    /// Adds and expects that nobody was waited for.
    void add(const std::string& title, const std::string& body) {
        QElapsedTimer timer;
        timer.start();
        notifications.add({"ID", title, body});
        EXPECT_LT(timer.elapsed(), 1000);
    }
    bool waitForShown(std::size_t count) {
        return waitUntil([&] { return service->shown.size() >= count; });
    }

    static PrivateBus* bus;
    std::unique_ptr<ScriptedNotificationService> service =
        std::make_unique<ScriptedNotificationService>(bus->connect());
    DesktopNotifications notifications{bus->connect(), {"Tarvo", "tarvo-icon", "tarvo-entry"}, 200ms};
};

PrivateBus* DesktopNotificationsTest::bus = nullptr;

TEST_F(DesktopNotificationsTest, TellTheServiceEverythingAtOnce) {
    notifications.requestAuthorization();
    add("Málo místa na disku", "Zbývá jen 9.5 GB volného místa");
    ASSERT_TRUE(waitForShown(1));
    const auto& shown = service->shown[0];
    EXPECT_EQ(shown.sender, "Tarvo");
    EXPECT_EQ(shown.replaces, 0u);
    EXPECT_EQ(shown.icon, "tarvo-icon");
    EXPECT_EQ(shown.summary, "Málo místa na disku");
    EXPECT_EQ(shown.body, "Zbývá jen 9.5 GB volného místa");
    EXPECT_TRUE(shown.actions.isEmpty());
    EXPECT_EQ(shown.expiry, -1);
    EXPECT_EQ(shown.hints.value("sound-name").toString(), "message-new-instant");
    EXPECT_EQ(shown.hints.value("desktop-entry").toString(), "tarvo-entry");
    EXPECT_EQ(shown.hints.value("urgency").metaType(), QMetaType::fromType<uchar>());
    EXPECT_EQ(shown.hints.value("urgency").value<uchar>(), 1);
}

TEST_F(DesktopNotificationsTest, EscapeTheBodyOnlyWhereItIsReadAsMarkup) {
    add("<b> & </b>", "a < b && c > d");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service->shown[0].body, "a < b && c > d");
    service->capabilities = QStringList{"body", "body-markup"};
    add("<b> & </b>", "a < b && c > d");
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(service->shown[1].summary, "<b> & </b>");
    EXPECT_EQ(service->shown[1].body, "a &lt; b &amp;&amp; c &gt; d");
}

TEST_F(DesktopNotificationsTest, KeepTheirOrder) {
    for (const char* title : {"one", "two", "three"})
        add(title, "");
    ASSERT_TRUE(waitForShown(3));
    EXPECT_EQ(service->shown[0].summary, "one");
    EXPECT_EQ(service->shown[2].summary, "three");
    EXPECT_EQ(service->asked, 1);
}

TEST_F(DesktopNotificationsTest, AreSentToAServiceThatDoesNotAnswer) {
    service->answers = false;
    add("one", "body");
    ASSERT_TRUE(waitForShown(1));
    add("two", "body");
    ASSERT_TRUE(waitForShown(2));
}

TEST_F(DesktopNotificationsTest, AreLostQuietlyWithoutAService) {
    service->vanish();
    add("lost", "body");
    runPostedEvents();
    service->appear();
    // The failed attempt takes two round trips; a third shows that it is over.
    EXPECT_TRUE(waitUntil([&] { return notifications.children().isEmpty(); }));
    add("shown", "body");
    ASSERT_TRUE(
        waitUntil([&] { return !service->shown.empty() && service->shown.back().summary == "shown"; }));
}

TEST_F(DesktopNotificationsTest, AreLostQuietlyWhenTheServiceDiesOnTheWay) {
    service->onAsked = [this] { service->vanish(); };
    add("lost", "body");
    EXPECT_TRUE(waitUntil([&] { return service->asked > 0 && notifications.children().isEmpty(); }));
    EXPECT_THAT(service->shown, SizeIs(0));
    service->onAsked = {};
    service->appear();
    add("shown", "body");
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(service->shown[0].summary, "shown");
}

TEST_F(DesktopNotificationsTest, AreLostQuietlyWithoutABus) {
    DesktopNotifications orphan(QDBusConnection("no such connection"));
    orphan.add({"ID", "title", "body"});
    EXPECT_TRUE(orphan.children().isEmpty());
}

TEST_F(DesktopNotificationsTest, AreLostQuietlyWhenTheBusDies) {
    auto shortLived = std::make_unique<PrivateBus>();
    ASSERT_TRUE(shortLived->isRunning());
    DesktopNotifications last(shortLived->connect());
    shortLived.reset();
    last.add({"ID", "title", "body"});
    EXPECT_TRUE(waitUntil([&] { return last.children().isEmpty(); }));
}

TEST_F(DesktopNotificationsTest, MayEndWhileTheServiceIsStillThinking) {
    service->answers = false;
    {
        DesktopNotifications shortLived(bus->connect());
        shortLived.add({"ID", "title", "body"});
        EXPECT_TRUE(waitUntil([&] { return service->asked > 0; }));
    }
    runPostedEvents();
    EXPECT_THAT(service->shown, SizeIs(0));
}

} // namespace
} // namespace tarvo::desktop
