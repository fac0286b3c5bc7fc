#include "ui/controls/quick_action_button.h"

#include "support/painted_widget.h"
#include "ui/press.h"

#include <QResizeEvent>

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(QuickActionButton, IsPressedWithMouseSpaceAndReturn) {
    QuickActionButton button;
    button.set({"trash.fill", "Trash", colors::red});
    int presses = 0;
    QObject::connect(&button, &QAbstractButton::clicked, [&] { ++presses; });
    button.click();
    pressKey(button, Qt::Key_Space);
    pressKey(button, Qt::Key_Return);
    pressKey(button, Qt::Key_Enter);
    EXPECT_EQ(presses, 4);
    EXPECT_TRUE(button.focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(button.accessibleName(), "Trash");
}

TEST(QuickActionButton, DrawsItsSymbolInItsColourAndItsLabel) {
    QuickActionButton button;
    button.setPalette(lightPalette());
    button.set({"trash.fill", "Trash", colors::red});
    const QImage red = painted(button, {96, 50});
    button.set({"trash.fill", "Trash", colors::teal});
    const QImage teal = painted(button, {96, 50});
    EXPECT_NE(red, teal);
    button.set({"moon.fill", "Trash", colors::teal});
    EXPECT_NE(painted(button, {96, 50}), teal);
    button.set({"trash.fill", "Display", colors::teal});
    EXPECT_NE(painted(button, {96, 50}), teal);
}

TEST(QuickActionButton, IsAsWideAsItsPlaceHoweverLongItsLabelIs) {
    QuickActionButton button;
    button.setLabelLines(2);
    button.set({"bolt.fill", "Trash", colors::yellow});
    const QSize before = button.sizeHint();
    button.set({"bolt.fill", std::string(255, 'x'), colors::yellow});
    EXPECT_EQ(button.sizeHint(), before);
    EXPECT_EQ(button.minimumSizeHint().width(), 10);
    EXPECT_FALSE(isBlank(painted(button, {10, 40})));
}

TEST(QuickActionButton, TellsALabelThatDoesNotFitAsItsHelp) {
    QuickActionButton button;
    button.resize(96, 60);
    button.set({"bolt.fill", "Tidy <b>up</b>", colors::yellow});
    EXPECT_TRUE(button.toolTip().isEmpty());
    button.set({"bolt.fill", "<b>" + std::string(100, 'x') + "</b>", colors::yellow});
    EXPECT_TRUE(button.toolTip().contains(QStringLiteral("&lt;b&gt;xxx")));
    button.resize(2000, 60);
    QResizeEvent wide(button.size(), {});
    QApplication::sendEvent(&button, &wide);
    EXPECT_TRUE(button.toolTip().isEmpty());
}

TEST(QuickActionButton, AnEqualTileIsNotPaintedAgain) {
    QuickActionButton button;
    button.set({"trash.fill", "Trash", colors::red});
    button.resize(96, 50);
    button.show();
    QApplication::processEvents();
    QApplication::processEvents();
    PaintCounter paints(button);
    button.set({"trash.fill", "Trash", colors::red});
    QApplication::processEvents();
    EXPECT_EQ(paints.count(), 0);
    button.set({"trash.fill", "Koš", colors::red});
    QApplication::processEvents();
    EXPECT_EQ(paints.count(), 1);
}

} // namespace tarvo::ui
