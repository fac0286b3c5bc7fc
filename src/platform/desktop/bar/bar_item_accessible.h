#pragma once

#include "platform/desktop/bar/bar_item_view.h"

#include <QAccessibleWidget>

namespace tarvo::desktop {

/// What assistive programs are told of an item on the bar: a button that is named after what it shows, e.g.
/// "CPU 23%", described by its tool tip, to be pressed or asked for its menu. Made only when one asks.
class BarItemAccessible : public QAccessibleWidget {
public:
    explicit BarItemAccessible(BarItemView& view);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    BarItemView& view_;
};

/// Lets assistive programs see the items; once a process is enough.
void installBarAccessibility();

} // namespace tarvo::desktop
