// The floor of a desktop program: Qt Widgets with a timer, as an empty program with a tray icon or as one
// that repaints a small text in a dock-sized window each time. Usage: qt_floor tray|text SECONDS

#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QSystemTrayIcon>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <string_view>

int main(int count, char** arguments) {
    const std::string_view kind = count == 3 ? arguments[1] : "";
    const double seconds = count == 3 ? std::atof(arguments[2]) : 0;
    if ((kind != "tray" && kind != "text") || seconds <= 0) {
        std::fputs("usage: qt_floor tray|text SECONDS\n", stderr);
        return 2;
    }
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);

    QPixmap square(22, 22);
    square.fill(Qt::darkGray);
    QSystemTrayIcon icon{QIcon(square)};
    QLabel label(QStringLiteral("CPU 0% · RAM 0%"));
    label.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    if (kind == "tray") icon.show();
    if (kind == "text") label.show();

    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        ++ticks;
        if (kind == "text") label.setText(QStringLiteral("CPU %1% · RAM 48%").arg(ticks % 100));
    });
    timer.start(static_cast<int>(seconds * 1000));
    return QApplication::exec();
}
