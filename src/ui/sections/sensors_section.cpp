#include "ui/sections/sensors_section.h"

#include "ui/sections/sensor_cards.h"

namespace tarvo::ui {

SensorsSection::SensorsSection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"thermometer.medium", colors::orange, {.cs = "Senzory", .en = "Sensors"}},
                  parent),
      loading_(
          context.temperatures, [this](auto sensors) { sensors_ = std::move(sensors); },
          [this] { setLoading(loading_.isLoading()); }) {
    setReload([this] { loading_.start(); });
    add(new SensorCountCard(context.panel, sensors_, loading_, this));
    add(new SensorGroupsCard(context, sensors_, this));
    add(new PowerAndFansCard(context.panel, this));
}

} // namespace tarvo::ui
