#pragma once

#include "ui/cards/card.h"
#include "ui/elements/stat_row.h"
#include "ui/sections/detail_context.h"
#include "ui/sections/sensor_group.h"

#include <vector>

namespace tarvo::ui {

/// How many temperatures there are.
class SensorCountCard : public Card {
public:
    SensorCountCard(PanelContext& context, const std::vector<SensorReading>& sensors,
                    const Loading<std::vector<SensorReading>>& loading, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    const std::vector<SensorReading>& sensors_;
    const Loading<std::vector<SensorReading>>& loading_;
    StatRow* count_;
};

/// The temperatures under the titles of their groups. Hidden while there is none.
class SensorGroupsCard : public Card {
public:
    SensorGroupsCard(DetailContext& context, const std::vector<SensorReading>& sensors, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    class GroupView;
    std::string name(const SensorReading& sensor) const;

    DetailContext& detail_;
    const std::vector<SensorReading>& sensors_;
    std::vector<GroupView*> groups_;
};

/// The power of the system and the speed of each fan.
class PowerAndFansCard : public Card {
public:
    PowerAndFansCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    StatRow* power_;
    std::vector<StatRow*> fans_;
};

} // namespace tarvo::ui
