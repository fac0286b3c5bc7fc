#pragma once

#include <QWidget>

namespace tarvo::ui {

/// Lays any content on a card: pads it by 12 and draws the card material behind it. Give it a layout.
class CardBackground : public QWidget {
public:
    explicit CardBackground(QWidget* parent = nullptr);
    /// A card around one widget.
    CardBackground(QWidget* content, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvo::ui
