#include "ui/controls/focus_order.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollArea>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

class FocusOrderTest : public ::testing::Test {
protected:
    FocusOrderTest() {
        panel.resize(300, 300);
        panel.show();
        panel.activateWindow();
        QApplication::processEvents();
    }
    QPushButton* buttonAt(QRect place, QWidget* parent = nullptr) {
        auto* button = new QPushButton(parent ? parent : &panel);
        button->setGeometry(place);
        button->show();
        return button;
    }

    QWidget panel;
};

} // namespace

TEST_F(FocusOrderTest, GoesFromTopToBottomWhateverWasMadeFirst) {
    auto* last = buttonAt({0, 200, 50, 20});
    auto* right = buttonAt({100, 0, 50, 20});
    auto* left = buttonAt({0, 0, 50, 20});
    for (QWidget* expected : {left, right, last, left}) {
        ASSERT_TRUE(moveFocusInReadingOrder(panel, true));
        EXPECT_EQ(QApplication::focusWidget(), expected);
    }
    moveFocusInReadingOrder(panel, false);
    EXPECT_EQ(QApplication::focusWidget(), last);
}

TEST_F(FocusOrderTest, OneLineIsOneLineWhenItsControlsDifferInHeight) {
    auto* right = buttonAt({100, 0, 50, 40});
    auto* left = buttonAt({0, 10, 50, 20});
    moveFocusInReadingOrder(panel, true);
    EXPECT_EQ(QApplication::focusWidget(), left);
    moveFocusInReadingOrder(panel, true);
    EXPECT_EQ(QApplication::focusWidget(), right);
}

TEST_F(FocusOrderTest, PassesOverWhatIsHiddenDisabledOrNotForTheKeyboard) {
    buttonAt({0, 0, 50, 20})->hide();
    buttonAt({0, 30, 50, 20})->setEnabled(false);
    buttonAt({0, 60, 50, 20})->setFocusPolicy(Qt::ClickFocus);
    EXPECT_FALSE(moveFocusInReadingOrder(panel, true));
    auto* only = buttonAt({0, 90, 50, 20});
    EXPECT_TRUE(moveFocusInReadingOrder(panel, false));
    EXPECT_EQ(QApplication::focusWidget(), only);
}

TEST_F(FocusOrderTest, ScrollsTheControlIntoSight) {
    QScrollArea area(&panel);
    area.setFocusPolicy(Qt::NoFocus);
    area.setGeometry(0, 0, 200, 100);
    auto* content = new QWidget;
    content->resize(150, 1000);
    area.setWidget(content);
    auto* far = buttonAt({0, 900, 50, 20}, content);
    auto* footer = buttonAt({0, 200, 50, 20});
    area.show();
    moveFocusInReadingOrder(panel, true);
    EXPECT_EQ(QApplication::focusWidget(), far);
    EXPECT_TRUE(area.viewport()->rect().contains(far->mapTo(area.viewport(), far->rect().center())));
    moveFocusInReadingOrder(panel, true);
    EXPECT_EQ(QApplication::focusWidget(), footer) << "what is scrolled comes before what is below";
}

} // namespace tarvo::ui
