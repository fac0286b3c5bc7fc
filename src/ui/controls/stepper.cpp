#include "ui/controls/stepper.h"

#include "ui/controls/painted_button.h"
#include "ui/style/metrics.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr double cornerRadius = 6;

} // namespace

double stepped(const StepRange& range, double value, int direction) {
    return std::clamp(value + direction * range.step, range.least, range.most);
}

class Stepper::StepButton : public PaintedButton {
public:
    StepButton(bool raises, QWidget* parent) : PaintedButton(parent), raises_(raises) {
        setFixedSize(24, 22);
        setAutoRepeat(true);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Theme shades = theme();
        painter.setPen(Qt::NoPen);
        painter.setBrush(shades.color(colors::primary.withOpacity(0.08 + emphasis())));
        painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
        painter.setPen(QPen(shades.color(colors::primary.withOpacity(isEnabled() ? 0.8 : 0.25)), 1.5,
                            Qt::SolidLine, Qt::RoundCap));
        const QPointF middle = QRectF(rect()).center();
        painter.drawLine(middle - QPointF(4, 0), middle + QPointF(4, 0));
        if (raises_) painter.drawLine(middle - QPointF(0, 4), middle + QPointF(0, 4));
        paintFocus(painter, rect(), cornerRadius);
    }

private:
    bool raises_;
};

Stepper::Stepper(StepRange range, std::function<void(double)> onChange, QWidget* parent)
    : QWidget(parent), range_(range), onChange_(std::move(onChange)), lower_(new StepButton(false, this)),
      raise_(new StepButton(true, this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::hair);
    row->addWidget(lower_);
    row->addWidget(raise_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(lower_, &QAbstractButton::clicked, this, [this] { step(-1); });
    connect(raise_, &QAbstractButton::clicked, this, [this] { step(1); });
}

void Stepper::setValue(double value) {
    value_ = value;
    enableButtons();
}

void Stepper::setNames(const std::string& lower, const std::string& raise) {
    lower_->setName(lower);
    raise_->setName(raise);
}

void Stepper::step(int direction) {
    const double next = stepped(range_, value_, direction);
    if (next == value_) return;
    setValue(next);
    onChange_(next);
}

void Stepper::enableButtons() {
    lower_->setEnabled(value_ > range_.least);
    raise_->setEnabled(value_ < range_.most);
}

} // namespace tarvo::ui
