#include "ui/controls/painted_button.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>

namespace tarvo::ui {

PaintedButton::PaintedButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void PaintedButton::setName(const std::string& name, bool asToolTip) {
    const QString text = QString::fromStdString(name);
    if (accessibleName() == text) return;
    setAccessibleName(text);
    if (asToolTip) setToolTip(text);
    updateGeometry();
    update();
}

void PaintedButton::setCheckedByProgram(bool checked) {
    const QSignalBlocker silent(this);
    setChecked(checked);
}

double PaintedButton::emphasis() const {
    if (!isEnabled()) return 0;
    if (isDown()) return 0.16;
    return underMouse() ? 0.08 : 0;
}

void PaintedButton::paintFocus(QPainter& painter, const QRectF& shape, double radius) const {
    if (!hasFocus() || !focusIsVisible_) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme().color(colors::blue), 2));
    painter.drawRoundedRect(shape.adjusted(1, 1, -1, -1), radius, radius);
}

void PaintedButton::keyPressEvent(QKeyEvent* event) {
    focusIsVisible_ = true;
    update();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat()) click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

// A click moves the focus too, but says by itself where it went.
void PaintedButton::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    focusIsVisible_ =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    QAbstractButton::focusInEvent(event);
}

} // namespace tarvo::ui
