#include "platform/desktop/desktop_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <memory>
#include <utility>

namespace tarvo::desktop {

namespace {

class WindowWidget : public QWidget {
public:
    explicit WindowWidget(std::function<void()> willClose) : willClose_(std::move(willClose)) {}
    /// The program closes the window: nobody is to be told.
    void forgetOwner() { willClose_ = nullptr; }

protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        if (const auto willClose = std::exchange(willClose_, nullptr)) willClose();
    }

private:
    std::function<void()> willClose_;
};

class DesktopWindow : public Window {
public:
    DesktopWindow(const WindowOptions& options, std::function<void()> willClose, const WindowFiller& fill)
        : widget_(new WindowWidget(std::move(willClose))) {
        widget_->setWindowTitle(QString::fromStdString(options.title));
        widget_->setMinimumSize(options.minimumWidth, options.minimumHeight);
        widget_->resize(options.width, options.height);
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect area = screen->availableGeometry();
            widget_->move(area.center() - QPoint(options.width / 2, options.height / 2));
        }
        if (fill) fill(*widget_);
    }
    // The user's closing may be what destroys this object: the widget then still handles that event.
    ~DesktopWindow() override {
        widget_->forgetOwner();
        widget_->hide();
        widget_.release()->deleteLater();
    }
    DesktopWindow(const DesktopWindow&) = delete;
    DesktopWindow& operator=(const DesktopWindow&) = delete;

    void bringToFrontAsKeyWindow() override {
        widget_->setWindowState(widget_->windowState() & ~Qt::WindowMinimized);
        widget_->show();
        widget_->raise();
        widget_->activateWindow();
    }

private:
    std::unique_ptr<WindowWidget> widget_;
};

} // namespace

WindowFactory makeWindowFactory(WindowFiller fill) {
    return [fill = std::move(fill)](const WindowOptions& options, std::function<void()> willClose) {
        return std::make_unique<DesktopWindow>(options, std::move(willClose), fill);
    };
}

} // namespace tarvo::desktop
