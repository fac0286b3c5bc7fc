#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// The paired Bluetooth devices, with their charge where it is known.
class BluetoothSection : public CardSection {
public:
    BluetoothSection(DetailContext& context, QWidget* parent);
    const std::vector<BluetoothDeviceInfo>& devices() const { return devices_; }
    bool isLoading() const { return loading_.isLoading(); }

protected:
    void appear() override;

private:
    void load();

    std::vector<BluetoothDeviceInfo> devices_;
    Loading<std::vector<BluetoothDeviceInfo>> loading_;
};

} // namespace tarvo::ui
