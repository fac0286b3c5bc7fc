#include "ui/controls/activity_indicator.h"

#include <QPainter>

#include <chrono>

namespace tarvo::ui {
namespace {

constexpr std::chrono::milliseconds patience{200};
constexpr std::chrono::milliseconds frame{80};
constexpr int side = 18;
constexpr double lineWidth = 2;
// In Qt's sixteenths of a degree.
constexpr int stepAngle = 30 * 16;
constexpr int arcAngle = 270 * 16;

} // namespace

ActivityIndicator::ActivityIndicator(QWidget* parent) : Element(parent) {
    setFixedSize(side, side);
    connect(&timer_, &QTimer::timeout, this, [this] { turn(); });
}

void ActivityIndicator::setActive(bool active) {
    if (active == isActive_) return;
    isActive_ = active;
    step_ = 0;
    if (active) {
        timer_.start(patience);
    } else {
        timer_.stop();
    }
    contentChanged();
}

void ActivityIndicator::turn() {
    if (timer_.intervalAsDuration() != frame) timer_.setInterval(frame);
    ++step_;
    update();
}

QString ActivityIndicator::accessibleText() const {
    return isActive_ ? QString::fromStdString(fields().text) : QString();
}

void ActivityIndicator::paintEvent(QPaintEvent*) {
    if (step_ == 0) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = QRectF(rect()).adjusted(lineWidth, lineWidth, -lineWidth, -lineWidth);
    painter.setPen(QPen(theme().color(colors::secondary), lineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, -step_ % 12 * stepAngle, arcAngle);
}

} // namespace tarvo::ui
