#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// Load of the processor: in total, over the last minutes and by core.
class CPUSection : public CardSection {
public:
    CPUSection(DetailContext& context, QWidget* parent);

protected:
    void refresh() override;
};

} // namespace tarvo::ui
