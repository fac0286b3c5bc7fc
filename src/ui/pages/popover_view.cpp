#include "ui/pages/popover_view.h"

#include "ui/controls/focus_order.h"
#include "ui/pages/settings_page.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr int panelWidth = 360;
constexpr int tallestPanel = 680;
constexpr int shortestPanel = 200;

} // namespace

PopoverView::PopoverView(PanelContext context, QWidget* parent)
    : QWidget(parent), context_(std::move(context)), statsPage_(new StatsPage(
                                                         context_, [this] { setShowSettings(true); }, this)),
      leaving_(new QPropertyAnimation(this)), entering_(new QPropertyAnimation(this)) {
    for (QPropertyAnimation* animation : {leaving_, entering_}) {
        animation->setPropertyName("pos");
        animation->setEasingCurve(QEasingCurve::InOutQuad);
    }
    connect(entering_, &QAbstractAnimation::finished, this, [this] { layOutPages(); });
}

void PopoverView::setShowSettings(bool show) {
    if (show == showSettings_) return;
    QWidget* leaving = currentPage();
    showSettings_ = show;
    if (show && !settingsPage_)
        settingsPage_ = new SettingsPage(
            context_, [this] { setShowSettings(false); }, this);
    updateGeometry();
    slide(leaving, currentPage(), show ? 1 : -1);
}

QWidget* PopoverView::currentPage() const {
    return showSettings_ ? static_cast<QWidget*>(settingsPage_) : statsPage_;
}

void PopoverView::slide(QWidget* leaving, QWidget* entering, int direction) {
    const int duration =
        isVisible() ? style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) : 0;
    leaving_->stop();
    entering_->stop();
    entering->resize(size());
    entering->show();
    if (duration <= 0) {
        layOutPages();
        return;
    }
    leaving_->setTargetObject(leaving);
    leaving_->setEndValue(QPoint(-direction * width(), 0));
    entering->move(direction * width(), 0);
    entering_->setTargetObject(entering);
    entering_->setEndValue(QPoint(0, 0));
    for (QPropertyAnimation* animation : {leaving_, entering_}) {
        animation->setDuration(duration);
        animation->start();
    }
}

void PopoverView::layOutPages() {
    currentPage()->setGeometry(rect());
    currentPage()->show();
    QWidget* other = showSettings_ ? static_cast<QWidget*>(statsPage_) : settingsPage_;
    if (other) other->hide();
}

QSize PopoverView::sizeHint() const {
    return {panelWidth, std::clamp(currentPage()->sizeHint().height(), shortestPanel, tallestPanel)};
}

void PopoverView::resizeEvent(QResizeEvent* event) {
    leaving_->stop();
    entering_->stop();
    layOutPages();
    QWidget::resizeEvent(event);
}

// The pages tell of changed content; what is around this view sizes it.
bool PopoverView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QWidget::event(event);
}

// Cards come and go, so that the order in which controls were made says nothing.
bool PopoverView::focusNextPrevChild(bool next) {
    return moveFocusInReadingOrder(*currentPage(), next);
}

} // namespace tarvo::ui
