#include "platform/desktop/popover/qt_popover.h"

#include "platform/desktop/logging.h"
#include "platform/desktop/popover/popover_placement.h"
#include "platform/desktop/popover/widget_content.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace tarvo::desktop {

namespace {

std::optional<QRect> rectOf(const StatusButton& button) {
    const auto rect = button.screenRect();
    if (!rect) return std::nullopt;
    return QRectF(rect->x, rect->y, rect->width, rect->height).toAlignedRect();
}

QRect areaAround(const QRect& anchor) {
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

} // namespace

QtPopover::QtPopover(const PopoverOptions& options, std::function<void()> didClose,
                     PopoverSurroundings surroundings)
    : options_(options), didClose_(std::move(didClose)), surroundings_(std::move(surroundings)) {
    closing_.setSingleShot(true);
    closing_.setInterval(reopenGuard);
    connect(&closing_, &QTimer::timeout, this, &QtPopover::close);
    if (options_.behavior == PopoverBehavior::transient)
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &QtPopover::focusMoved);
}

QtPopover::~QtPopover() {
    setContent(nullptr);
}

QWidget* QtPopover::contentWidget() const {
    const auto* content = dynamic_cast<const WidgetContent*>(content_.get());
    return content ? &content->widget() : nullptr;
}

void QtPopover::setContent(std::unique_ptr<PopoverContent> content) {
    if (window_) window_->setContent(nullptr);
    if (content_ && !content) qCDebug(popoverLog) << "content released";
    content_ = std::move(content);
    if (!window_) return;
    window_->setContent(contentWidget());
    if (window_->isVisible()) place();
}

// What windows can look like is settled when they are made.
void QtPopover::makeWindow() {
    const bool composited = surroundings_.composites && surroundings_.composites();
    if (window_ && window_->isComposited() == composited) return;
    if (window_) window_->setContent(nullptr);
    const bool takesKeyboard = options_.behavior == PopoverBehavior::transient;
    window_ = std::make_unique<PopoverWindow>(
        takesKeyboard ? PopoverWindow::Kind::panel : PopoverWindow::Kind::preview, composited);
    window_->closeWanted = [this] { close(); };
    window_->contentSizeChanged = [this] { place(); };
    window_->setContent(contentWidget());
}

void QtPopover::show(StatusButton& anchor) {
    closing_.stop();
    makeWindow();
    anchor_ = rectOf(anchor);
    if (!anchor_ && surroundings_.pointerPosition) {
        if (const auto pointer = surroundings_.pointerPosition()) anchor_ = QRect(*pointer, QSize(1, 1));
    }
    hadFocus_ = false;
    isShown_ = true;
    place();
    window_->show();
    qCDebug(popoverLog) << "shown" << window_->panelGeometry();
}

void QtPopover::place() {
    const QSize wanted = window_->wantedSize();
    if (anchor_) {
        window_->setPanelGeometry(placePopover(*anchor_, wanted, areaAround(*anchor_)));
    } else {
        window_->resizePanel(wanted);
    }
}

void QtPopover::makeKey() {
    if (!window_ || !window_->isVisible()) return;
    window_->raise();
    window_->activateWindow();
}

void QtPopover::close() {
    if (!isShown_) return;
    isShown_ = false;
    closing_.stop();
    window_->hide();
    qCDebug(popoverLog) << "closed";
    didClose_();
}

void QtPopover::focusMoved() {
    if (!window_ || !window_->isVisible()) return;
    if (QGuiApplication::focusWindow() == window_->windowHandle()) hadFocus_ = true;
    if (!hadFocus_ || keepsOpen()) return;
    window_->hide();
    closing_.start();
}

bool QtPopover::keepsOpen() const {
    return QGuiApplication::focusWindow() == window_->windowHandle() || QApplication::activePopupWidget() ||
           QApplication::activeModalWidget();
}

PopoverFactory makePopoverFactory(PopoverSurroundings surroundings) {
    return [surroundings = std::move(surroundings)](const PopoverOptions& options,
                                                    std::function<void()> didClose) {
        return std::make_unique<QtPopover>(options, std::move(didClose), surroundings);
    };
}

} // namespace tarvo::desktop
