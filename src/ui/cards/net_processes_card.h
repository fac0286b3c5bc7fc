#pragma once

#include "ui/cards/card.h"

#include <vector>

namespace tarvo::ui {

class NameValueRow;

/// The processes with the most network traffic.
class NetProcessesCard : public Card {
public:
    NetProcessesCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* title_;
    TextLabel* subtitle_;
    TextLabel* loading_;
    std::vector<NameValueRow*> rows_;
};

} // namespace tarvo::ui
