#pragma once

#include "core/accent_theme.h"
#include "ui/elements/element.h"

#include <string>

namespace tarvo::ui {

struct GradientSymbolFields {
    std::string symbol; ///< system symbol name
    AccentTheme theme = AccentTheme::blue;
    bool operator==(const GradientSymbolFields&) const = default;
};

/// A symbol coloured with the gradient of an accent theme.
class GradientSymbol : public Element<GradientSymbolFields> {
public:
    explicit GradientSymbol(QWidget* parent = nullptr);
    QString accessibleText() const override { return {}; }
    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    QSize sizeHint() const override { return {18, 18}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
