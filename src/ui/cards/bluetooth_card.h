#pragma once

#include "ui/cards/card.h"

#include <vector>

namespace tarvo::ui {

class StatRow;

/// Battery levels of connected Bluetooth accessories.
class BluetoothCard : public Card {
public:
    BluetoothCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* title_;
    TextLabel* none_;
    std::vector<StatRow*> rows_;
};

} // namespace tarvo::ui
