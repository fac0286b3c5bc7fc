#include "menubar/upper_case.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(UpperCase, RaisesPlainLetters) {
    EXPECT_EQ(upperCased("Temperature 1"), "TEMPERATURE 1");
    EXPECT_EQ(upperCased(""), "");
}

TEST(UpperCase, RaisesEveryLetterOfTheCzechAlphabet) {
    EXPECT_EQ(upperCased("áčďéěíňóřšťúůýž"), "ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ");
    EXPECT_EQ(upperCased("ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ"), "ÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ");
    EXPECT_EQ(upperCased("Paměť"), "PAMĚŤ");
}

TEST(UpperCase, RaisesTheNeighboursLettersAtTheEdgesOfTheirStretches) {
    EXPECT_EQ(upperCased("àþÿāįĳķĺňŋŵźž"), "ÀÞŸĀĮĲĶĹŇŊŴŹŽ");
}

TEST(UpperCase, LeavesWhatHasNoCapital) {
    EXPECT_EQ(upperCased("÷ß×ıĸŉ 5 °C € 🔋"), "÷ß×ıĸŉ 5 °C € 🔋");
}

TEST(UpperCase, LeavesMalformedBytes) {
    EXPECT_EQ(upperCased("a\xC4"), "A\xC4");
    EXPECT_EQ(upperCased("\xC4x\xFF\x80"), "\xC4X\xFF\x80");
}

} // namespace
} // namespace tarvo
