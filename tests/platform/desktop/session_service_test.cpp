#include "platform/desktop/session_service.h"

#include "services/private_bus.h"
#include "support/qt_wait.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace tarvo::desktop {
namespace {

using Claim = SessionService::Claim;

class SessionServiceTest : public testing::Test {
protected:
    void SetUp() override {
        if (!bus.isRunning()) GTEST_SKIP() << "needs dbus-daemon";
    }
    std::unique_ptr<SessionService> makeService() {
        return std::make_unique<SessionService>(bus.connect(), "io.example.Program");
    }
    static QDBusMessage call(const char* method, const char* interface = "io.example.Program") {
        return QDBusMessage::createMethodCall("io.example.Program", "/io/example/Program", interface, method);
    }
    /// What another program gets for its call.
    QDBusMessage answer(const QDBusMessage& message) {
        const auto caller = bus.connect();
        QDBusPendingCall pending = caller.asyncCall(message);
        EXPECT_TRUE(waitUntil([&] { return pending.isFinished(); }));
        return pending.reply();
    }

    PrivateBus bus;
};

TEST_F(SessionServiceTest, OneInstanceHasTheName) {
    const auto first = makeService();
    EXPECT_EQ(first->claim(), Claim::ours);
    EXPECT_EQ(first->claim(), Claim::ours) << "asked again";
    EXPECT_EQ(makeService()->claim(), Claim::taken);
}

TEST_F(SessionServiceTest, IsImpossibleWithoutABus) {
    SessionService service(QDBusConnection("no such connection"), "io.example.Program");
    EXPECT_EQ(service.claim(), Claim::impossible);
    EXPECT_FALSE(service.callOwner("Open"));
}

TEST_F(SessionServiceTest, RunsTheMethodThatIsCalled) {
    const auto service = makeService();
    int opened = 0;
    int toggled = 0;
    service->setMethod("Open", [&] { ++opened; });
    service->setMethod("Toggle", [&] { ++toggled; });
    ASSERT_EQ(service->claim(), Claim::ours);
    EXPECT_EQ(answer(call("Toggle")).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(answer(call("Toggle", "")).type(), QDBusMessage::ReplyMessage)
        << "the interface may be left out";
    EXPECT_EQ(toggled, 2);
    EXPECT_EQ(opened, 0);
}

TEST_F(SessionServiceTest, RefusesWhatItDoesNotKnow) {
    const auto service = makeService();
    int opened = 0;
    service->setMethod("Open", [&] { ++opened; });
    ASSERT_EQ(service->claim(), Claim::ours);
    EXPECT_EQ(answer(call("Close")).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(answer(call("Open", "io.example.Other")).type(), QDBusMessage::ErrorMessage);
    auto withArgument = call("Open");
    withArgument << "an argument";
    EXPECT_EQ(answer(withArgument).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(opened, 0);
}

TEST_F(SessionServiceTest, AnswersBeforeItActs) {
    const auto service = makeService();
    const auto caller = bus.connect();
    QDBusPendingCall pending = QDBusPendingCall::fromCompletedCall({});
    bool wasAnswered = false;
    service->setMethod("Open", [&] { wasAnswered = waitUntil([&] { return pending.isFinished(); }); });
    ASSERT_EQ(service->claim(), Claim::ours);
    pending = caller.asyncCall(call("Open"));
    EXPECT_TRUE(waitUntil([&] { return wasAnswered; }));
}

TEST_F(SessionServiceTest, TellsOtherProgramsItsMethods) {
    const auto service = makeService();
    service->setMethod("Open", [] {});
    ASSERT_EQ(service->claim(), Claim::ours);
    const auto reply = answer(call("Introspect", "org.freedesktop.DBus.Introspectable"));
    const QString text = reply.arguments().value(0).toString();
    EXPECT_TRUE(text.contains("<interface name=\"io.example.Program\">")) << text.toStdString();
    EXPECT_TRUE(text.contains("<method name=\"Open\"/>")) << text.toStdString();
}

TEST_F(SessionServiceTest, CallsTheInstanceThatHasTheName) {
    const auto first = makeService();
    int opened = 0;
    first->setMethod("Open", [&] { ++opened; });
    ASSERT_EQ(first->claim(), Claim::ours);
    bool reached = false;
    bool ended = false;
    // Waits for the answer, as a second instance does in a process of its own.
    std::thread second([&, connection = bus.connect()] {
        reached = SessionService(connection, "io.example.Program").callOwner("Open");
        QMetaObject::invokeMethod(QCoreApplication::instance(), [&] { ended = true; });
    });
    EXPECT_TRUE(waitUntil([&] { return ended; }));
    second.join();
    EXPECT_TRUE(reached);
    EXPECT_EQ(opened, 1);
}

TEST_F(SessionServiceTest, TheNameIsFreeAgainWhenTheInstanceIsGone) {
    const auto second = makeService();
    {
        const auto connection = bus.connect();
        SessionService first(connection, "io.example.Program");
        ASSERT_EQ(first.claim(), Claim::ours);
        EXPECT_EQ(second->claim(), Claim::taken);
        QDBusConnection::disconnectFromBus(connection.name());
    }
    EXPECT_TRUE(waitUntil([&] { return second->claim() == Claim::ours; }));
}

} // namespace
} // namespace tarvo::desktop
