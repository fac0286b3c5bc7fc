#pragma once

#include "localization/localization_manager.h"
#include "ui/detail/detail_section.h"

#include <QListWidget>

#include <functional>

namespace tarvo::ui {

/// The list of sections. Its selection follows the pointer's click and the arrow keys at once.
class Sidebar : public QListWidget {
public:
    /// `onSelect` is told the section that was selected, by whomever. `loc` outlives the sidebar.
    Sidebar(const LocalizationManager& loc, std::function<void(DetailSection)> onSelect, QWidget* parent);

    void select(DetailSection section);
    DetailSection selection() const { return static_cast<DetailSection>(currentRow()); }
    /// Names the sections in the current language.
    void retranslate();
    QSize sizeHint() const override;

private:
    const LocalizationManager& loc_;
};

} // namespace tarvo::ui
