#include "platform/desktop/bar/bar_host.h"

#include "support/fake_status_item_model.h"
#include "support/qt_wait.h"

#include <QMouseEvent>

#include <gmock/gmock.h>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;

/// Counts how often widgets are painted.
class PaintCounter : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// Without an X server the bar is an ordinary window; its items are the same.
class BarHostTest : public testing::Test {
protected:
    QList<BarItemView*> views() const { return host.window().findChildren<BarItemView*>(); }
    static void release(BarItemView* view, Qt::MouseButton button, QPointF position) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, position, view->mapToGlobal(position), button, button, Qt::NoModifier);
            QCoreApplication::sendEvent(view, &event);
        }
    }

    SymbolImages symbols;
    int closings = 0;
    BarHost host{symbols, [this] { ++closings; }};
    FakeStatusItemModel model;
};

TEST_F(BarHostTest, ItemsStandSideBySideInOrderOfMaking) {
    model.setTitle("CPU 23%");
    FakeStatusItemModel other;
    other.setTitle("RAM 48%");
    const auto first = host.realise(model);
    const auto second = host.realise(other);
    ASSERT_EQ(views().size(), 2);
    EXPECT_EQ(views()[0]->x(), 0);
    EXPECT_EQ(views()[1]->x(), views()[0]->width());
    EXPECT_EQ(views()[0]->height(), barHeight);
    EXPECT_EQ(host.window().width(), std::max(120, views()[0]->width() + views()[1]->width()));
}

TEST_F(BarHostTest, ARemovedItemLeavesNoGap) {
    model.setTitle("CPU 23%");
    auto first = host.realise(model);
    const auto second = host.realise(model);
    BarItemView* const last = views()[1];
    first.reset();
    EXPECT_EQ(last->x(), 0);
    runPostedEvents();
    EXPECT_EQ(views().size(), 1);
}

TEST_F(BarHostTest, BothButtonsClickOnReleaseInsideTheItem) {
    model.setTitle("CPU 23%");
    const auto item = host.realise(model);
    release(views()[0], Qt::LeftButton, {5, 5});
    release(views()[0], Qt::RightButton, {5, 5});
    release(views()[0], Qt::MiddleButton, {5, 5});
    release(views()[0], Qt::LeftButton, {5, 500});
    EXPECT_THAT(model.clicks, ElementsAre(StatusClick::left, StatusClick::right));
}

TEST_F(BarHostTest, IsPaintedOnceForAllChangesOfOneTurnAndNotWithoutOne) {
    model.setTitle("CPU 23%");
    const auto item = host.realise(model);
    runPostedEvents();
    PaintCounter counter;
    views()[0]->installEventFilter(&counter);

    model.setTitle("CPU 24%");
    item->changed(StatusItemPart::face);
    model.shown.tint = SystemColor::red;
    item->changed(StatusItemPart::face);
    runPostedEvents();
    EXPECT_EQ(counter.paints, 1);

    model.shown.toolTip = "Processor";
    item->changed(StatusItemPart::toolTip);
    runPostedEvents();
    EXPECT_EQ(counter.paints, 1);
}

TEST_F(BarHostTest, TheOtherItemsAreNotPaintedWithOne) {
    model.setTitle("CPU 23%");
    FakeStatusItemModel other;
    other.setTitle("RAM 48%");
    const auto first = host.realise(model);
    const auto second = host.realise(other);
    runPostedEvents();
    PaintCounter counter;
    views()[1]->installEventFilter(&counter);
    model.setTitle("CPU 24%");
    first->changed(StatusItemPart::face);
    runPostedEvents();
    EXPECT_EQ(counter.paints, 0);
}

TEST_F(BarHostTest, AWiderTitleMovesTheNextItem) {
    model.setTitle("9%");
    const auto first = host.realise(model);
    const auto second = host.realise(model);
    const int before = views()[1]->x();
    model.setTitle("100%");
    first->changed(StatusItemPart::face);
    runPostedEvents();
    EXPECT_GT(views()[1]->x(), before);
}

TEST_F(BarHostTest, ToolTipsShowTheirTextAsItIs) {
    model.shown.toolTip = "Processor: 23%\nMemory: 48%";
    const auto item = host.realise(model);
    EXPECT_EQ(views()[0]->toolTip(), "Processor: 23%\nMemory: 48%");
    model.shown.toolTip = "<b>Fan</b> & more";
    item->changed(StatusItemPart::toolTip);
    EXPECT_FALSE(views()[0]->toolTip().contains("<b>Fan"));
    EXPECT_TRUE(views()[0]->toolTip().contains("&lt;b&gt;Fan"));
}

TEST_F(BarHostTest, AnItemThatIsRemovedByItsOwnClickIsSafe) {
    class RemovingModel : public FakeStatusItemModel {
    public:
        void clicked(StatusClick) override { item.reset(); }
        std::unique_ptr<HostedItem> item;
    } removing;
    removing.setTitle("X");
    removing.item = host.realise(removing);
    release(views()[0], Qt::LeftButton, {2, 2});
    EXPECT_EQ(removing.item, nullptr);
    runPostedEvents();
    EXPECT_TRUE(views().isEmpty());
}

TEST_F(BarHostTest, AnOrdinaryWindowDoesNotTellPlaces) {
    const auto item = host.realise(model);
    EXPECT_FALSE(host.tellsPlaces());
    EXPECT_FALSE(item->screenRect().has_value());
}

TEST_F(BarHostTest, ClosingTheOrdinaryWindowIsLeftToTheProgram) {
    auto& window = const_cast<BarWindow&>(host.window());
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(closings, 1);
}

} // namespace
} // namespace tarvo::desktop
