// A settings portal on the session's bus, for tests of whole programs. Its method Choose stands for the user.
#include "support/scripted_settings_portal.h"

#include <QCoreApplication>

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    tarvo::ScriptedSettingsPortal portal(QDBusConnection::sessionBus());
    portal.appear();
    return QCoreApplication::exec();
}
