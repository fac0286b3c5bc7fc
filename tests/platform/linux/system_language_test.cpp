#include "platform/linux/system_language.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvo::linux_platform {
namespace {

std::optional<std::string> codeWith(std::map<std::string, std::string> variables) {
    return systemLanguageCode([&](const std::string& name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(SystemLanguage, IsTheFirstPartOfTheLocale) {
    EXPECT_EQ(codeWith({{"LANG", "cs_CZ.UTF-8"}}), "cs");
    EXPECT_EQ(codeWith({{"LANG", "cs"}}), "cs");
    EXPECT_EQ(codeWith({{"LANG", "cs.UTF-8"}}), "cs");
    EXPECT_EQ(codeWith({{"LANG", "ca@valencia"}}), "ca");
    EXPECT_EQ(codeWith({{"LANG", "sr_RS@latin"}}), "sr");
}

TEST(SystemLanguage, TheCLocaleAndNoLocaleHaveNoCode) {
    EXPECT_FALSE(codeWith({}));
    EXPECT_FALSE(codeWith({{"LANG", ""}}));
    EXPECT_FALSE(codeWith({{"LANG", "C"}}));
    EXPECT_FALSE(codeWith({{"LANG", "POSIX"}}));
    EXPECT_FALSE(codeWith({{"LANG", "C.UTF-8"}}));
    EXPECT_FALSE(codeWith({{"LANG", "_CZ"}}));
}

TEST(SystemLanguage, LCAllComesBeforeLCMessagesAndThatBeforeLang) {
    EXPECT_EQ(codeWith({{"LC_ALL", "de_DE"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "cs_CZ"}}), "de");
    EXPECT_EQ(codeWith({{"LC_MESSAGES", "fr_FR"}, {"LANG", "cs_CZ"}}), "fr");
    EXPECT_FALSE(codeWith({{"LC_ALL", "C"}, {"LANG", "cs_CZ"}}));
}

TEST(SystemLanguage, AnEmptyVariableIsPassedOver) {
    EXPECT_EQ(codeWith({{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "cs_CZ"}}), "cs");
}

TEST(SystemLanguage, TheFirstPreferredLanguageOverrulesTheLocale) {
    EXPECT_EQ(codeWith({{"LANGUAGE", "cs:en"}, {"LANG", "en_US.UTF-8"}}), "cs");
    EXPECT_EQ(codeWith({{"LANGUAGE", "cs_CZ"}, {"LC_ALL", "de_DE"}}), "cs");
    EXPECT_EQ(codeWith({{"LANGUAGE", ":cs"}, {"LANG", "en_US"}}), "cs");
    EXPECT_EQ(codeWith({{"LANGUAGE", ""}, {"LANG", "en_US"}}), "en");
    EXPECT_EQ(codeWith({{"LANGUAGE", "::"}, {"LANG", "en_US"}}), "en");
}

TEST(SystemLanguage, PreferredLanguagesCountForNothingInTheCLocale) {
    EXPECT_FALSE(codeWith({{"LANGUAGE", "cs"}, {"LANG", "C"}}));
    EXPECT_FALSE(codeWith({{"LANGUAGE", "cs"}, {"LC_ALL", "C.UTF-8"}, {"LANG", "cs_CZ"}}));
    EXPECT_FALSE(codeWith({{"LANGUAGE", "cs"}}));
}

TEST(SystemLanguage, APreferredLanguageThatIsCMeansNoCode) {
    EXPECT_FALSE(codeWith({{"LANGUAGE", "C:cs"}, {"LANG", "cs_CZ"}}));
}

} // namespace
} // namespace tarvo::linux_platform
