#pragma once

#include "ui/cards/card.h"
#include "ui/elements/stat_row.h"

namespace tarvo::ui {

/// Rates and total of the network and, where the settings ask for them, addresses and the Wi-Fi name.
class NetworkCard : public Card {
public:
    NetworkCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    void showAddresses(const StatsSnapshot& snapshot);

    StatRow* download_;
    StatRow* upload_;
    StatRow* total_;
    StatRow* localIP_;
    StatRow* publicIP_;
    StatRow* wifi_;
};

} // namespace tarvo::ui
