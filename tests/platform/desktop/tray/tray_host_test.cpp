#include "platform/desktop/tray/tray_host.h"

#include "platform/desktop/qt_dispatcher.h"
#include "support/fake_notifier_watcher.h"
#include "support/fake_status_item_model.h"
#include "support/qt_wait.h"
#include "support/test_bus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>

#include <gmock/gmock.h>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;
using namespace std::chrono_literals;

constexpr TrayTraits labelled{.keepsAspect = false, .showsLabel = true, .reversed = false};

/// Remembers the signals of one item.
class SignalLog : public QObject {
    Q_OBJECT

public:
    std::vector<std::string> names;

public slots:
    void received(const QDBusMessage& message) { names.push_back(message.member().toStdString()); }
};

class TrayHostTest : public testing::Test {
protected:
    std::unique_ptr<TrayHost> makeHost(TrayTraits traits = {}, std::chrono::milliseconds readingLimit = 1h) {
        return std::make_unique<TrayHost>(traits, symbols, dispatcher, own, bus.address().toStdString(),
                                          readingLimit);
    }
    bool registered(int count) {
        return waitUntil([&] { return tray.items.size() >= count; });
    }
    QString nameOf(int item) const { return tray.items[item].section(u' ', 0, 0); }
    QVariantMap properties(const QString& name) {
        auto message = QDBusMessage::createMethodCall(name, "/StatusNotifierItem",
                                                      "org.freedesktop.DBus.Properties", "GetAll");
        message << QString("org.kde.StatusNotifierItem");
        return qdbus_cast<QVariantMap>(call(message).arguments().value(0));
    }
    QDBusMessage call(const QDBusMessage& message) {
        const QDBusPendingCall pending = panel.asyncCall(message);
        EXPECT_TRUE(waitUntil([&] { return pending.isFinished(); }));
        return pending.reply();
    }
    void listen(const QString& name) {
        panel.connect(name, "/StatusNotifierItem", "org.kde.StatusNotifierItem", QString(), &signalLog,
                      SLOT(received(QDBusMessage)));
    }
    /// A round trip on the item's connection: what it sent before has arrived.
    void settle(const QString& name) { properties(name); }

    TestBus bus;
    QDBusConnection own = bus.connect();
    QDBusConnection panel = bus.connect();
    FakeNotifierWatcher tray{panel};
    SymbolImages symbols;
    QtDispatcher dispatcher;
    FakeStatusItemModel model;
    SignalLog signalLog;
};

TEST_F(TrayHostTest, RegistersEachItemByItsPathOnAConnectionOfItsOwn) {
    tray.appear();
    const auto host = makeHost();
    const auto first = host->realise(model);
    const auto second = host->realise(model);
    ASSERT_TRUE(registered(2));
    EXPECT_TRUE(tray.items[0].endsWith(" /StatusNotifierItem"));
    EXPECT_NE(nameOf(0), nameOf(1));
    EXPECT_EQ(properties(nameOf(0)).value("Id"), "tarvo-1");
    EXPECT_EQ(properties(nameOf(1)).value("Id"), "tarvo-2");
}

TEST_F(TrayHostTest, RegistersBackwardsForTraysThatPutTheLastFirst) {
    tray.appear();
    const auto host = makeHost({.keepsAspect = false, .showsLabel = false, .reversed = true});
    const auto first = host->realise(model);
    const auto second = host->realise(model);
    ASSERT_TRUE(registered(2));
    EXPECT_EQ(properties(nameOf(0)).value("Id"), "tarvo-2");
}

TEST_F(TrayHostTest, RegistersTheNextWhenTheTrayHasReadTheOneBefore) {
    tray.readsPictures = false;
    tray.appear();
    const auto host = makeHost();
    const auto first = host->realise(model);
    const auto second = host->realise(model);
    ASSERT_TRUE(registered(1));
    tray.readsPictures = true;
    runPostedEvents();
    EXPECT_EQ(tray.items.size(), 1);
    tray.readPicture(nameOf(0), "/StatusNotifierItem");
    ASSERT_TRUE(registered(2));
    EXPECT_EQ(properties(nameOf(1)).value("Id"), "tarvo-2");
}

TEST_F(TrayHostTest, DoesNotWaitForATrayThatReadsNoPicture) {
    tray.readsPictures = false;
    tray.appear();
    const auto host = makeHost({}, 1ms);
    const auto first = host->realise(model);
    const auto second = host->realise(model);
    const auto third = host->realise(model);
    EXPECT_TRUE(registered(3));
}

TEST_F(TrayHostTest, HasThePropertiesThatTraysAskFor) {
    tray.appear();
    model.setTitle("CPU 23% · RAM 48%");
    model.shown.toolTip = "Processor: 23%\nMemory: <48%>";
    const auto host = makeHost();
    const auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    const QVariantMap all = properties(nameOf(0));
    EXPECT_EQ(all.value("Title"), "Tarvo");
    EXPECT_EQ(all.value("Category"), "Hardware");
    EXPECT_EQ(all.value("Status"), "Active");
    EXPECT_EQ(all.value("ItemIsMenu"), false);
    EXPECT_EQ(all.value("XAyatanaLabel"), "");
    EXPECT_EQ(qvariant_cast<QDBusObjectPath>(all.value("Menu")).path(), "/MenuBar");
    const auto pixmaps = qdbus_cast<TrayPixmaps>(all.value("IconPixmap"));
    ASSERT_EQ(pixmaps.size(), 2);
    EXPECT_EQ(pixmaps[0].bytes.size(), 22 * 22 * 4);
    EXPECT_EQ(pixmaps[1].width, 44);
    const auto toolTip = qdbus_cast<TrayToolTip>(all.value("ToolTip"));
    EXPECT_EQ(toolTip.title, "Tarvo");
    EXPECT_EQ(toolTip.text, "Processor: 23%\nMemory: &lt;48%&gt;");
}

TEST_F(TrayHostTest, ServesTheMenuOfTheItem) {
    tray.appear();
    int quits = 0;
    model.menu = {{"Quit", "q", [&] { ++quits; }}};
    const auto host = makeHost();
    const auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    auto show =
        QDBusMessage::createMethodCall(nameOf(0), "/MenuBar", "com.canonical.dbusmenu", "AboutToShow");
    show << 0;
    EXPECT_EQ(call(show).arguments().value(0), true);
    auto click = QDBusMessage::createMethodCall(nameOf(0), "/MenuBar", "com.canonical.dbusmenu", "Event");
    click << 1 << QString("clicked") << QVariant::fromValue(QDBusVariant(0)) << 0U;
    call(click);
    EXPECT_TRUE(waitUntil([&] { return quits == 1; }));
}

TEST_F(TrayHostTest, ActivationIsALeftClickAndTheContextMenuARightOne) {
    tray.appear();
    const auto host = makeHost();
    const auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    for (const QString method : {"Activate", "SecondaryActivate", "ContextMenu"}) {
        auto message = QDBusMessage::createMethodCall(nameOf(0), "/StatusNotifierItem",
                                                      "org.kde.StatusNotifierItem", method);
        message << 10 << 10;
        call(message);
    }
    EXPECT_TRUE(waitUntil([&] { return model.clicks.size() == 2; }));
    EXPECT_THAT(model.clicks, ElementsAre(StatusClick::left, StatusClick::right));
}

TEST_F(TrayHostTest, SendsOneSignalForTheChangesOfOneTurn) {
    tray.appear();
    const auto host = makeHost();
    const auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    listen(nameOf(0));
    model.setTitle("CPU 24%");
    item->changed(StatusItemPart::face);
    item->changed(StatusItemPart::face);
    item->changed(StatusItemPart::toolTip);
    EXPECT_TRUE(waitUntil([&] { return signalLog.names.size() >= 2; }));
    settle(nameOf(0));
    EXPECT_THAT(signalLog.names, ElementsAre("NewIcon", "NewToolTip"));
}

TEST_F(TrayHostTest, WhereLabelsAreShownTheTextIsTheLabelAndThePictureStays) {
    tray.appear();
    model.setTitle("CPU 9%");
    const auto host = makeHost(labelled);
    const auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    EXPECT_EQ(properties(nameOf(0)).value("XAyatanaLabel"), "CPU 9%");
    EXPECT_EQ(properties(nameOf(0)).value("XAyatanaLabelGuide"), "CPU 00%");
    listen(nameOf(0));
    model.setTitle("CPU 24%");
    item->changed(StatusItemPart::face);
    EXPECT_TRUE(waitUntil([&] { return !signalLog.names.empty(); }));
    settle(nameOf(0));
    EXPECT_THAT(signalLog.names, ElementsAre("XAyatanaNewLabel"));
}

TEST_F(TrayHostTest, ShowsTheNewPictureAfterAChange) {
    tray.appear();
    model.setTitle("CPU 23%");
    const auto host = makeHost();
    const auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    const auto before = qdbus_cast<TrayPixmaps>(properties(nameOf(0)).value("IconPixmap"));
    model.setTitle("CPU 99%");
    item->changed(StatusItemPart::face);
    runPostedEvents();
    EXPECT_NE(qdbus_cast<TrayPixmaps>(properties(nameOf(0)).value("IconPixmap")), before);
}

TEST_F(TrayHostTest, ARemovedItemsConnectionEnds) {
    tray.appear();
    const auto host = makeHost();
    auto item = host->realise(model);
    ASSERT_TRUE(registered(1));
    const QString name = nameOf(0);
    item.reset();
    auto owned = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                "org.freedesktop.DBus", "NameHasOwner");
    owned << name;
    EXPECT_TRUE(waitUntil([&] { return call(owned).arguments().value(0) == false; }));
}

TEST_F(TrayHostTest, RegistersAgainWhenTheTrayComesBack) {
    tray.appear();
    const auto host = makeHost();
    const auto first = host->realise(model);
    const auto second = host->realise(model);
    ASSERT_TRUE(registered(2));
    const QStringList before = tray.items;
    tray.items.clear();
    tray.vanish();
    tray.appear();
    ASSERT_TRUE(registered(2));
    EXPECT_EQ(tray.items, before);
}

TEST_F(TrayHostTest, WaitsForATrayThatIsNotThereYet) {
    const auto host = makeHost();
    const auto item = host->realise(model);
    runPostedEvents();
    tray.appear();
    EXPECT_TRUE(registered(1));
}

TEST_F(TrayHostTest, AnItemMayGoBeforeItIsRegistered) {
    tray.appear();
    auto host = makeHost();
    host->realise(model).reset();
    const auto kept = host->realise(model);
    ASSERT_TRUE(registered(1));
    EXPECT_EQ(properties(nameOf(0)).value("Id"), "tarvo-2");
    EXPECT_EQ(tray.items.size(), 1);
}

TEST_F(TrayHostTest, TheHostMayGoWhileItConnects) {
    tray.appear();
    {
        const auto host = makeHost();
        const auto item = host->realise(model);
        QCoreApplication::processEvents();
    }
    const auto next = makeHost();
    const auto item = next->realise(model);
    EXPECT_TRUE(registered(1));
}

} // namespace
} // namespace tarvo::desktop

#include "tray_host_test.moc"
