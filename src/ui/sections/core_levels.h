#pragma once

#include "ui/elements/element.h"

#include <vector>

namespace tarvo::ui {

struct CoreLevelsFields {
    std::vector<double> perCore; ///< percent, kernel order
    bool operator==(const CoreLevelsFields&) const = default;
};

/// A named bar for each processor core: in one column, or in more where there are many cores, so that the
/// panel stays lower than a screen.
class CoreLevels : public Element<CoreLevelsFields> {
public:
    explicit CoreLevels(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int columns() const;
    int rows() const;
    void paintCore(QPainter& painter, const QRectF& cell, std::size_t index) const;
};

} // namespace tarvo::ui
