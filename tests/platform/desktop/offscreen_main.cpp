#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// A warning that no test announced fails the one that is running.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    // What the offscreen platform says about what only a window system has.
    if (message.startsWith(QLatin1String("This plugin does not support"))) return;
    ADD_FAILURE() << "unexpected warning: " << message.toStdString();
}

} // namespace

int main(int argumentCount, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "");
    qputenv("QT_STYLE_OVERRIDE", "fusion");
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
