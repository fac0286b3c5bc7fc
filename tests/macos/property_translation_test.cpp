#include "macos/mac_test.h"

#include "macos/translate.h"

#include <cstdint>
#include <limits>

namespace tarvo {
namespace {

using namespace fakes;

class PropertyTranslation : public MacTest {
protected:
    static std::optional<PropertyDictionary> entry(Value value) {
        return translate(dictionary({{"entry", std::move(value)}}));
    }
};

TEST_F(PropertyTranslation, ABooleanIsNoNumber) {
    EXPECT_EQ(entry(boolean(true))->boolean("entry"), true);
    EXPECT_EQ(entry(boolean(false))->boolean("entry"), false);
    EXPECT_EQ(entry(boolean(true))->integer("entry"), std::nullopt);
}

TEST_F(PropertyTranslation, WholeNumbersKeepAllOfTheir64Bits) {
    constexpr auto smallest = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(entry(int32(-1))->integer("entry"), -1);
    EXPECT_EQ(entry(int64(smallest))->integer("entry"), smallest);
    EXPECT_EQ(entry(int64(5'000'000'000))->unsignedInteger("entry"), 5'000'000'000U);
    EXPECT_EQ(entry(int64(-5))->unsignedInteger("entry"), std::nullopt);
    EXPECT_EQ(entry(int32(1))->boolean("entry"), std::nullopt);
}

TEST_F(PropertyTranslation, FloatingNumbersAreNoWholeOnes) {
    EXPECT_EQ(entry(float64(12.1))->number("entry"), 12.1);
    EXPECT_EQ(entry(float32(0.5F))->number("entry"), 0.5);
    EXPECT_EQ(entry(float64(3))->integer("entry"), std::nullopt);
}

TEST_F(PropertyTranslation, TextsAreUTF8) {
    EXPECT_EQ(entry(text("AC Power"))->string("entry"), "AC Power");
    EXPECT_EQ(entry(text(""))->string("entry"), "");
    EXPECT_EQ(entry(text("€€€"))->string("entry"), "€€€"); // the longest there are for their length
    EXPECT_EQ(entry(text("žluť 😀"))->string("entry"), "žluť 😀");
    EXPECT_EQ(entry(unwritableText())->string("entry"), std::nullopt);
}

TEST_F(PropertyTranslation, OtherTypesAreLeftOut) {
    const auto translated = translate(
        dictionary({{"data", data()}, {"list", array({int32(1), text("one")})}, {"name", text("kept")}}));
    EXPECT_EQ(translated->string("data"), std::nullopt);
    EXPECT_EQ(translated->integer("list"), std::nullopt);
    EXPECT_EQ(translated->dictionary("list"), nullptr);
    EXPECT_EQ(translated->string("name"), "kept");
}

TEST_F(PropertyTranslation, DictionariesAreNested) {
    const auto translated = entry(
        dictionary({{"Device Utilization %", int64(37)}, {"inner", dictionary({{"deep", text("x")}})}}));
    const auto* const outer = translated->dictionary("entry");
    ASSERT_NE(outer, nullptr);
    EXPECT_EQ(outer->number("Device Utilization %"), 37);
    ASSERT_NE(outer->dictionary("inner"), nullptr);
    EXPECT_EQ(outer->dictionary("inner")->string("deep"), "x");
}

TEST_F(PropertyTranslation, ADictionaryWithAKeyThatIsNoTextIsNone) {
    const auto mixed = dictionaryOf({text("Bytes (Read)"), int32(7)}, {int64(1), int64(2)});
    EXPECT_FALSE(translate(mixed).has_value());
    const auto around = translate(dictionary({{"Statistics", mixed}, {"name", text("kept")}}));
    EXPECT_EQ(around->dictionary("Statistics"), nullptr);
    EXPECT_EQ(around->string("name"), "kept");
}

TEST_F(PropertyTranslation, AnEntryWhoseKeyCannotBeWrittenIsLeftOut) {
    const auto translated = translate(dictionaryOf({unwritableText(), text("b")}, {int32(1), int32(2)}));
    ASSERT_TRUE(translated.has_value());
    EXPECT_EQ(translated->integer("b"), 2);
}

TEST_F(PropertyTranslation, AnEmptyDictionaryIsOne) {
    EXPECT_TRUE(translate(dictionary({})).has_value());
}

TEST_F(PropertyTranslation, WhatIsNoDictionaryIsNone) {
    EXPECT_FALSE(translate(text("AC Power")).has_value());
    EXPECT_FALSE(translate(array({})).has_value());
    EXPECT_FALSE(translateNull().has_value());
}

} // namespace
} // namespace tarvo
