#include "ui/controls/segmented_control.h"

#include "ui/controls/painted_button.h"
#include "ui/style/metrics.h"
#include "ui/style/tabular_text.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvo::ui {
namespace {

constexpr int segmentHeight = 22;
constexpr double groundRadius = 7;
constexpr double segmentRadius = 6;

QColor chosenGround(const Theme& theme) {
    return theme.color(colors::white.withOpacity(theme.isDark() ? 0.22 : 1));
}

} // namespace

class SegmentedControl::Segment : public PaintedButton {
public:
    using PaintedButton::PaintedButton;

    QSize sizeHint() const override {
        const double text = TabularText(roleFont(TextRole::button)).width(accessibleName());
        return {static_cast<int>(std::ceil(text)) + 2 * metrics::regular, segmentHeight};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Theme shades = theme();
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() ? chosenGround(shades)
                                     : shades.color(colors::primary.withOpacity(emphasis())));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), segmentRadius, segmentRadius);
        painter.setPen(shades.color(isChecked() ? colors::primary : colors::secondary));
        const TabularText text(roleFont(TextRole::button));
        text.draw(painter, rect(), Qt::AlignHCenter, text.elided(accessibleName(), width() - metrics::tight));
        paintFocus(painter, rect(), segmentRadius);
    }
};

SegmentedControl::SegmentedControl(std::function<void(int)> onChange, QWidget* parent)
    : QWidget(parent), onChange_(std::move(onChange)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(1, 1, 1, 1);
    row->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void SegmentedControl::setLabels(const std::vector<std::string>& labels) {
    while (segments_.size() > labels.size()) {
        delete segments_.back();
        segments_.pop_back();
    }
    while (segments_.size() < labels.size())
        addSegment();
    for (std::size_t index = 0; index < labels.size(); ++index)
        segments_[index]->setName(labels[index]);
}

void SegmentedControl::addSegment() {
    auto* segment = new Segment(this);
    segment->setCheckable(true);
    segment->setAutoExclusive(true);
    segment->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const int index = static_cast<int>(segments_.size());
    // Assistive technology toggles without a click.
    connect(segment, &QAbstractButton::toggled, this, [this, index](bool isChosen) {
        if (isChosen) onChange_(index);
    });
    layout()->addWidget(segment);
    segments_.push_back(segment);
}

void SegmentedControl::setChosen(int index) {
    if (QWidget* chosenSegment = segment(index))
        static_cast<Segment*>(chosenSegment)->setCheckedByProgram(true);
}

int SegmentedControl::chosen() const {
    const auto checked = std::find_if(segments_.begin(), segments_.end(),
                                      [](const Segment* each) { return each->isChecked(); });
    return checked == segments_.end() ? -1 : static_cast<int>(checked - segments_.begin());
}

QWidget* SegmentedControl::segment(int index) const {
    if (index < 0 || index >= static_cast<int>(segments_.size())) return nullptr;
    return segments_[static_cast<std::size_t>(index)];
}

void SegmentedControl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme(palette()).color(colors::primary.withOpacity(0.08)));
    painter.drawRoundedRect(QRectF(rect()), groundRadius, groundRadius);
}

} // namespace tarvo::ui
