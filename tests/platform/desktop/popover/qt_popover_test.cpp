#include "platform/desktop/popover/qt_popover.h"

#include "platform/desktop/popover/popover_placement.h"
#include "platform/desktop/popover/widget_content.h"
#include "platform/desktop/portable_status_item.h"
#include "support/painted_widget.h"
#include "support/qt_wait.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScreen>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

/// A host whose items all stand at one place, or do not know theirs.
struct PlacedHost : StatusBarHost {
    struct Item : HostedItem {
        explicit Item(const std::optional<Rect>& place) : place_(place) {}
        void changed(StatusItemPart) override {}
        void popUpMenu(const Menu&) override {}
        std::optional<Rect> screenRect() const override { return place_; }
        std::optional<Rect> place_;
    };
    std::unique_ptr<HostedItem> realise(StatusItemModel&) override { return std::make_unique<Item>(place); }
    std::optional<Rect> place = Rect{400, 0, 60, 26};
};

/// Content that wants a certain size.
class Panel : public QWidget {
public:
    QSize sizeHint() const override { return wanted; }
    void want(QSize size) {
        wanted = size;
        updateGeometry();
    }
    QSize wanted{300, 240};
};

class QtPopoverTest : public testing::Test {
protected:
    QtPopoverTest() { item.moveTo(host); }

    QtPopover& make(PopoverBehavior behavior = PopoverBehavior::transient) {
        popover = std::make_unique<QtPopover>(
            PopoverOptions{behavior, false}, [this] { ++closings; },
            PopoverSurroundings{.composites = [this] { return composited; },
                                .pointerPosition = [this] { return pointer; }});
        auto made = std::make_unique<Panel>();
        panel = made.get();
        popover->setContent(std::make_unique<WidgetContent>(std::move(made)));
        return *popover;
    }
    void open() {
        popover->show(item);
        popover->makeKey();
        ASSERT_TRUE(waitUntil([&] { return popover->window()->isActiveWindow(); }));
    }
    QRect place() const { return popover->window()->panelGeometry(); }

    PlacedHost host;
    PortableStatusItem item;
    bool composited = false;
    std::optional<QPoint> pointer;
    int closings = 0;
    std::unique_ptr<QtPopover> popover;
    QPointer<Panel> panel;
};

TEST_F(QtPopoverTest, OpensBelowItsItemInTheSizeOfItsContent) {
    make().show(item);
    EXPECT_TRUE(popover->isShown());
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(place(), QRect(280, 26 + popoverGap, 300, 240));
    EXPECT_EQ(panel->size(), QSize(300, 240));
}

TEST_F(QtPopoverTest, OpensAtThePointerForAnItemThatDoesNotKnowItsPlace) {
    host.place.reset();
    item.moveTo(host);
    pointer = QPoint(500, 100);
    make().show(item);
    EXPECT_EQ(place().top(), 100 + 1 + popoverGap);
    EXPECT_LE(std::abs(place().center().x() - 500), 1);
}

TEST_F(QtPopoverTest, HasItsSizeWhereNobodyTellsAPlace) {
    host.place.reset();
    item.moveTo(host);
    make().show(item);
    EXPECT_EQ(place().size(), QSize(300, 240));
}

TEST_F(QtPopoverTest, FollowsTheSizeOfItsContent) {
    make().show(item);
    panel->want({300, 400});
    EXPECT_TRUE(waitUntil([&] { return panel->height() == 400; }));
    EXPECT_EQ(place().top(), 26 + popoverGap);
    panel->want({300, 5000});
    const int bottom = QGuiApplication::primaryScreen()->availableGeometry().bottom();
    EXPECT_TRUE(waitUntil([&] { return place().bottom() == bottom - popoverGap; }));
}

TEST_F(QtPopoverTest, TellsOnceThatItClosed) {
    make().show(item);
    popover->close();
    popover->close();
    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(closings, 1);
}

TEST_F(QtPopoverTest, DestroyingItTellsNothing) {
    make().show(item);
    popover.reset();
    EXPECT_EQ(closings, 0);
}

TEST_F(QtPopoverTest, EscapeClosesIt) {
    make();
    auto* line = new QLineEdit(panel);
    open();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(line, &escape);
    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(closings, 1);
}

TEST_F(QtPopoverTest, TheWindowManagerClosesIt) {
    make();
    open();
    EXPECT_TRUE(popover->window()->close()) << "it would keep the program from ending";
    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(closings, 1);
    open();
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(QtPopoverTest, ClosesWhenAnotherWindowTakesTheKeyboard) {
    make();
    open();
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(waitUntil([&] { return !popover->window()->isVisible(); }));
    EXPECT_TRUE(waitUntil([&] { return closings == 1; }));
    EXPECT_FALSE(popover->isShown());
}

// The press that took the keyboard away may have been one on the status item.
TEST_F(QtPopoverTest, CountsAsShownForAMomentAfterItLostTheKeyboard) {
    make();
    open();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return !popover->window()->isVisible(); }));
    if (closings == 0) {
        EXPECT_TRUE(popover->isShown());
        popover->close();
    }
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(popover->isShown());
}

TEST_F(QtPopoverTest, StaysOpenBehindADialog) {
    make();
    open();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return dialog.isActiveWindow(); }));
    EXPECT_TRUE(popover->window()->isVisible());
    dialog.close();
    popover->makeKey();
    EXPECT_TRUE(waitUntil([&] { return popover->window()->isActiveWindow(); }));
    EXPECT_EQ(closings, 0);
}

TEST_F(QtPopoverTest, ClosesWhenTheKeyboardGoesElsewhereAfterADialog) {
    make();
    open();
    QWidget other;
    other.show();
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return dialog.isActiveWindow(); }));
    dialog.close();
    other.activateWindow();
    EXPECT_TRUE(waitUntil([&] { return closings == 1; }));
}

TEST_F(QtPopoverTest, OnlyTheProgramClosesAPreview) {
    make(PopoverBehavior::applicationDefined).show(item);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other.isActiveWindow(); }));
    EXPECT_TRUE(popover->isShown());
    EXPECT_TRUE(popover->window()->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(popover->window()->windowFlags() & Qt::WindowTransparentForInput);
}

TEST_F(QtPopoverTest, ReleasingTheContentDestroysIt) {
    make().show(item);
    popover->close();
    EXPECT_TRUE(popover->hasContent());
    popover->setContent(nullptr);
    EXPECT_FALSE(popover->hasContent());
    EXPECT_TRUE(panel.isNull());
    popover->show(item);
    EXPECT_TRUE(popover->isShown());
}

TEST_F(QtPopoverTest, NewContentTakesThePlaceOfTheOld) {
    make().show(item);
    auto next = std::make_unique<Panel>();
    next->wanted = {200, 100};
    QWidget* shown = next.get();
    popover->setContent(std::make_unique<WidgetContent>(std::move(next)));
    EXPECT_TRUE(panel.isNull());
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(place().size(), QSize(200, 100));
}

TEST_F(QtPopoverTest, FollowsTheCompositorFromOneOpeningToTheNext) {
    make().show(item);
    EXPECT_FALSE(popover->window()->mask().isEmpty());
    EXPECT_EQ(popover->window()->geometry(), place());
    popover->close();
    composited = true;
    popover->show(item);
    EXPECT_TRUE(popover->window()->mask().isEmpty());
    EXPECT_TRUE(popover->window()->geometry().contains(place().adjusted(-10, -10, 10, 10)));
    EXPECT_EQ(place(), QRect(280, 26 + popoverGap, 300, 240));
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(QtPopoverTest, PaintsARoundedGroundInThePalette) {
    composited = true;
    make().show(item);
    popover->window()->setPalette(darkPalette());
    const QImage image = painted(*popover->window(), popover->window()->size());
    EXPECT_EQ(image.pixelColor(image.rect().center()), darkPalette().color(QPalette::Window));
    const QRect inside = place().translated(-popover->window()->pos());
    EXPECT_LT(qAlpha(image.pixel(inside.topLeft())), 128);
    EXPECT_GT(qAlpha(image.pixel(inside.center().x(), inside.bottom() + 4)), 0) << "no shadow";
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
}

TEST_F(QtPopoverTest, TakesNoTaskbarEntry) {
    make().show(item);
    EXPECT_EQ(popover->window()->windowType(), Qt::Tool);
    EXPECT_FALSE(popover->window()->testAttribute(Qt::WA_QuitOnClose));
}

} // namespace
} // namespace tarvo::desktop
