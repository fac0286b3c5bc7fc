#pragma once

#include "ui/elements/element.h"
#include "ui/style/metrics.h"

namespace tarvo::ui {

struct CapacityBarFields {
    double fraction = 0; ///< 0 to 1
    Color color = colors::blue;
    bool operator==(const CapacityBarFields&) const = default;
};

/// A share of a whole as a horizontal bar.
class CapacityBar : public Element<CapacityBarFields> {
public:
    explicit CapacityBar(QWidget* parent = nullptr) : CapacityBar(CapacityBarFields{}, parent) {}
    explicit CapacityBar(CapacityBarFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override { return {120, metrics::barHeight}; }
    QSize minimumSizeHint() const override { return {24, metrics::barHeight}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
