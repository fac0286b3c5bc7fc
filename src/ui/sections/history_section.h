#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// Day and time as the system writes them, in its time zone.
std::string alertDateText(WallTime date);

/// The alerts of the last weeks, newest first.
class HistorySection : public CardSection {
public:
    HistorySection(DetailContext& context, QWidget* parent);
};

} // namespace tarvo::ui
