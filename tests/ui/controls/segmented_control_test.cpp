#include "ui/controls/segmented_control.h"

#include "ui/press.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(SegmentedControl, TellsOnlyWhatTheUserChose) {
    std::vector<int> told;
    SegmentedControl control([&](int index) { told.push_back(index); });
    control.setLabels({"Live", "24h", "7d"});
    control.setChosen(2);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(control.chosen(), 2);
    pressKey(*control.segment(1), Qt::Key_Space);
    EXPECT_EQ(told, std::vector<int>{1});
    EXPECT_EQ(control.chosen(), 1);
}

TEST(SegmentedControl, TellsOfAToggleWithoutAClick) {
    std::vector<int> told;
    SegmentedControl control([&](int index) { told.push_back(index); });
    control.setLabels({"Live", "24h", "7d"});
    control.setChosen(0);
    static_cast<QAbstractButton*>(control.segment(2))->toggle();
    EXPECT_EQ(told, std::vector<int>{2});
}

TEST(SegmentedControl, KeepsItsChoiceWhenTheLabelsChange) {
    SegmentedControl control([](int) {});
    control.setLabels({"Live", "24h"});
    control.setChosen(1);
    control.setLabels({"Živě", "24h"});
    EXPECT_EQ(control.chosen(), 1);
    EXPECT_NE(buttonNamed(control, "Živě"), nullptr);
    control.setLabels({"Živě"});
    EXPECT_EQ(control.chosen(), -1);
}

TEST(SegmentedControl, BearsAChoiceThatIsNotThere) {
    SegmentedControl control([](int) {});
    control.setLabels({"1 s", "2 s"});
    control.setChosen(7);
    EXPECT_EQ(control.chosen(), -1);
}

} // namespace tarvo::ui
