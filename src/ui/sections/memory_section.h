#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// What the memory is used for, and the swap.
class MemorySection : public CardSection {
public:
    MemorySection(DetailContext& context, QWidget* parent);

protected:
    void refresh() override;
};

} // namespace tarvo::ui
