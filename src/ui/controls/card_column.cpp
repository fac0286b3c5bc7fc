#include "ui/controls/card_column.h"

#include "ui/controls/thin_scroll_bar.h"
#include "ui/style/metrics.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tarvo::ui {

CardColumn::CardColumn(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Always there, though it paints nothing without need: the cards keep their place and their margin.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBar(new ThinScrollBar(this));
    setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget(this);
    cards_ = new QVBoxLayout(content);
    cards_->setSpacing(metrics::regular);
    cards_->setContentsMargins(metrics::medium, metrics::hair, metrics::medium - verticalScrollBar()->width(),
                               metrics::medium);
    cards_->addStretch();
    setWidget(content);
    // The ground is the popover's.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->installEventFilter(this);
}

void CardColumn::addCard(QWidget* card) {
    insertCard(cards_->count() - 1, card);
}

void CardColumn::insertCard(int place, QWidget* card) {
    cards_->insertWidget(place, card);
}

QSize CardColumn::sizeHint() const {
    return {QScrollArea::sizeHint().width(), widget()->sizeHint().height()};
}

bool CardColumn::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace tarvo::ui
