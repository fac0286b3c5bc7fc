// A portal with global shortcuts on the session's bus, for tests of whole programs. Its method Press stands
// for the keys.
#include "support/scripted_portal.h"

#include <QCoreApplication>

namespace {

class Portal : public tarvo::ScriptedPortal {
public:
    using ScriptedPortal::ScriptedPortal;

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != "Press") return ScriptedPortal::handleMessage(message, connection);
        press(shortcut, session);
        connection.send(message.createReply());
        return true;
    }
};

} // namespace

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    const Portal portal(QDBusConnection::sessionBus());
    return QCoreApplication::exec();
}
