#include "ui/controls/stepper.h"

#include "ui/press.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(Stepped, MovesByItsStepWithinItsRange) {
    const StepRange range{5, 100, 5};
    EXPECT_EQ(stepped(range, 90, 1), 95);
    EXPECT_EQ(stepped(range, 90, -1), 85);
    EXPECT_EQ(stepped(range, 98, 1), 100);
    EXPECT_EQ(stepped(range, 5, -1), 5);
}

TEST(Stepper, TellsTheNewValue) {
    std::vector<double> told;
    Stepper stepper({0, 10, 1}, [&](double value) { told.push_back(value); });
    stepper.setNames("less", "more");
    stepper.setValue(9);
    buttonNamed(stepper, "more")->click();
    EXPECT_EQ(told, std::vector<double>{10});
    EXPECT_FALSE(buttonNamed(stepper, "more")->isEnabled());
    buttonNamed(stepper, "less")->click();
    EXPECT_EQ(stepper.value(), 9);
}

TEST(Stepper, IsStillAtTheEndOfItsRange) {
    int told = 0;
    Stepper stepper({0, 10, 1}, [&](double) { ++told; });
    stepper.setValue(0);
    stepper.step(-1);
    EXPECT_EQ(told, 0);
}

} // namespace tarvo::ui
