#pragma once

#include "ui/controls/card_column.h"
#include "ui/controls/label_button.h"
#include "ui/elements/text_label.h"
#include "ui/pages/later.h"
#include "ui/pages/panel_context.h"
#include "ui/pages/settings_section.h"

#include <functional>
#include <vector>

namespace tarvo::ui {

/// The second page of the popover: every control is bound to a setting, so that a change holds at once and
/// survives a restart. It follows changes made elsewhere while it is visible.
class SettingsPage : public QWidget {
public:
    /// `onBack` returns to the stats page.
    SettingsPage(PanelContext& context, std::function<void()> onBack, QWidget* parent = nullptr);

    /// The sections from top to bottom: menu bar, panel, general, alerts.
    const std::vector<SettingsSection*>& sections() const { return sections_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeHeader(std::function<void()> onBack);
    void refresh();
    void addSection(SettingsSection* section);

    PanelContext& context_;
    LabelButton* back_;
    TextLabel* title_;
    CardColumn* column_;
    std::vector<SettingsSection*> sections_;
    Later later_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tarvo::ui
