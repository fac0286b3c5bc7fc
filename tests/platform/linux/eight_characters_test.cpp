#include "platform/linux/eight_characters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace tarvo::linux_platform {

TEST(EightCharacters, CountDigitsAtTheBeginning) {
    EXPECT_EQ(EightCharacters("12345678").digits(), 8);
    EXPECT_EQ(EightCharacters("1234567 ").digits(), 7);
    EXPECT_EQ(EightCharacters("0 234567").digits(), 1);
    EXPECT_EQ(EightCharacters("x2345678").digits(), 0);
    EXPECT_EQ(EightCharacters("/:345678").digits(), 0);
    EXPECT_EQ(EightCharacters("9:\xFF\xFF\xFF\xFF\xFF\xFF").digits(), 1);
}

TEST(EightCharacters, CountWhatIsAboveTheBlank) {
    EXPECT_EQ(EightCharacters("abcdefgh").aboveBlank(), 8);
    EXPECT_EQ(EightCharacters("abc efgh").aboveBlank(), 3);
    EXPECT_EQ(EightCharacters("\nbcdefgh").aboveBlank(), 0);
    EXPECT_EQ(EightCharacters("ab\xC5\x99\t  h").aboveBlank(), 4);
    EXPECT_EQ(EightCharacters("!\xFF\x80~\x7F\0gh").aboveBlank(), 5);
}

TEST(EightCharacters, AgreeWithLookingAtOneAfterTheOther) {
    std::mt19937 random(3);
    for (int round = 0; round < 200'000; ++round) {
        std::string text(8, '\0');
        for (auto& character : text) {
            const auto choice = random() % 4;
            const auto any = static_cast<char>(random() % 256);
            character = choice == 0 ? any : static_cast<char>('0' + random() % 10);
        }
        const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
        const auto isAbove = [](char character) { return static_cast<unsigned char>(character) > ' '; };
        const auto count = [&text](auto&& matches) {
            return std::find_if_not(text.begin(), text.end(), matches) - text.begin();
        };
        const EightCharacters eight(text.c_str());
        ASSERT_EQ(eight.digits(), count(isDigit));
        ASSERT_EQ(eight.aboveBlank(), count(isAbove));
        const auto isControl = [](char character) { return static_cast<unsigned char>(character) < ' '; };
        ASSERT_EQ(eight.holdsControl(), std::any_of(text.begin(), text.end(), isControl));
        for (std::size_t index = 0; index < text.size(); ++index)
            ASSERT_EQ((eight.fieldMarks() >> (8 * index)) & 0xFF, isAbove(text[index]) ? 0x80U : 0U);
        const auto digits = eight.digits();
        if (digits > 0) {
            const auto number = text.substr(0, static_cast<std::size_t>(digits));
            ASSERT_EQ(eight.value(digits), std::stoull(number));
        }
    }
}

} // namespace tarvo::linux_platform
