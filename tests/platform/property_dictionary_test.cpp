#include "platform/property_dictionary.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace tarvo {
namespace {

TEST(PropertyDictionary, AMissingKeyIsAbsentForEveryType) {
    const PropertyDictionary empty;
    EXPECT_FALSE(empty.boolean("x"));
    EXPECT_FALSE(empty.integer("x"));
    EXPECT_FALSE(empty.unsignedInteger("x"));
    EXPECT_FALSE(empty.number("x"));
    EXPECT_FALSE(empty.string("x"));
    EXPECT_EQ(empty.dictionary("x"), nullptr);
}

TEST(PropertyDictionary, AValueOfAnotherTypeCountsAsMissing) {
    PropertyDictionary values;
    values.set("text", std::string("5"));
    values.set("flag", true);
    EXPECT_FALSE(values.integer("text"));
    EXPECT_FALSE(values.number("flag"));
    EXPECT_FALSE(values.string("flag"));
    EXPECT_FALSE(values.dictionary("text"));
}

TEST(PropertyDictionary, IntegersConvertOnlyWhereTheyFit) {
    PropertyDictionary values;
    values.set("large", std::numeric_limits<std::uint64_t>::max());
    values.set("negative", std::int64_t{-1});
    EXPECT_FALSE(values.integer("large"));
    EXPECT_EQ(values.unsignedInteger("large"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_FALSE(values.unsignedInteger("negative"));
    EXPECT_EQ(values.integer("negative"), -1);
    EXPECT_EQ(values.number("negative"), -1.0);
}

TEST(PropertyDictionary, ANestedDictionaryIsReadByKey) {
    PropertyDictionary inner;
    inner.set("Bytes (Read)", std::uint64_t{7});
    PropertyDictionary outer;
    outer.set("Statistics", inner);
    ASSERT_NE(outer.dictionary("Statistics"), nullptr);
    EXPECT_EQ(outer.dictionary("Statistics")->unsignedInteger("Bytes (Read)"), 7U);
}

} // namespace
} // namespace tarvo
