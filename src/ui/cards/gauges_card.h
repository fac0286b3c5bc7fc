#pragma once

#include "ui/cards/card.h"
#include "ui/elements/ring_gauge.h"

namespace tarvo::ui {

/// Processor, memory and GPU as three rings.
class GaugesCard : public Card {
public:
    GaugesCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    RingGauge* cpu_;
    RingGauge* memory_;
    RingGauge* gpu_;
};

} // namespace tarvo::ui
