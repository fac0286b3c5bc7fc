#pragma once

#include "ui/cards/automations_context.h"
#include "ui/controls/label_button.h"
#include "ui/elements/card_background.h"
#include "ui/elements/text_label.h"
#include "ui/pages/automation_row.h"
#include "ui/pages/later.h"

#include <QVBoxLayout>

#include <string>
#include <vector>

namespace tarvo::ui {

class AutomationsMenu;

/// The settings card that picks the automations which the popover offers. It lists what there is each time it
/// appears, and follows the stored names and the language by itself.
class CustomAutomationsCard : public CardBackground {
public:
    CustomAutomationsCard(const AutomationsContext& context, QWidget* parent);

    void add(const std::string& name);
    /// Removes every entry that equals the name.
    void remove(const std::string& name);
    /// Asks for the available names; they are shown when they have come.
    void refreshAvailable();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void showRows();
    void fillMenu();
    void keepFocus(bool hadFocus);
    bool hasFocusInRows() const;
    std::string t(const LKey& mac, const LKey& elsewhere) const;

    AutomationsContext context_;
    std::vector<std::string> added_;
    std::vector<std::string> available_;
    QVBoxLayout* rowColumn_;
    TextLabel* title_;
    TextLabel* caption_;
    std::vector<AutomationRow*> rows_;
    LabelButton* addButton_;
    AutomationsMenu* menu_;
    Later later_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tarvo::ui
