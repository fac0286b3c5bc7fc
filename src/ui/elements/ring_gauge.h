#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct RingGaugeFields {
    std::string title;
    double value = 0; ///< percent, 0 to 100
    std::string detail;
    bool operator==(const RingGaugeFields&) const = default;
};

/// A percentage as a ring with its number inside, title and detail below.
class RingGauge : public Element<RingGaugeFields> {
public:
    explicit RingGauge(QWidget* parent = nullptr) : RingGauge(RingGaugeFields{}, parent) {}
    explicit RingGauge(RingGaugeFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
