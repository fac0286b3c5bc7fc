#pragma once

#include "ui/elements/element.h"

#include <vector>

namespace tarvo::ui {

struct CoreRingsFields {
    std::vector<double> perCore; ///< percent, kernel order
    bool operator==(const CoreRingsFields&) const = default;
};

/// A small ring for each processor core, as many side by side as there is room for.
class CoreRings : public Element<CoreRingsFields> {
public:
    explicit CoreRings(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintCore(QPainter& painter, const QRectF& cell, std::size_t index) const;
};

} // namespace tarvo::ui
