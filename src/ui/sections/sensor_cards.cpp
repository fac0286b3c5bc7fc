#include "ui/sections/sensor_cards.h"

#include "ui/cards/row_pool.h"
#include "ui/sections/reading_texts.h"
#include "ui/sections/sensor_row.h"
#include "ui/style/metrics.h"

#include <span>

namespace tarvo::ui {

SensorCountCard::SensorCountCard(PanelContext& context, const std::vector<SensorReading>& sensors,
                                 const Loading<std::vector<SensorReading>>& loading, QWidget* parent)
    : Card(context, parent), sensors_(sensors), loading_(loading), count_(add(new StatRow)) {
    column()->setSpacing(0);
}

void SensorCountCard::show(const StatsSnapshot&) {
    const bool isWaiting = loading_.isLoading() && !loading_.hasLoaded();
    count_->set({"thermometer.medium", colors::orange, t({.cs = "Nalezené senzory", .en = "Sensors found"}),
                 isWaiting ? t({.cs = "Načítám…", .en = "Loading…"}) : std::to_string(sensors_.size()),
                 colors::primary});
}

class SensorGroupsCard::GroupView : public QWidget {
public:
    explicit GroupView(QWidget* parent)
        : QWidget(parent), column_(new QVBoxLayout(this)), title_(new TextLabel) {
        column_->setContentsMargins(0, 0, 0, metrics::small);
        column_->setSpacing(0);
        column_->addWidget(title_);
    }
    void setTitle(const SensorGroup& group) { title_->set({group.title, TextRole::cardTitle, group.color}); }
    std::span<SensorRow* const> rows(std::size_t count) {
        resizePool(rows_, count, [this] {
            auto* row = new SensorRow(this);
            column_->addWidget(row);
            return row;
        });
        return rows_;
    }

private:
    QVBoxLayout* column_;
    TextLabel* title_;
    std::vector<SensorRow*> rows_;
};

SensorGroupsCard::SensorGroupsCard(DetailContext& context, const std::vector<SensorReading>& sensors,
                                   QWidget* parent)
    : Card(context.panel, parent), detail_(context), sensors_(sensors) {}

std::string SensorGroupsCard::name(const SensorReading& sensor) const {
    const auto known = detail_.sensorName ? detail_.sensorName(sensor.key) : std::nullopt;
    if (!known) return sensor.key;
    return known->label.empty() ? known->chip : known->label + " · " + known->chip;
}

void SensorGroupsCard::show(const StatsSnapshot&) {
    const std::vector<SensorGroup> groups = sensorGroups(sensors_, context_.loc);
    setShown(this, !groups.empty());
    resizePool(groups_, groups.size(), [this] { return add(new GroupView(this)); });
    for (std::size_t index = 0; index < groups.size(); ++index) {
        groups_[index]->setTitle(groups[index]);
        const auto rows = groups_[index]->rows(groups[index].sensors.size());
        for (std::size_t place = 0; place < rows.size(); ++place) {
            const SensorReading& sensor = groups[index].sensors[place];
            rows[place]->set(name(sensor), sensor.celsius, temperature(sensor.celsius));
        }
    }
}

PowerAndFansCard::PowerAndFansCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), power_(add(new StatRow)) {
    column()->setSpacing(0);
}

void PowerAndFansCard::show(const StatsSnapshot& snapshot) {
    power_->set({"bolt.fill", colors::yellow, t({.cs = "Příkon", .en = "Power Draw"}),
                 wattText(snapshot.powerWatts), colors::primary});
    const std::size_t count = snapshot.hasFan ? snapshot.fanRPMs.size() : 0;
    resizePool(fans_, count, [this] { return add(new StatRow(this)); });
    for (std::size_t index = 0; index < count; ++index) {
        fans_[index]->set({"fan.fill", colors::teal, fanName(index, context_.loc),
                           fanSpeedText(snapshot.fanRPMs[index]), colors::primary});
    }
}

} // namespace tarvo::ui
