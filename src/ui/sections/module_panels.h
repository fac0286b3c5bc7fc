#pragma once

#include "ui/elements/capacity_bar.h"
#include "ui/sections/core_levels.h"
#include "ui/sections/module_panel.h"

namespace tarvo::ui {

/// Total usage and a bar for each core.
class CPUPanel : public ModulePanel {
public:
    CPUPanel(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    StatRow* total_;
    CoreLevels* cores_;
    TextLabel* hint_;
};

class MemoryPanel : public ModulePanel {
public:
    MemoryPanel(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* share_;
    CapacityBar* bar_;
    StatRow* used_;
};

/// State, time and wear, or that there is no battery.
class BatteryPanel : public ModulePanel {
public:
    BatteryPanel(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* missing_;
    StatRow* state_;
    StatRow* time_;
    StatRow* cycles_;
    StatRow* health_;
    TextLabel* note_;
};

/// Temperatures, power and fans.
class TemperaturePanel : public ModulePanel {
public:
    TemperaturePanel(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    StatRow* cpu_;
    StatRow* gpu_;
    StatRow* power_;
    TextLabel* passive_;
    std::vector<StatRow*> fans_;
};

class DiskPanel : public ModulePanel {
public:
    DiskPanel(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    StatRow* free_;
    StatRow* read_;
    StatRow* write_;
};

class NetworkPanel : public ModulePanel {
public:
    NetworkPanel(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    StatRow* download_;
    StatRow* upload_;
    StatRow* total_;
    StatRow* localIP_;
};

} // namespace tarvo::ui
