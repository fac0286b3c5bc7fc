#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// State, time and health of the battery, and what has drawn on it most.
class BatterySection : public CardSection {
public:
    BatterySection(DetailContext& context, QWidget* parent);

protected:
    void refresh() override;
};

} // namespace tarvo::ui
