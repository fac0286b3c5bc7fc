#include "ui/cards/bluetooth_card.h"

#include "ui/cards/card_title.h"
#include "ui/cards/row_pool.h"
#include "ui/elements/stat_row.h"

namespace tarvo::ui {

BluetoothCard::BluetoothCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(add(new TextLabel)), none_(add(new TextLabel)) {}

void BluetoothCard::show(const StatsSnapshot&) {
    title_->set(cardTitle(t({.cs = "Bluetooth příslušenství", .en = "Bluetooth Accessories"})));
    none_->set(cardSubtitle(std::string(unavailable)));
    static const std::vector<BluetoothAccessoryBattery> nothing;
    const auto& devices = context_.bluetoothBattery ? context_.bluetoothBattery->devices() : nothing;
    setShown(none_, devices.empty());
    resizePool(rows_, devices.size(), [this] { return add(new StatRow(this)); });
    for (std::size_t index = 0; index < devices.size(); ++index) {
        rows_[index]->set({"dot.radiowaves.left.and.right", colors::blue, devices[index].name,
                           std::to_string(devices[index].percent) + "%",
                           devices[index].percent <= 20 ? colors::red : colors::primary});
    }
}

} // namespace tarvo::ui
