#pragma once

#include "ui/pages/later.h"
#include "ui/sections/module_header.h"
#include "ui/sections/module_panel.h"

namespace tarvo::ui {

/// The small panel of one module, shown while the pointer rests on its status item. It follows the readings,
/// the settings and the language.
class ModuleDetailView : public QWidget {
public:
    ModuleDetailView(MenuBarModule module, PanelContext context, QWidget* parent = nullptr);
    MenuBarModule module() const { return module_; }
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void refresh();

    MenuBarModule module_;
    PanelContext context_;
    ModuleHeader* header_;
    ModulePanel* panel_;
    Later later_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tarvo::ui
