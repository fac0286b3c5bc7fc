#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// Every temperature of the machine by groups, its power and its fans.
class SensorsSection : public CardSection {
public:
    SensorsSection(DetailContext& context, QWidget* parent);
    const std::vector<SensorReading>& sensors() const { return sensors_; }
    bool isLoading() const { return loading_.isLoading(); }

protected:
    void appear() override { loading_.start(); }

private:
    std::vector<SensorReading> sensors_;
    Loading<std::vector<SensorReading>> loading_;
};

} // namespace tarvo::ui
