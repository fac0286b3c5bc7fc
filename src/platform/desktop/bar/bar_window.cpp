#include "platform/desktop/bar/bar_window.h"

#include <QCloseEvent>
#include <QPainter>

#include <algorithm>

namespace tarvo::desktop {

namespace {

Qt::WindowFlags flagsFor(BarWindow::Kind kind) {
    if (kind == BarWindow::Kind::window) return Qt::Window;
    return Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;
}

constexpr int emptyWindowWidth = 120;

} // namespace

BarWindow::BarWindow(Kind kind) : QWidget(nullptr, flagsFor(kind)), kind_(kind) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_ShowWithoutActivating, kind == Kind::dock);
    setWindowTitle(QStringLiteral("Tarvo"));
    setFixedHeight(barHeight);
}

void BarWindow::add(BarItemView& view) {
    views_.push_back(&view);
    connect(&view, &BarItemView::widthChanged, this, &BarWindow::arrange);
    arrange();
    view.show();
}

void BarWindow::remove(BarItemView& view) {
    std::erase(views_, &view);
    arrange();
}

void BarWindow::arrange() {
    int total = 0;
    for (BarItemView* view : views_)
        total += view->wantedWidth();
    if (kind_ == Kind::window) setFixedWidth(std::max(total, emptyWindowWidth));
    int x = kind_ == Kind::dock ? width() - total : 0;
    for (BarItemView* view : views_) {
        view->setGeometry(x, 0, view->wantedWidth(), height());
        x += view->wantedWidth();
    }
}

void BarWindow::forgetFonts() {
    for (BarItemView* view : views_)
        view->forgetFonts();
}

void BarWindow::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), palette().window());
}

void BarWindow::resizeEvent(QResizeEvent*) {
    arrange();
}

void BarWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (closedByUser) closedByUser();
}

} // namespace tarvo::desktop
