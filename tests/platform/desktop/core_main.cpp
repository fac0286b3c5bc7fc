#include <gtest/gtest.h>

#include <QCoreApplication>

namespace {

/// A warning that no test announced fails the one that is running.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    ADD_FAILURE() << "unexpected warning: " << message.toStdString();
}

} // namespace

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    const QCoreApplication application(argumentCount, arguments);
    qInstallMessageHandler(failOnWarning);
    return RUN_ALL_TESTS();
}
