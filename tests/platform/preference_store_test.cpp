#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvo {
namespace {

TEST(PreferenceReads, AnAbsentKeyReadsAsTheTypesZero) {
    const MemoryPreferenceStore store;
    EXPECT_FALSE(preferenceBool(store, "k"));
    EXPECT_EQ(preferenceInteger(store, "k"), 0);
    EXPECT_EQ(preferenceDouble(store, "k"), 0.0);
    EXPECT_EQ(preferenceString(store, "k"), "");
}

TEST(PreferenceReads, NumbersAndBooleansConvertIntoEachOther) {
    MemoryPreferenceStore store;
    store.set("two", std::int64_t{2});
    store.set("half", 2.5);
    store.set("yes", true);
    EXPECT_TRUE(preferenceBool(store, "two"));
    EXPECT_EQ(preferenceDouble(store, "two"), 2.0);
    EXPECT_EQ(preferenceInteger(store, "half"), 2);
    EXPECT_EQ(preferenceDouble(store, "yes"), 1.0);
}

TEST(PreferenceReads, ANumberNoIntegerCanHoldReadsAsZero) {
    MemoryPreferenceStore store;
    store.set("huge", 1e300);
    store.set("nan", std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(preferenceInteger(store, "huge"), 0);
    EXPECT_EQ(preferenceInteger(store, "nan"), 0);
    EXPECT_EQ(preferenceDouble(store, "nan"), 0.0);
}

TEST(PreferenceReads, TextIsNeverReadAsANumber) {
    MemoryPreferenceStore store;
    store.set("text", std::string("1"));
    EXPECT_EQ(preferenceInteger(store, "text"), 0);
    EXPECT_EQ(preferenceString(store, "text"), "1");
}

} // namespace
} // namespace tarvo
