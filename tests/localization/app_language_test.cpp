#include "localization/app_language.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

TEST(AppLanguage, CzechComesFirst) {
    EXPECT_THAT(allAppLanguages, testing::ElementsAre(AppLanguage::cs, AppLanguage::en));
}

TEST(AppLanguage, EveryRawValueLeadsBackToItsLanguage) {
    EXPECT_EQ(rawValue(AppLanguage::cs), "cs");
    EXPECT_EQ(rawValue(AppLanguage::en), "en");
    for (const auto language : allAppLanguages)
        EXPECT_EQ(appLanguage(rawValue(language)), language);
}

TEST(AppLanguage, AnyOtherTextIsNoLanguage) {
    for (const char* text : {"", "CS", "EN", "en-US", "cs_CZ", "de", "c", "csen", " cs"}) {
        EXPECT_FALSE(appLanguage(text)) << text;
    }
}

TEST(AppLanguage, ThePickerShowsTheFlagAndTheCode) {
    EXPECT_EQ(pickerText(AppLanguage::cs), "🇨🇿 CS");
    EXPECT_EQ(pickerText(AppLanguage::en), "🇬🇧 EN");
}

} // namespace
} // namespace tarvo
