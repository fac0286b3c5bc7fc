#include "core/published.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvo {
namespace {

TEST(Published, ObserversAreToldBeforeTheValueChanges) {
    Published<int> number(1);
    std::vector<int> seen;
    const auto subscription = number.observeWillChange([&] { seen.push_back(number.get()); });
    number.set(2);
    number.change([](int& value) { value = 3; });
    EXPECT_EQ(seen, (std::vector{1, 2}));
    EXPECT_EQ(number.get(), 3);
}

TEST(Published, AnEditInPlaceIsOneChange) {
    Published<std::vector<int>> list;
    int changes = 0;
    const auto subscription = list.observeWillChange([&] { ++changes; });
    list.change([](std::vector<int>& values) {
        values.push_back(1);
        values.push_back(2);
    });
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(list->size(), 2U);
}

TEST(Published, AnEqualValueIsAnnouncedTooSinceAWriteIsAChange) {
    Published<int> number(1);
    int changes = 0;
    const auto subscription = number.observeWillChange([&] { ++changes; });
    number.set(1);
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace tarvo
