#pragma once

#include "ui/panel_fixture.h"
#include "ui/sections/detail_context.h"

namespace tarvo::ui {

/// What the detail window needs, made of doubles: every load runs when the dispatcher is told to.
struct DetailParts : PanelParts {
    std::vector<ProcInfo> processes{
        {412, "Firefox", 38.2, 9.1}, {77, "gnome-shell", 12.5, 3.2}, {9001, "clangd", 8.8, 14.4}};
    std::vector<NetworkConnection> connections{
        {{}, "sshd", 800, "TCP", "*:22", "—", "LISTEN"},
        {{}, "firefox", 412, "TCP", "10.0.0.5:50010", "203.0.113.7:443", "ESTABLISHED"},
        {{}, "firefox", 412, "TCP", "10.0.0.5:50009", "203.0.113.7:443", "CLOSE_WAIT"},
        {{}, "avahi-daemon", 301, "UDP", "*:5353", "—", "—"}};
    std::vector<DiskVolume> volumes{{"System", "/", 412, 994, false}, {"Stick", "/media/stick", 3, 32, true}};
    std::vector<BluetoothDeviceInfo> devices{{"Mouse", "00:11", true, "computermouse.fill"},
                                             {"Headset", "00:12", false, "headphones"}};
    std::vector<SensorReading> sensors{{"Ta0P", 31}, {"Te01", 48}, {"Tg01", 51}, {"Tp01", 64}, {"Tp02", 91}};
    std::vector<ProcessDemand> demanding{{"Firefox", 61.5, 12}, {"clangd", 8.25, 4}};
    std::vector<AlertLogEntry> alerts;
    int loads = 0;

    DetailContext detail() {
        DetailContext made{context()};
        made.processes = loader(processes);
        made.connections = loader(connections);
        made.volumes = loader(volumes);
        made.bluetoothDevices = loader(devices);
        made.temperatures = loader(sensors);
        made.topDemanding = [this](std::int64_t) { return demanding; };
        made.alerts = [this] { return &alerts; };
        return made;
    }

private:
    template <typename Result>
    Loader<Result> loader(const Result& result) {
        return inBackground<Result>(dispatcher, [this, &result] {
            ++loads;
            return result;
        });
    }
};

} // namespace tarvo::ui
