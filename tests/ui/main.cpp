#include "ui/elements/element.h"

#include <QApplication>

#include <gtest/gtest.h>

// Any warning of the toolkit is a failure, but for what the platform without a screen says of itself.
static void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    if (message.startsWith(QLatin1String("This plugin does not support"))) return;
    ADD_FAILURE() << "unexpected message: " << message.toStdString();
}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    qunsetenv("QT_SCALE_FACTOR");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    tarvo::ui::installElementAccessibility();
    qInstallMessageHandler(failOnWarning);
    const int result = RUN_ALL_TESTS();
    qInstallMessageHandler(nullptr);
    return result;
}
