#pragma once

#include "ui/pages/panel_context.h"

namespace tarvo::ui {

class SettingsSection;

SettingsSection* makeMenuBarSection(PanelContext& context, QWidget* parent);
SettingsSection* makePanelSection(PanelContext& context, QWidget* parent);
SettingsSection* makeGeneralSection(PanelContext& context, QWidget* parent);
SettingsSection* makeAlertsSection(PanelContext& context, QWidget* parent);

} // namespace tarvo::ui
