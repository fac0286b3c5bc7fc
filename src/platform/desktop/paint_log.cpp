#include "platform/desktop/paint_log.h"

#include "platform/desktop/logging.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace tarvo::desktop {

namespace {

class PaintLog : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) report(*watched);
        return false;
    }

private:
    static void report(const QObject& painted) {
        const auto* widget = qobject_cast<const QWidget*>(&painted);
        if (!widget) return;
        qCDebug(paintLog) << widget->metaObject()->className() << "in" << widget->window()->objectName();
    }
};

} // namespace

void logPaintsIfAsked() {
    if (paintLog().isDebugEnabled()) qApp->installEventFilter(new PaintLog(qApp));
}

} // namespace tarvo::desktop
