#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct NameValueRowFields {
    std::string name;
    std::string value;
    bool operator==(const NameValueRowFields&) const = default;
};

/// A name and its number in one line of a list; a name that is too long is shortened.
class NameValueRow : public Element<NameValueRowFields> {
public:
    explicit NameValueRow(QWidget* parent = nullptr);
    QString accessibleText() const override;
    QSize sizeHint() const override { return {160, 22}; }
    QSize minimumSizeHint() const override { return {60, 22}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
