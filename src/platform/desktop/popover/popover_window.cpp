#include "platform/desktop/popover/popover_window.h"

#include "platform/desktop/system_palette.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace tarvo::desktop {

namespace {

constexpr double radius = 16;
constexpr int shadowWidth = 18;
constexpr int shadowDrop = 4;
constexpr double shadowStrength = 0.018; ///< of each of the layers that lie upon each other
constexpr QSize emptySize{360, 200};

Qt::WindowFlags flagsFor(PopoverWindow::Kind kind) {
    const auto shared = Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint;
    if (kind == PopoverWindow::Kind::panel) return Qt::Tool | shared;
    return Qt::ToolTip | Qt::WindowTransparentForInput | shared;
}

QColor outline(const QPalette& palette) {
    QColor color = palette.color(QPalette::Active, QPalette::WindowText);
    color.setAlphaF(isDark(palette) ? 0.22F : 0.16F);
    return color;
}

void paintShadow(QPainter& painter, const QRectF& panel) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(shadowStrength)));
    for (int layer = 1; layer < shadowWidth - shadowDrop; ++layer) {
        const QRectF shape = panel.translated(0, shadowDrop).adjusted(-layer, -layer, layer, layer);
        painter.drawRoundedRect(shape, radius + layer, radius + layer);
    }
}

} // namespace

PopoverWindow::PopoverWindow(Kind kind, bool composited)
    : QWidget(nullptr, flagsFor(kind)), composited_(composited) {
    setWindowTitle(QStringLiteral("Tarvo"));
    setObjectName(kind == Kind::panel ? QStringLiteral("popover") : QStringLiteral("preview"));
    setAttribute(Qt::WA_TranslucentBackground, composited);
    setAttribute(Qt::WA_ShowWithoutActivating, kind == Kind::preview);
    setAttribute(Qt::WA_QuitOnClose, false);
    // macOS would hide it while another application is in front, which is when a preview is wanted.
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    resizePanel(emptySize);
}

void PopoverWindow::setContent(QWidget* content) {
    if (content_) content_->setParent(nullptr);
    content_ = content;
    if (!content_) return;
    content_->setParent(this);
    content_->setGeometry(panelRect());
    content_->show();
}

QSize PopoverWindow::wantedSize() const {
    return content_ ? content_->sizeHint() : emptySize;
}

int PopoverWindow::shadow() const {
    return composited_ ? shadowWidth : 0;
}

QRect PopoverWindow::panelRect() const {
    return rect().adjusted(shadow(), shadow(), -shadow(), -shadow());
}

QRect PopoverWindow::panelGeometry() const {
    return panelRect().translated(geometry().topLeft());
}

void PopoverWindow::setPanelGeometry(const QRect& panel) {
    setGeometry(panel.adjusted(-shadow(), -shadow(), shadow(), shadow()));
}

void PopoverWindow::resizePanel(QSize size) {
    resize(size + QSize(2 * shadow(), 2 * shadow()));
}

bool PopoverWindow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && contentSizeChanged) contentSizeChanged();
    return QWidget::event(event);
}

void PopoverWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF panel = panelRect();
    if (composited_ && !panelRect().contains(event->rect())) paintShadow(painter, panel);
    painter.setBrush(palette().color(QPalette::Active, QPalette::Window));
    painter.setPen(outline(palette()));
    painter.drawRoundedRect(panel.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void PopoverWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (content_) content_->setGeometry(panelRect());
    if (composited_) return;
    QPainterPath shape;
    shape.addRoundedRect(rect(), radius, radius);
    setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

void PopoverWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && closeWanted) {
        closeWanted();
        return;
    }
    QWidget::keyPressEvent(event);
}

// A window that refuses would keep the program from ending.
void PopoverWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (closeWanted) closeWanted();
}

} // namespace tarvo::desktop
