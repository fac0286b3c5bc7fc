#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct BadgeFields {
    std::string text;
    Color color = colors::blue;
    bool operator==(const BadgeFields&) const = default;
};

/// A short text on a capsule of its own colour.
class Badge : public Element<BadgeFields> {
public:
    explicit Badge(QWidget* parent = nullptr) : Badge(BadgeFields{}, parent) {}
    explicit Badge(BadgeFields fields, QWidget* parent = nullptr);
    QString accessibleText() const override { return QString::fromStdString(fields().text); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
