#pragma once

#include "core/stats_snapshot.h"
#include "history/alert_log_format.h"
#include "platform/sensor_names.h"
#include "processes/network_connection.h"
#include "processes/process_demand_tracker.h"
#include "readers/user_volumes.h"
#include "sensors/bluetooth_devices_fetcher.h"
#include "sensors/sensor_reading.h"
#include "ui/pages/panel_context.h"
#include "ui/sections/loader.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvo::ui {

/// Posted after a process was asked to end: lists of processes are out of date.
inline constexpr std::string_view processListChanged = "processListChanged";

/// What the detail window works with; references outlive it. Whatever is left empty gives an empty list.
struct DetailContext {
    PanelContext panel;

    Loader<std::vector<ProcInfo>> processes = {};
    Loader<std::vector<NetworkConnection>> connections = {};
    Loader<std::vector<DiskVolume>> volumes = {};
    Loader<std::vector<BluetoothDeviceInfo>> bluetoothDevices = {};
    Loader<std::vector<SensorReading>> temperatures = {};
    /// What the system calls a sensor.
    std::function<std::optional<SensorName>(std::string_view key)> sensorName = {};
    /// At most `limit`, most demanding first; asked on the main thread.
    std::function<std::vector<ProcessDemand>(std::int64_t limit)> topDemanding = {};
    /// Newest first; asked on the main thread. May be null.
    std::function<const std::vector<AlertLogEntry>*()> alerts = {};
};

} // namespace tarvo::ui
