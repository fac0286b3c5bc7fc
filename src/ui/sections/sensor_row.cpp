#include "ui/sections/sensor_row.h"

#include <QHBoxLayout>

namespace tarvo::ui {
namespace {

constexpr double coolest = 20;
constexpr double hottest = 100;
constexpr int nameWidth = 220;
constexpr int temperatureWidth = 56;

// The number beside it is read out, in the unit that the user has chosen.
class SilentBar : public TempBar {
public:
    using TempBar::TempBar;
    QString accessibleText() const override { return {}; }
};

} // namespace

SensorRow::SensorRow(QWidget* parent)
    : QWidget(parent), name_(new TextLabel), bar_(new SilentBar), temperature_(new TextLabel) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, metrics::hair, 0, metrics::hair);
    row->setSpacing(metrics::medium);
    name_->setFixedWidth(nameWidth);
    temperature_->setFixedWidth(temperatureWidth);
    row->addWidget(name_);
    row->addWidget(bar_, 1);
    row->addWidget(temperature_);
}

void SensorRow::set(const std::string& name, double celsius, const std::string& temperature) {
    name_->set({name, TextRole::rowLabel});
    bar_->set({celsius, coolest, hottest});
    temperature_->set({temperature, TextRole::rowValue, colors::primary, Qt::AlignRight | Qt::AlignVCenter});
}

} // namespace tarvo::ui
