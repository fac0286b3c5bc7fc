#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// The alerts of the last weeks, newest first.
class HistorySection : public CardSection {
public:
    HistorySection(DetailContext& context, QWidget* parent);
};

} // namespace tarvo::ui
