#include "platform/desktop/bar/bar_item_view.h"

#include "platform/desktop/logging.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>

#include <optional>

namespace tarvo::desktop {

namespace {

std::optional<StatusClick> clickOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return StatusClick::left;
    if (button == Qt::RightButton) return StatusClick::right;
    return std::nullopt;
}

/// Tool tips are rich text wherever they look like it.
QString toolTipText(const std::string& plain) {
    const QString text = QString::fromStdString(plain);
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

BarItemView::BarItemView(StatusItemModel& model, BarFonts& fonts, SymbolImages& symbols, QWidget* parent)
    : QWidget(parent), model_(&model), face_(fonts, symbols) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    toolTipChanged();
}

void BarItemView::faceChanged() {
    tellAssistivePrograms();
    if (needsLayout_) return;
    needsLayout_ = true;
    update();
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void BarItemView::toolTipChanged() {
    setToolTip(toolTipText(model_->content().toolTip));
}

void BarItemView::tellAssistivePrograms() {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void BarItemView::click(StatusClick click) {
    if (model_) model_->clicked(click);
}

void BarItemView::forgetFonts() {
    face_.forgetFonts();
    faceChanged();
}

int BarItemView::wantedWidth() {
    layOutIfNeeded();
    return face_.width();
}

void BarItemView::layOutIfNeeded() {
    if (!needsLayout_ || !model_) return;
    needsLayout_ = false;
    face_.layOut(model_->content(), barHeight);
}

bool BarItemView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && wantedWidth() != width()) emit widthChanged();
    if (event->type() == QEvent::PaletteChange) update();
    return QWidget::event(event);
}

void BarItemView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (!model_) return;
    layOutIfNeeded();
    face_.paint(painter, model_->content(), palette());
    qCDebug(statusBarLog) << "painted" << QString::fromStdString(plainText(model_->content().title));
}

// Accepting the press is what brings the release.
void BarItemView::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void BarItemView::mouseReleaseEvent(QMouseEvent* event) {
    const auto button = clickOf(event->button());
    if (button && rect().contains(event->position().toPoint())) click(*button);
}

} // namespace tarvo::desktop
