#include "platform/subscription.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tarvo {
namespace {

TEST(Observers, RunInTheOrderOfRegistration) {
    Observers<int> observers;
    std::vector<int> seen;
    const auto first = observers.observe([&](int value) { seen.push_back(value); });
    const auto second = observers.observe([&](int value) { seen.push_back(value * 10); });
    observers.notify(3);
    EXPECT_EQ(seen, (std::vector{3, 30}));
}

TEST(Observers, AnEndedSubscriptionIsNotCalled) {
    Observers<> observers;
    int calls = 0;
    {
        const auto subscription = observers.observe([&] { ++calls; });
        observers.notify();
    }
    observers.notify();
    EXPECT_EQ(calls, 1);
}

TEST(Observers, ACallbackMayEndItsOwnSubscriptionAndAddAnother) {
    Observers<> observers;
    int first = 0;
    int second = 0;
    std::optional<Subscription> added;
    std::optional<Subscription> own;
    own = observers.observe([&] {
        ++first;
        added = observers.observe([&] { ++second; });
        own.reset();
    });
    observers.notify();
    observers.notify();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
}

TEST(Observers, ANotificationWithinANotificationReachesAllOfThem) {
    Observers<int> observers;
    std::vector<int> seen;
    std::optional<Subscription> ended = observers.observe([](int) {});
    const auto first = observers.observe([&](int depth) {
        ended.reset();
        seen.push_back(depth * 10 + 1);
        if (depth == 0) observers.notify(1);
    });
    const auto second = observers.observe([&](int depth) { seen.push_back(depth * 10 + 2); });
    observers.notify(0);
    EXPECT_EQ(seen, (std::vector{1, 11, 12, 2}));
}

} // namespace
} // namespace tarvo
