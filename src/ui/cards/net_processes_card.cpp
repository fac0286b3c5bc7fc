#include "ui/cards/net_processes_card.h"

#include "ui/cards/card_title.h"
#include "ui/cards/name_value_row.h"
#include "ui/cards/row_pool.h"

namespace tarvo::ui {

NetProcessesCard::NetProcessesCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(add(new TextLabel)), subtitle_(add(new TextLabel)),
      loading_(add(new TextLabel)) {}

void NetProcessesCard::show(const StatsSnapshot& snapshot) {
    title_->set(cardTitle(t({.cs = "Síť po procesech", .en = "Network by Process"})));
    subtitle_->set(cardSubtitle(t({.cs = "od spuštění procesu", .en = "since process launch"})));
    loading_->set(cardSubtitle(t({.cs = "Načítám…", .en = "Loading…"})));
    const auto& processes = snapshot.topNetProcesses;
    setShown(loading_, processes.empty());
    resizePool(rows_, processes.size(), [this] { return add(new NameValueRow(this)); });
    for (std::size_t index = 0; index < processes.size(); ++index) {
        rows_[index]->set(
            {processes[index].name, gigabytes(processes[index].bytesIn + processes[index].bytesOut)});
    }
}

} // namespace tarvo::ui
