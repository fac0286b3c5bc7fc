#include "ui/controls/icon_button.h"
#include "ui/controls/switch_button.h"

#include "support/painted_widget.h"
#include "ui/press.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(PaintedButton, IsPressedBySpaceAndByReturn) {
    IconButton button("power", 13, 26);
    int pressed = 0;
    QObject::connect(&button, &QAbstractButton::clicked, [&] { ++pressed; });
    pressKey(button, Qt::Key_Space);
    pressKey(button, Qt::Key_Return);
    pressKey(button, Qt::Key_Enter);
    EXPECT_EQ(pressed, 3);
}

TEST(PaintedButton, IsReachedWithTab) {
    EXPECT_TRUE(IconButton("power", 13, 26).focusPolicy() & Qt::TabFocus);
}

TEST(PaintedButton, ShowsWhereTheKeyboardIs) {
    IconButton button("power", 13, 26);
    button.show();
    QApplication::setActiveWindow(&button);
    button.clearFocus();
    const QImage before = painted(button, {26, 26});
    button.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(button.hasFocus());
    EXPECT_NE(painted(button, {26, 26}), before);
    button.clearFocus();
    button.setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(painted(button, {26, 26}), before);
}

TEST(PaintedButton, HasItsHelpTextAsAccessibleName) {
    IconButton button("gearshape.fill", 13, 26);
    button.setName("Settings", true);
    EXPECT_EQ(button.accessibleName(), "Settings");
    EXPECT_EQ(button.toolTip(), "Settings");
}

TEST(SwitchButton, LooksDifferentWhenItIsOn) {
    SwitchButton button;
    const QImage off = painted(button, button.size());
    button.click();
    EXPECT_TRUE(button.isChecked());
    EXPECT_NE(painted(button, button.size()), off);
}

} // namespace tarvo::ui
