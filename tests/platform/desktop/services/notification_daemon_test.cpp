#include "core/setting_keys.h"
#include "history/alert_manager.h"
#include "platform/desktop/desktop_notifications.h"
#include "private_bus.h"
#include "support/manual_clock.h"
#include "support/memory_file.h"
#include "support/memory_preference_store.h"
#include "support/qt_wait.h"

#include <QDBusArgument>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// The alerts as a real notification daemon on a screen received them.
namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

constexpr int limitMilliseconds = 20'000;

class VirtualScreen {
public:
    VirtualScreen() {
        process_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
        if (process_.waitForReadyRead(limitMilliseconds)) number_ = process_.readLine().trimmed();
    }
    ~VirtualScreen() {
        process_.terminate();
        process_.waitForFinished(limitMilliseconds);
    }
    QString display() const { return ":" + QString::fromLatin1(number_); }
    bool isRunning() const { return !number_.isEmpty(); }

private:
    QProcess process_;
    QByteArray number_;
};

/// dunst, which keeps what it has shown.
class Dunst {
public:
    using Shown = std::vector<std::pair<std::string, std::string>>;

    Dunst(PrivateBus& bus, const QString& display) : bus_(bus.connect()) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", display);
        environment.remove("WAYLAND_DISPLAY");
        environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.setStandardOutputFile(QProcess::nullDevice());
        process_.start("dunst", {"-conf", "/dev/null"});
    }
    ~Dunst() {
        process_.terminate();
        process_.waitForFinished(limitMilliseconds);
    }

    bool waitUntilReady() {
        return waitUntil(
            [this] { return call("org.freedesktop.Notifications", "GetServerInformation").isValid(); });
    }
    /// Titles and bodies, oldest first; whatever was on the screen is closed.
    Shown takeShown() {
        call("org.dunstproject.cmd0", "NotificationCloseAll");
        const auto reply = call("org.dunstproject.cmd0", "NotificationListHistory");
        Shown shown;
        if (!reply.isValid()) return shown;
        const auto rows = qdbus_cast<QList<QVariantMap>>(reply.value());
        for (const QVariantMap& row : rows) {
            shown.emplace_back(row.value("summary").toString().toStdString(),
                               row.value("body").toString().toStdString());
        }
        std::reverse(shown.begin(), shown.end());
        return shown;
    }

private:
    struct Reply {
        QDBusMessage message;
        bool isValid() const { return message.type() == QDBusMessage::ReplyMessage; }
        QVariant value() const { return message.arguments().value(0); }
    };
    Reply call(const QString& interface, const QString& method) {
        return {bus_.call(QDBusMessage::createMethodCall(
            "org.freedesktop.Notifications", "/org/freedesktop/Notifications", interface, method))};
    }

    QDBusConnection bus_;
    QProcess process_;
};

class NotificationDaemonTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* program : {"Xvfb", "dunst", "dbus-daemon"}) {
            if (QStandardPaths::findExecutable(program).isEmpty()) GTEST_SKIP() << "needs " << program;
        }
    }

    /// Lets all three conditions hold for as long as each needs.
    void raiseAllAlerts(AppLanguage language, UserNotifications& notifications) {
        localization.setLanguage(language);
        AlertManager manager(
            {notifications, [this]() -> AlertLogStore& { return log; }, settings, localization, clock});
        StatsSnapshot snapshot;
        snapshot.cpu = 97;
        snapshot.diskFreeGB = 9.5;
        manager.evaluate(snapshot);
        clock.advance(30s);
        snapshot.battery = BatteryInfo{.percentage = 20};
        manager.evaluate(snapshot);
    }

    ManualClock clock;
    MemoryPreferenceStore preferences;
    Settings settings{preferences};
    LocalizationManager localization{preferences, "en"};
    MemoryFile file;
    AlertLogStore log{file, clock};
};

TEST_F(NotificationDaemonTest, ReceivesEachAlertInBothLanguages) {
    PrivateBus bus;
    const VirtualScreen screen;
    ASSERT_TRUE(bus.isRunning() && screen.isRunning());
    Dunst dunst(bus, screen.display());
    ASSERT_TRUE(dunst.waitUntilReady());

    desktop::DesktopNotifications notifications(bus.connect());
    raiseAllAlerts(AppLanguage::en, notifications);
    raiseAllAlerts(AppLanguage::cs, notifications);

    Dunst::Shown shown;
    EXPECT_TRUE(waitUntil([&] { return (shown = dunst.takeShown()).size() >= 6; }));
    EXPECT_THAT(shown,
                ElementsAre(Pair("Low Disk Space", "Only 9.5 GB of free space left"),
                            Pair("High CPU Usage", "CPU has been above 90% for a while (currently 97%)"),
                            Pair("Low Battery", "Battery is at 20% and the computer isn't plugged in"),
                            Pair("Málo místa na disku", "Zbývá jen 9.5 GB volného místa"),
                            Pair("Vysoké vytížení CPU", "CPU je dlouhodobě nad 90 % (aktuálně 97 %)"),
                            Pair("Nízká baterie", "Baterie je na 20 % a počítač není připojený k napájení")));
    EXPECT_THAT(log.entries(), SizeIs(6));
}

TEST_F(NotificationDaemonTest, IsNotNeededForTheLog) {
    PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    desktop::DesktopNotifications notifications(bus.connect());
    raiseAllAlerts(AppLanguage::cs, notifications);
    const auto stored = parseAlertLog(file.content.value_or(""));
    ASSERT_TRUE(stored);
    EXPECT_THAT(*stored, SizeIs(3));
}

} // namespace
} // namespace tarvo
