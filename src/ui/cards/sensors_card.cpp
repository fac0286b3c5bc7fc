#include "ui/cards/sensors_card.h"

#include "ui/cards/row_pool.h"
#include "ui/geometry/load_color.h"

#include <fmt/format.h>

namespace tarvo::ui {
namespace {

constexpr double coolest = 20;
constexpr double hottest = 100;

} // namespace

SensorsCard::SensorsCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), temperature_(add(new StatRow)), bar_(add(new TempBar)),
      cooling_(add(new StatRow)), fans_(new QVBoxLayout), power_(nullptr) {
    fans_->setContentsMargins(0, 0, 0, 0);
    fans_->setSpacing(0);
    column()->addLayout(fans_);
    power_ = add(new StatRow);
}

void SensorsCard::show(const StatsSnapshot& snapshot) {
    const auto celsius = snapshot.cpuTemp;
    temperature_->set({"thermometer.medium", colors::orange,
                       t({.cs = "Teplota CPU", .en = "CPU Temperature"}), temperature(celsius),
                       colors::primary});
    setShown(bar_, celsius.has_value());
    bar_->set({celsius.value_or(coolest), coolest, hottest});
    showCooling(snapshot);
    setShown(power_, context_.settings.boolean(keys::showPower));
    power_->set(
        {"bolt.fill", colors::yellow, t({.cs = "Příkon", .en = "Power Draw"}),
         snapshot.powerWatts ? fmt::format("{:.1f} W", *snapshot.powerWatts) : std::string(unavailable),
         colors::primary});
}

void SensorsCard::showCooling(const StatsSnapshot& snapshot) {
    const bool isPassive = !snapshot.hasFan;
    const bool isUnread = snapshot.hasFan && snapshot.fanRPMs.empty();
    std::string state;
    if (isPassive) state = t({.cs = "pasivní", .en = "passive"});
    if (isUnread) state = unavailable;
    cooling_->set({isPassive ? "fan.slash.fill" : "fan.fill", colors::teal,
                   t({.cs = "Chlazení", .en = "Cooling"}), state, colors::primary});

    const std::size_t count = snapshot.hasFan ? snapshot.fanRPMs.size() : 0;
    resizePool(fanRows_, count, [this] {
        auto* row = new StatRow(this);
        fans_->addWidget(row);
        return row;
    });
    for (std::size_t index = 0; index < count; ++index) {
        fanRows_[index]->set({"fan.fill", colors::teal,
                              t({.cs = "Ventilátor ", .en = "Fan "}) + std::to_string(index + 1),
                              fmt::format("{:.0f} RPM", snapshot.fanRPMs[index]), colors::primary});
    }
}

} // namespace tarvo::ui
