#pragma once

#include "ui/controls/painted_button.h"

namespace tarvo::ui {

/// An on-off switch.
class SwitchButton : public PaintedButton {
public:
    explicit SwitchButton(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {34, 20}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
