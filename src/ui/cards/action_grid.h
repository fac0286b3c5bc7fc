#pragma once

#include "ui/controls/quick_action_button.h"

#include <cstddef>
#include <functional>
#include <vector>

class QGridLayout;

namespace tarvo::ui {

/// Tiles to press in three columns of one width.
class ActionGrid : public QWidget {
public:
    using Pressed = std::function<void(std::size_t index)>;

    /// Not called while tiles are set: those who set them do so in a later turn of the loop.
    explicit ActionGrid(Pressed pressed, QWidget* parent = nullptr);
    void setLabelLines(int lines) { labelLines_ = lines; }
    /// Tiles that stay the same are not painted again.
    void setTiles(const std::vector<QuickActionButtonFields>& tiles);
    const std::vector<QuickActionButton*>& buttons() const { return buttons_; }

private:
    QuickActionButton* makeButton();

    Pressed pressed_;
    int labelLines_ = 1;
    QGridLayout* grid_;
    std::vector<QuickActionButton*> buttons_;
};

} // namespace tarvo::ui
