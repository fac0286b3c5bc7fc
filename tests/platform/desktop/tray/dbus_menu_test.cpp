#include "platform/desktop/tray/dbus_menu.h"

#include "support/qt_wait.h"
#include "support/test_bus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

/// The menu as a tray sees it: over a bus, from another connection.
class DBusMenuTest : public testing::Test {
protected:
    DBusMenuTest() { server.registerObject("/MenuBar", &exported); }
    template <typename... Arguments>
    QDBusMessage call(const QString& method, const Arguments&... arguments) {
        return callOn("com.canonical.dbusmenu", method, arguments...);
    }
    template <typename... Arguments>
    QDBusMessage callOn(const QString& interface, const QString& method, const Arguments&... arguments) {
        auto message = QDBusMessage::createMethodCall(server.baseService(), "/MenuBar", interface, method);
        (message << ... << QVariant::fromValue(arguments));
        const QDBusPendingCall pending = client.asyncCall(message);
        EXPECT_TRUE(waitUntil([&] { return pending.isFinished(); }));
        EXPECT_FALSE(pending.isError()) << pending.error().message().toStdString();
        return pending.reply();
    }
    template <typename Value>
    static Value argument(const QDBusMessage& reply, int index = 0) {
        return qdbus_cast<Value>(reply.arguments().value(index));
    }

    TestBus bus;
    QDBusConnection server = bus.connect();
    QDBusConnection client = bus.connect();
    std::string firstTitle = "Open Detail Window…";
    int opened = 0;
    int quits = 0;
    QObject exported;
    DBusMenu* menu = new DBusMenu(&exported, [this] {
        return Menu{{firstTitle, "", [this] { ++opened; }}, {}, {"Quit", "q", [this] { ++quits; }}};
    });
};

TEST_F(DBusMenuTest, AnswersTheLayoutWithItsRevision) {
    const QDBusMessage reply = call("GetLayout", 0, -1, QStringList());
    EXPECT_EQ(reply.signature(), "u(ia{sv}av)");
    const auto layout = argument<MenuLayoutItem>(reply, 1);
    ASSERT_EQ(layout.children.size(), 3);
    EXPECT_EQ(layout.children[2].properties.value("label"), "Quit");
}

TEST_F(DBusMenuTest, AnswersPropertiesOfManyAndOfOne) {
    call("GetLayout", 0, -1, QStringList());
    const QDBusMessage group = call("GetGroupProperties", QList<int>{1, 3}, QStringList{"label"});
    EXPECT_EQ(group.signature(), "a(ia{sv})");
    const auto list = argument<MenuItemPropertiesList>(group);
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].properties.value("label"), "Open Detail Window…");
    EXPECT_EQ(argument<QDBusVariant>(call("GetProperty", 3, QString("label"))).variant(), "Quit");
}

TEST_F(DBusMenuTest, AClickRunsTheRowAfterTheReply) {
    call("GetLayout", 0, -1, QStringList());
    call("Event", 1, QString("clicked"), QDBusVariant(0), 0U);
    EXPECT_TRUE(waitUntil([&] { return opened == 1; }));
    call("Event", 3, QString("hovered"), QDBusVariant(0), 0U);
    runPostedEvents();
    EXPECT_EQ(quits, 0);
}

TEST_F(DBusMenuTest, AGroupOfEventsIsTakenAndUnknownRowsAreNamed) {
    call("GetLayout", 0, -1, QStringList());
    const QDBusMessage reply = call(
        "EventGroup", MenuEvents{{3, "clicked", QDBusVariant(0), 0}, {7, "clicked", QDBusVariant(0), 0}});
    EXPECT_EQ(argument<QList<int>>(reply), QList<int>{7});
    EXPECT_TRUE(waitUntil([&] { return quits == 1; }));
}

TEST_F(DBusMenuTest, SaysBeforeShowingWhetherTheRowsChanged) {
    call("GetLayout", 0, -1, QStringList());
    EXPECT_FALSE(argument<bool>(call("AboutToShow", 0)));
    firstTitle = "Otevřít detailní přehled…";
    EXPECT_TRUE(argument<bool>(call("AboutToShow", 0)));
    firstTitle = "Open Detail Window…";
    const QDBusMessage reply = call("AboutToShowGroup", QList<int>{0, 9});
    EXPECT_EQ(argument<QList<int>>(reply, 0), QList<int>{0});
    EXPECT_EQ(argument<QList<int>>(reply, 1), QList<int>{9});
}

TEST_F(DBusMenuTest, HasThePropertiesOfVersionThree) {
    const QDBusMessage reply =
        callOn("org.freedesktop.DBus.Properties", "GetAll", QString("com.canonical.dbusmenu"));
    const auto properties = argument<QVariantMap>(reply);
    EXPECT_EQ(properties.value("Version"), 3U);
    EXPECT_EQ(properties.value("Status"), "normal");
    EXPECT_EQ(properties.value("TextDirection"), "ltr");
    EXPECT_TRUE(properties.contains("IconThemePath"));
}

} // namespace
} // namespace tarvo::desktop
