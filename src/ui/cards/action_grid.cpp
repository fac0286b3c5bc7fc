#include "ui/cards/action_grid.h"

#include "ui/cards/row_pool.h"
#include "ui/style/metrics.h"

#include <QGridLayout>

#include <utility>

namespace tarvo::ui {
namespace {

constexpr int columns = 3;
constexpr int minimumColumnWidth = 10;

} // namespace

ActionGrid::ActionGrid(Pressed pressed, QWidget* parent)
    : QWidget(parent), pressed_(std::move(pressed)), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(metrics::regular);
    for (int column = 0; column < columns; ++column) {
        grid_->setColumnStretch(column, 1);
        grid_->setColumnMinimumWidth(column, minimumColumnWidth);
    }
}

void ActionGrid::setTiles(const std::vector<QuickActionButtonFields>& tiles) {
    resizePool(buttons_, tiles.size(), [this] { return makeButton(); });
    for (std::size_t index = 0; index < tiles.size(); ++index)
        buttons_[index]->set(tiles[index]);
}

QuickActionButton* ActionGrid::makeButton() {
    const std::size_t index = buttons_.size();
    auto* button = new QuickActionButton(this);
    button->setLabelLines(labelLines_);
    connect(button, &QAbstractButton::clicked, this, [this, index] { pressed_(index); });
    const int place = static_cast<int>(index);
    grid_->addWidget(button, place / columns, place % columns);
    return button;
}

} // namespace tarvo::ui
