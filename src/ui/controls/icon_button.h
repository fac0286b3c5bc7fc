#pragma once

#include "ui/controls/painted_button.h"

namespace tarvo::ui {

/// A plain symbol to press; its name is shown as help text.
class IconButton : public PaintedButton {
public:
    /// `symbol` is a system symbol name; the button is a square of `side` around it.
    IconButton(std::string symbol, double symbolSize, int side, QWidget* parent = nullptr);
    void setColor(Color color);
    QSize sizeHint() const override { return {side_, side_}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string symbol_;
    double symbolSize_;
    int side_;
    Color color_ = colors::secondary;
};

} // namespace tarvo::ui
