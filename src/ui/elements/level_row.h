#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct LevelRowFields {
    std::string label;
    std::string value;
    double fraction = 0; ///< 0 to 1
    Color color = colors::blue;
    bool operator==(const LevelRowFields&) const = default;
};

/// A reading in one line with a bar below it.
class LevelRow : public Element<LevelRowFields> {
public:
    explicit LevelRow(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Indicator; }
    QSize sizeHint() const override { return {160, 30}; }
    QSize minimumSizeHint() const override { return {80, 30}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
