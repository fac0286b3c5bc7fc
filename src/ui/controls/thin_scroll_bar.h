#pragma once

#include <QScrollBar>

namespace tarvo::ui {

/// A vertical scroll bar that is a slim thumb without a track.
class ThinScrollBar : public QScrollBar {
public:
    explicit ThinScrollBar(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {8, 8}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
