#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct StatRowFields {
    std::string icon; ///< system symbol name
    Color iconColor = colors::blue;
    std::string label;
    std::string value;
    Color valueColor = colors::primary;
    bool operator==(const StatRowFields&) const = default;
};

/// One reading in one line: symbol tile, label and, at the right edge, the value. Where both do not fit, the
/// value has at least three fifths of the line: it is what the line is read for.
class StatRow : public Element<StatRowFields> {
public:
    explicit StatRow(QWidget* parent = nullptr) : StatRow(StatRowFields{}, parent) {}
    explicit StatRow(StatRowFields fields, QWidget* parent = nullptr);
    void setValue(std::string value);
    QString accessibleText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {96, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
