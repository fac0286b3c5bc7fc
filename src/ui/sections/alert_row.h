#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct AlertRowFields {
    std::string icon; ///< system symbol name
    Color color = colors::gray;
    std::string title;
    std::string body;
    std::string date;
    bool operator==(const AlertRowFields&) const = default;
};

/// An alert that was raised: what, why and when.
class AlertRow : public Element<AlertRowFields> {
public:
    explicit AlertRow(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QSize sizeHint() const override { return {240, 44}; }
    QSize minimumSizeHint() const override { return {120, 44}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
