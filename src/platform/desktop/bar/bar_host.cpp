#include "platform/desktop/bar/bar_host.h"

#include "platform/desktop/bar/bar_item_accessible.h"
#include "platform/desktop/bar/x11_dock.h"
#include "platform/desktop/status_menu.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <cmath>
#include <utility>

namespace tarvo::desktop {

namespace {

class BarItem : public HostedItem {
public:
    BarItem(StatusItemModel& model, BarWindow& window, BarFonts& fonts, SymbolImages& symbols)
        : window_(window), view_(std::make_unique<BarItemView>(model, fonts, symbols, &window)) {
        window_.add(*view_);
    }
    // The view may be the one whose click is being handled.
    ~BarItem() override {
        window_.remove(*view_);
        view_->forgetModel();
        view_->hide();
        view_.release()->deleteLater();
    }
    BarItem(const BarItem&) = delete;
    BarItem& operator=(const BarItem&) = delete;

    void changed(StatusItemPart part) override {
        if (part == StatusItemPart::toolTip) {
            view_->toolTipChanged();
        } else {
            view_->faceChanged();
        }
    }
    void popUpMenu(const Menu& menu) override {
        (new StatusMenu(menu, &window_))->popup(view_->mapToGlobal(QPoint(0, view_->height())));
    }
    std::optional<Rect> screenRect() const override {
        if (!window_.knowsItsPlace()) return std::nullopt;
        const QPoint corner = view_->mapToGlobal(QPoint(0, 0));
        return Rect{static_cast<double>(corner.x()), static_cast<double>(corner.y()),
                    static_cast<double>(view_->width()), static_cast<double>(view_->height())};
    }

private:
    BarWindow& window_;
    std::unique_ptr<BarItemView> view_;
};

} // namespace

BarHost::BarHost(SymbolImages& symbols, std::function<void()> closedByUser)
    : symbols_(symbols), docks_(canDock()) {
    installBarAccessibility();
    window_ = std::make_unique<BarWindow>(docks_ ? BarWindow::Kind::dock : BarWindow::Kind::window);
    window_->closedByUser = std::move(closedByUser);
    window_->installEventFilter(this);
    if (docks_) {
        connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, [this] {
            watchScreen();
            place();
        });
        watchScreen();
        window_->winId();
        place();
        others_.emplace([this] { placeLater(); });
    }
    window_->show();
}

BarHost::~BarHost() = default;

std::unique_ptr<HostedItem> BarHost::realise(StatusItemModel& model) {
    return std::make_unique<BarItem>(model, *window_, fonts_, symbols_);
}

bool BarHost::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange) {
        window_->forgetFonts();
        fonts_.clear();
    }
    return QObject::eventFilter(watched, event);
}

void BarHost::watchScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    connect(screen, &QScreen::geometryChanged, this, &BarHost::place, Qt::UniqueConnection);
    connect(screen, &QScreen::availableGeometryChanged, this, &BarHost::place, Qt::UniqueConnection);
}

void BarHost::placeLater() {
    if (isToBePlaced_) return;
    isToBePlaced_ = true;
    QMetaObject::invokeMethod(this, &BarHost::place, Qt::QueuedConnection);
}

// The available geometry holds our own strip too, so that the others' reservations are asked for one by one.
void BarHost::place() {
    isToBePlaced_ = false;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const double ratio = screen->devicePixelRatio();
    const QRect area = screen->geometry();
    const QRect native(area.topLeft(), QSizeF(QSizeF(area.size()) * ratio).toSize());
    const int others = topReservedByOthers(*window_->windowHandle(), native.left(), native.right());
    const int top = std::max(0, others - native.top());
    const int height = static_cast<int>(std::lround(barHeight * ratio));

    window_->setGeometry(area.left(), area.top() + static_cast<int>(std::lround(top / ratio)), area.width(),
                         barHeight);
    dockAtTop(*window_->windowHandle(), QRect(native.left(), native.top() + top, native.width(), height));
}

} // namespace tarvo::desktop
