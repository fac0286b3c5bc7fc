#include "platform/desktop/qt_application.h"

#include <QEvent>
#include <QWidget>

#include <clocale>

namespace tarvo::desktop {

QtApplication::QtApplication(int& argumentCount, char** arguments, std::string_view version,
                             const char* desktopFile)
    : application_(argumentCount, arguments) {
    // Qt has taken over the user's locale; numbers that go through the C library keep their point.
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(QStringLiteral("tarvo"));
    QCoreApplication::setApplicationVersion(QLatin1String(version.data(), static_cast<int>(version.size())));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tarvo"));
    QGuiApplication::setDesktopFileName(QLatin1String(desktopFile));
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

// By itself a Qt application first closes its windows, and stays when one only hides.
bool QtApplication::Ending::event(QEvent* event) {
    if (event->type() != QEvent::Quit) return QApplication::event(event);
    exit(0);
    return true;
}

void QtApplication::activateIgnoringOtherApps() {
    if (QWidget* window = QApplication::activeModalWidget()) window->activateWindow();
}

void QtApplication::terminate() {
    QCoreApplication::quit();
}

int QtApplication::run() {
    return QApplication::exec();
}

} // namespace tarvo::desktop
