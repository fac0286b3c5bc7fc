#pragma once

#include "ui/elements/element.h"
#include "ui/style/metrics.h"

namespace tarvo::ui {

struct TempBarFields {
    double celsius = 0;
    double scaleMin = 0;
    double scaleMax = 100;
    bool operator==(const TempBarFields&) const = default;
};

/// A temperature on its scale as a horizontal bar, coloured by how warm it is.
class TempBar : public Element<TempBarFields> {
public:
    explicit TempBar(QWidget* parent = nullptr) : TempBar(TempBarFields{}, parent) {}
    explicit TempBar(TempBarFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override { return {120, metrics::barHeight}; }
    QSize minimumSizeHint() const override { return {24, metrics::barHeight}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
