#include "platform/desktop/status_menu.h"

#include "support/qt_wait.h"

#include <QAction>
#include <QKeyEvent>
#include <QPointer>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class StatusMenuTest : public testing::Test {
protected:
    StatusMenuTest()
        : menu(new StatusMenu(
              {{"Open & look…", "", [this] { ++opened; }}, {}, {"Quit", "q", [this] { ++quits; }}})) {}
    ~StatusMenuTest() override { delete menu; }
    StatusMenuTest(const StatusMenuTest&) = delete;
    StatusMenuTest& operator=(const StatusMenuTest&) = delete;

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(menu, &event);
    }

    int opened = 0;
    int quits = 0;
    QPointer<StatusMenu> menu;
};

TEST_F(StatusMenuTest, HasARowForEachRow) {
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_EQ(menu->actions()[0]->text(), "Open && look…");
    EXPECT_TRUE(menu->actions()[1]->isSeparator());
    EXPECT_EQ(menu->actions()[2]->shortcut(), QKeySequence("Ctrl+Q"));
}

TEST_F(StatusMenuTest, ChoosingARowRunsItsAction) {
    menu->actions()[0]->trigger();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(quits, 0);
}

TEST_F(StatusMenuTest, AKeyEquivalentWorksAloneAndWithControl) {
    menu->popup({0, 0});
    press(Qt::Key_Q);
    EXPECT_EQ(quits, 1);
    EXPECT_TRUE(waitUntil([&] { return menu.isNull(); }));
}

TEST_F(StatusMenuTest, DeletesItselfOnceItIsClosed) {
    menu->popup({0, 0});
    menu->close();
    EXPECT_TRUE(waitUntil([&] { return menu.isNull(); }));
}

} // namespace
} // namespace tarvo::desktop
