#pragma once

#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct ModuleHeaderFields {
    std::string icon; ///< system symbol name
    std::string title;
    Color color = colors::blue;
    bool operator==(const ModuleHeaderFields&) const = default;
};

/// The symbol of a module on a small tile with its name.
class ModuleHeader : public Element<ModuleHeaderFields> {
public:
    explicit ModuleHeader(QWidget* parent = nullptr);
    QString accessibleText() const override { return QString::fromStdString(fields().title); }
    QAccessible::Role accessibleRole() const override { return QAccessible::Heading; }
    QSize sizeHint() const override { return {160, 28}; }
    QSize minimumSizeHint() const override { return {60, 28}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
