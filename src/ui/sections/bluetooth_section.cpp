#include "ui/sections/bluetooth_section.h"

#include "ui/cards/card_title.h"
#include "ui/cards/row_pool.h"
#include "ui/elements/stat_row.h"

#include <algorithm>

namespace tarvo::ui {
namespace {

using Devices = std::vector<BluetoothDeviceInfo>;

class PairedDevicesCard : public Card {
public:
    PairedDevicesCard(PanelContext& context, const Devices& devices, const Loading<Devices>& loading,
                      QWidget* parent)
        : Card(context, parent), devices_(devices), loading_(loading), title_(add(new TextLabel)),
          none_(add(new TextLabel)) {}

    void show(const StatsSnapshot&) override {
        title_->set(cardTitle(t({.cs = "Spárovaná zařízení", .en = "Paired Devices"})));
        // Before the first listing nobody knows that there are none.
        const bool isWaiting = loading_.isLoading() && !loading_.hasLoaded();
        none_->set(cardSubtitle(isWaiting
                                    ? t({.cs = "Načítám…", .en = "Loading…"})
                                    : t({.cs = "Žádná spárovaná zařízení", .en = "No paired devices"})));
        setShown(none_, devices_.empty());
        resizePool(rows_, devices_.size(), [this] { return add(new StatRow(this)); });
        for (std::size_t index = 0; index < devices_.size(); ++index)
            showDevice(*rows_[index], devices_[index]);
    }

private:
    void showDevice(StatRow& row, const BluetoothDeviceInfo& device) {
        std::string state = device.isConnected ? t({.cs = "Připojeno", .en = "Connected"})
                                               : t({.cs = "Nepřipojeno", .en = "Not Connected"});
        if (const auto percent = charge(device)) state = std::to_string(*percent) + "% · " + state;
        row.set({device.symbol, device.isConnected ? colors::blue : colors::gray, device.name,
                 std::move(state), device.isConnected ? colors::primary : colors::secondary});
    }

    // The monitor knows accessories by the names under which they advertise themselves.
    std::optional<std::int64_t> charge(const BluetoothDeviceInfo& device) const {
        if (!context_.bluetoothBattery || !device.isConnected) return std::nullopt;
        const auto& known = context_.bluetoothBattery->devices();
        const auto found = std::find_if(known.begin(), known.end(),
                                        [&](const auto& accessory) { return accessory.name == device.name; });
        return found == known.end() ? std::nullopt : std::optional(found->percent);
    }

    const Devices& devices_;
    const Loading<Devices>& loading_;
    TextLabel* title_;
    TextLabel* none_;
    std::vector<StatRow*> rows_;
};

} // namespace

BluetoothSection::BluetoothSection(DetailContext& context, QWidget* parent)
    : CardSection(context,
                  {"dot.radiowaves.left.and.right", colors::blue, {.cs = "Bluetooth", .en = "Bluetooth"}},
                  parent),
      loading_(
          context.bluetoothDevices, [this](Devices devices) { devices_ = std::move(devices); },
          [this] { setLoading(loading_.isLoading()); }) {
    setReload([this] { load(); });
    add(new PairedDevicesCard(context.panel, devices_, loading_, this));
    if (context.panel.bluetoothBattery) {
        keep(context.panel.bluetoothBattery->publishedDevices().observeWillChange(
            [this] { askForRefresh(); }));
    }
}

void BluetoothSection::appear() {
    load();
}

void BluetoothSection::load() {
    loading_.start();
    if (context_.panel.bluetoothBattery) context_.panel.bluetoothBattery->refresh();
}

} // namespace tarvo::ui
