#include "core/notification_center.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(NotificationCenter, OnlyObserversOfTheNameAreTold) {
    NotificationCenter center;
    int style = 0;
    int other = 0;
    const auto first = center.observe(menuBarStyleChanged, [&] { ++style; });
    const auto second = center.observe("other", [&] { ++other; });
    center.post(menuBarStyleChanged);
    EXPECT_EQ(style, 1);
    EXPECT_EQ(other, 0);
}

TEST(NotificationCenter, ANameThatNobodyObservesIsPostedWithoutEffect) {
    NotificationCenter center;
    center.post("nobody");
    int calls = 0;
    {
        const auto subscription = center.observe("nobody", [&] { ++calls; });
    }
    center.post("nobody");
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace tarvo
