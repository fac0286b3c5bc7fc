#pragma once

#include "ui/elements/app_icon_cache.h"
#include "ui/elements/element.h"

namespace tarvo::ui {

struct ProcessIconViewFields {
    std::int32_t pid = 0;
    bool operator==(const ProcessIconViewFields&) const = default;
};

/// The icon of a process, or a gear where it has none.
class ProcessIconView : public Element<ProcessIconViewFields> {
public:
    /// `icons` outlives the view.
    explicit ProcessIconView(AppIconCache& icons, QWidget* parent = nullptr);
    QString accessibleText() const override { return {}; }
    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    QSize sizeHint() const override { return {18, 18}; }
    /// Whether the process's own icon is shown.
    bool hasIcon() const { return icons_.icon(fields().pid).has_value(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppIconCache& icons_;
};

} // namespace tarvo::ui
