#pragma once

#include "ui/elements/element.h"

#include <vector>

namespace tarvo::ui {

struct SparklineFields {
    std::vector<double> values; ///< percentages, oldest first
    int maxSamples = 60;
    Color color = colors::blue;
    bool operator==(const SparklineFields&) const = default;
};

/// A small line over the latest percentages; the newest stands at the right edge.
class Sparkline : public Element<SparklineFields> {
public:
    explicit Sparkline(QWidget* parent = nullptr) : Sparkline(SparklineFields{}, parent) {}
    explicit Sparkline(SparklineFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QSize sizeHint() const override { return {120, 36}; }
    QSize minimumSizeHint() const override { return {24, 16}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
