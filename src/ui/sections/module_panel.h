#pragma once

#include "core/menu_bar_module.h"
#include "ui/elements/stat_row.h"
#include "ui/elements/text_label.h"
#include "ui/pages/panel_context.h"

#include <QVBoxLayout>

#include <string>
#include <vector>

namespace tarvo::ui {

/// What stands below the header of a module's panel: the same few kinds of lines for every module, filled
/// anew from each snapshot.
class ModulePanel : public QWidget {
public:
    ModulePanel(PanelContext& context, QWidget* parent);
    virtual void show(const StatsSnapshot& snapshot) = 0;
    using QWidget::show;

protected:
    std::string t(const LKey& key) const { return context_.loc.t(key); }
    std::string temperature(std::optional<double> celsius) const;
    QVBoxLayout* column() const { return column_; }
    template <typename Widget>
    Widget* add(Widget* widget) {
        column_->addWidget(widget);
        return widget;
    }
    /// A quiet explaining text of several lines.
    TextLabel* addNote();
    static void setNote(TextLabel* note, std::string text);

    PanelContext& context_; // NOLINT: shared with the derived panels on purpose

private:
    QVBoxLayout* column_;
};

/// The panel of a module.
ModulePanel* makeModulePanel(MenuBarModule module, PanelContext& context, QWidget* parent);
/// The colour of a module's symbol.
Color moduleColor(MenuBarModule module);

} // namespace tarvo::ui
