#include "ui/cards/processes_card.h"

#include "ui/cards/card_title.h"
#include "ui/cards/process_row.h"
#include "ui/cards/row_pool.h"

namespace tarvo::ui {

ProcessesCard::ProcessesCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(add(new TextLabel)), loading_(add(new TextLabel)) {}

void ProcessesCard::show(const StatsSnapshot& snapshot) {
    title_->set(cardTitle(t({.cs = "Nejnáročnější procesy", .en = "Top Processes"})));
    loading_->set(cardSubtitle(t({.cs = "Načítám…", .en = "Loading…"})));
    const auto& processes = snapshot.topCPU;
    setShown(loading_, processes.empty());
    resizePool(rows_, processes.size(),
               [this] { return add(new ProcessRow(context_.icons, context_.confirmKill, this)); });
    const std::string help = t({.cs = "Ukončit proces", .en = "Quit Process"});
    for (std::size_t index = 0; index < processes.size(); ++index)
        rows_[index]->set(processes[index], help);
}

} // namespace tarvo::ui
