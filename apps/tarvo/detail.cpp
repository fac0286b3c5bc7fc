#include "detail.h"

#include "history/alert_log_store.h"
#include "platform/desktop/popover/widget_content.h"
#include "readers/user_volumes.h"
#include "sensors/sensor_monitor.h"
#include "ui/detail/detail_view.h"
#include "ui/sections/module_detail_view.h"

#include <QVBoxLayout>

#include <utility>

namespace tarvo {

namespace {

/// Rows of the process table.
constexpr std::int64_t listedProcesses = 500;

template <typename Read>
auto loader(Dispatcher& dispatcher, Read read) {
    using Result = decltype(read());
    return ui::inBackground<Result>(dispatcher, std::move(read));
}

void wireSensors(ui::DetailContext& context, const Machine& machine, Dispatcher& dispatcher) {
    if (const SensorMonitor* sensors = machine.sensors()) {
        context.temperatures = loader(dispatcher, [sensors] { return sensors->readAllTemperatures(); });
    }
    if (const SensorNames* names = machine.sensorNames()) {
        context.sensorName = [names](std::string_view key) { return names->sensorName(key); };
    }
}

} // namespace

ui::DetailContext detailContext(ui::PanelContext panel, Machine& machine, const Bluetooth& bluetooth,
                                Dispatcher& dispatcher) {
    ui::DetailContext context{std::move(panel)};
    context.processes = loader(
        dispatcher, [list = machine.processList()] { return list(ProcessSort::cpu, listedProcesses); });
    context.connections = machine.connections();
    context.volumes = loader(dispatcher, [&machine] { return listUserVolumes(machine.volumes()); });
    context.bluetoothDevices = loader(dispatcher, bluetooth.pairedDevices());
    wireSensors(context, machine, dispatcher);
    context.topDemanding = [&machine](std::int64_t limit) {
        return machine.processDemand().topDemanding(limit);
    };
    context.alerts = [] { return &AlertLogStore::shared().entries(); };
    return context;
}

void fillDetailWindow(QWidget& window, ui::DetailContext context) {
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new ui::DetailView(std::move(context)));
}

std::unique_ptr<PopoverContent> makePreviewContent(MenuBarModule module, ui::PanelContext context) {
    return std::make_unique<desktop::WidgetContent>(
        std::make_unique<ui::ModuleDetailView>(module, std::move(context)));
}

} // namespace tarvo
