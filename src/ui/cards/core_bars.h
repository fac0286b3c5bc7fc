#pragma once

#include "ui/elements/element.h"

#include <vector>

namespace tarvo::ui {

struct CoreBarsFields {
    std::vector<double> perCore; ///< percent, kernel order
    bool operator==(const CoreBarsFields&) const = default;
};

/// One bar for each processor core with its number, in two columns, or in four when there are many.
class CoreBars : public Element<CoreBarsFields> {
public:
    explicit CoreBars(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {120, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int columns() const { return fields().perCore.size() > 16 ? 4 : 2; }
    int rows() const;
    void paintCore(QPainter& painter, const QRectF& cell, std::size_t index) const;
};

} // namespace tarvo::ui
