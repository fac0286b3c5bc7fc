#include "interval_preferences.h"

#include "core/settings.h"
#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

namespace tarvo::status {
namespace {

TEST(IntervalPreferences, AnswerThePreferenceUntilAnIntervalIsSet) {
    MemoryPreferenceStore user;
    IntervalPreferences preferences(user);
    const Settings settings(preferences);
    EXPECT_EQ(settings.refreshInterval(), 2.0);
    user.set("refreshInterval", 5.0);
    EXPECT_EQ(settings.refreshInterval(), 5.0);
    preferences.setInterval(Seconds(0.25));
    EXPECT_EQ(settings.refreshInterval(), 0.25);
    preferences.setInterval(std::nullopt);
    EXPECT_EQ(settings.refreshInterval(), 5.0);
}

TEST(IntervalPreferences, StoreNothingOfTheInterval) {
    MemoryPreferenceStore user;
    IntervalPreferences preferences(user);
    preferences.setInterval(Seconds(0.25));
    EXPECT_TRUE(user.values.empty());
}

TEST(IntervalPreferences, PassEveryOtherKeyThrough) {
    MemoryPreferenceStore user;
    IntervalPreferences preferences(user);
    preferences.setInterval(Seconds(1));
    int heard = 0;
    const auto subscription = preferences.observe([&] { ++heard; });
    preferences.set("temperatureUnit", std::int64_t{1});
    EXPECT_EQ(std::get<std::int64_t>(user.object("temperatureUnit").value()), 1);
    EXPECT_TRUE(Settings(preferences).usesFahrenheit());
    preferences.remove("temperatureUnit");
    EXPECT_EQ(user.object("temperatureUnit"), std::nullopt);
    EXPECT_EQ(heard, 2);
}

} // namespace
} // namespace tarvo::status
