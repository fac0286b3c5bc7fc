#pragma once

#include "ui/controls/painted_button.h"

namespace tarvo::ui {

/// A symbol and a word to press, on a tinted ground (prominent: filled with the colour).
class LabelButton : public PaintedButton {
public:
    /// An empty `symbol` leaves the word alone.
    LabelButton(std::string symbol, Color color, QWidget* parent = nullptr);
    void setProminent(bool prominent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGround(QPainter& painter) const;

    std::string symbol_;
    Color color_;
    bool isProminent_ = false;
};

} // namespace tarvo::ui
