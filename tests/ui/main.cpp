#include "ui/elements/element.h"

#include <QApplication>

#include <gtest/gtest.h>

// Any warning of the toolkit that no test announced is a failure.
static void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
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
