#include "panels.h"

#include "platform/build_options.h"
#include "platform/desktop/open_link.h"
#include "platform/desktop/popover/widget_content.h"
#include "ui/pages/popover_view.h"

#include <string>
#include <utility>

namespace tarvo {

Panels::Panels(PanelServices services)
    : services_(std::move(services)), icons_(std::move(services_.applicationIcons)) {}

ui::PanelContext Panels::context() {
    ui::PanelContext context{services_.model,
                             services_.settings,
                             services_.localization,
                             services_.notifications,
                             icons_,
                             services_.family,
                             appVersionString(std::string(build_options::version))};
    HistoryStore& history = services_.history;
    context.availableUpdate = &services_.updates.publishedAvailable();
    context.bluetoothBattery = services_.bluetoothBattery;
    context.historySamples = [&history](double lastHours) { return history.samples(lastHours); };
    context.lastHistorySample = [&history] { return history.lastSampleTime(); };
    context.openDetailWindow = services_.openDetailWindow;
    context.quit = services_.quit;
    context.openLink = desktop::openLink;
    if (services_.complete) services_.complete(context);
    return context;
}

std::unique_ptr<PopoverContent> Panels::makePopoverContent() {
    return std::make_unique<desktop::WidgetContent>(std::make_unique<ui::PopoverView>(context()));
}

} // namespace tarvo
