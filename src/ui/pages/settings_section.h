#pragma once

#include "ui/controls/stepper.h"
#include "ui/elements/card_background.h"
#include "ui/elements/text_label.h"
#include "ui/pages/panel_context.h"
#include "ui/pages/setting_bindings.h"
#include "ui/style/typography.h"

#include <QVBoxLayout>

#include <functional>
#include <string_view>
#include <vector>

namespace tarvo::ui {

/// A card of the settings page: a title in capitals and controls, each bound to a setting. refresh() brings
/// every control in line with the settings and the language.
class SettingsSection : public CardBackground {
public:
    SettingsSection(PanelContext& context, const LKey& title, QWidget* parent);
    void refresh();

    /// A text of the section; the function is asked at each refresh.
    void addText(TextRole role, std::function<std::string()> text);
    void addCaption(const LKey& text);
    /// A switch at the right of its label, with an explaining caption below unless that is empty.
    void addSwitch(std::string_view key, const LKey& label, const LKey& caption = {},
                   std::function<void()> turnedOn = {});
    /// The same for a state that is kept elsewhere.
    void addSwitch(const LKey& label, const LKey& caption, std::function<bool()> read,
                   std::function<void(bool)> write);
    /// A control at the right of its label, or below it.
    void addControl(const LKey& label, QWidget* control, bool below = false);
    /// Label, value with its unit and a stepper.
    void addThreshold(std::string_view key, const LKey& label, std::string_view unit, StepRange range);
    void addWidget(QWidget* widget) { column_->addWidget(widget); }
    /// Run at each refresh.
    void onRefresh(std::function<void()> task) { tasks_.push_back(std::move(task)); }

protected:
    std::string t(const LKey& key) const { return context_.loc.t(key); }
    PanelContext& context_;    // NOLINT: shared with the derived sections on purpose
    SettingBindings bindings_; // NOLINT

private:
    TextLabel* makeText(TextRole role, std::function<std::string()> text);
    TextLabel* makeCaption(const LKey& text);
    TextLabel* makeLabel(const LKey& text);
    QLayout* labelled(const LKey& label, QWidget* control);

    QVBoxLayout* column_;
    std::vector<std::function<void()>> tasks_;
};

} // namespace tarvo::ui
