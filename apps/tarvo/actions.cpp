#include "actions.h"

#include "ui/cards/automations_card.h"
#include "ui/cards/quick_actions_card.h"
#include "ui/pages/automations_settings_card.h"

namespace tarvo {

Actions::Actions(const ActionServices& services)
    : quickActions_(services.desktop, dialogs_, services.processes, services.localization,
                    services.refreshProcesses),
      automations_(services.automations, services.dispatcher, dialogs_, services.localization),
      automationsContext_{services.settings, services.localization, automations_, services.automationPlace} {}

void Actions::complete(ui::PanelContext& panel) {
    panel.confirmKill = [this](const ProcInfo& process) { quickActions_.confirmKill(process); };
    panel.makeQuickActionsCard = [this, &loc = panel.loc](QWidget* parent) {
        return new ui::QuickActionsCard(quickActions_, loc, parent);
    };
    panel.makeAutomationsCard = [this](QWidget* parent) {
        return new ui::AutomationsCard(automationsContext_, parent);
    };
    panel.makeAutomationsSettingsCard = [this](QWidget* parent) {
        return new ui::CustomAutomationsCard(automationsContext_, parent);
    };
}

} // namespace tarvo
