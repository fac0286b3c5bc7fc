#include "ui/sections/module_panel.h"

#include "ui/cards/card.h"
#include "ui/cards/card_title.h"
#include "ui/sections/module_panels.h"
#include "ui/style/metrics.h"

namespace tarvo::ui {

ModulePanel::ModulePanel(PanelContext& context, QWidget* parent)
    : QWidget(parent), context_(context), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(metrics::hair);
}

std::string ModulePanel::temperature(std::optional<double> celsius) const {
    return celsius ? context_.settings.formatTemperature(*celsius) : std::string(unavailable);
}

TextLabel* ModulePanel::addNote() {
    return add(new TextLabel);
}

void ModulePanel::setNote(TextLabel* note, std::string text) {
    TextLabelFields fields = cardSubtitle(std::move(text));
    fields.wraps = true;
    note->set(std::move(fields));
}

ModulePanel* makeModulePanel(MenuBarModule module, PanelContext& context, QWidget* parent) {
    switch (module) {
    case MenuBarModule::cpu:
        return new CPUPanel(context, parent);
    case MenuBarModule::mem:
        return new MemoryPanel(context, parent);
    case MenuBarModule::battery:
        return new BatteryPanel(context, parent);
    case MenuBarModule::temp:
        return new TemperaturePanel(context, parent);
    case MenuBarModule::disk:
        return new DiskPanel(context, parent);
    case MenuBarModule::network:
        break;
    }
    return new NetworkPanel(context, parent);
}

Color moduleColor(MenuBarModule module) {
    switch (module) {
    case MenuBarModule::cpu:
        return colors::blue;
    case MenuBarModule::mem:
        return colors::purple;
    case MenuBarModule::battery:
        return colors::green;
    case MenuBarModule::temp:
        return colors::orange;
    case MenuBarModule::disk:
        return colors::indigo;
    case MenuBarModule::network:
        break;
    }
    return colors::teal;
}

} // namespace tarvo::ui
