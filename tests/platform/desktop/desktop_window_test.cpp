#include "platform/desktop/desktop_window.h"

#include "support/qt_wait.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class DesktopWindowTest : public testing::Test {
protected:
    std::unique_ptr<Window> make() {
        return factory({"Tarvo", 980, 640, 760, 480}, [this] {
            ++closings;
            window.reset();
        });
    }

    QPointer<QWidget> widget;
    WindowFactory factory = makeWindowFactory([this](QWidget& made) {
        widget = &made;
        new QLabel("content", &made);
    });
    std::unique_ptr<Window> window;
    int closings = 0;
};

TEST_F(DesktopWindowTest, HasTheAskedSizesAndTitleAndStandsInTheMiddle) {
    window = make();
    EXPECT_EQ(widget->windowTitle(), "Tarvo");
    EXPECT_EQ(widget->minimumSize(), QSize(760, 480));
    EXPECT_EQ(widget->size(), QSize(980, 640));
    const QPoint centre = QGuiApplication::primaryScreen()->availableGeometry().center();
    EXPECT_LE((widget->geometry().center() - centre).manhattanLength(), 2);
}

TEST_F(DesktopWindowTest, IsFilledBeforeItIsShown) {
    window = make();
    EXPECT_EQ(widget->findChildren<QLabel*>().size(), 1);
    EXPECT_FALSE(widget->isVisible());
    window->bringToFrontAsKeyWindow();
    EXPECT_TRUE(widget->isVisible());
}

TEST_F(DesktopWindowTest, ClosingTellsOnceAndMayDestroyTheWindow) {
    window = make();
    window->bringToFrontAsKeyWindow();
    widget->close();
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(window, nullptr);
    EXPECT_TRUE(waitUntil([&] { return widget.isNull(); }));
}

TEST_F(DesktopWindowTest, DestroyingClosesWithoutTelling) {
    window = make();
    window->bringToFrontAsKeyWindow();
    window.reset();
    EXPECT_EQ(closings, 0);
    EXPECT_TRUE(waitUntil([&] { return widget.isNull(); }));
}

TEST_F(DesktopWindowTest, ComesBackFromTheTaskbar) {
    window = make();
    window->bringToFrontAsKeyWindow();
    widget->setWindowState(Qt::WindowMinimized);
    window->bringToFrontAsKeyWindow();
    EXPECT_FALSE(widget->isMinimized());
}

} // namespace
} // namespace tarvo::desktop
