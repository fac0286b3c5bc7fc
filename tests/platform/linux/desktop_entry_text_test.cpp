#include "platform/linux/desktop_entry_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarvo::linux_platform {
namespace {

using Words = std::vector<std::string>;
using Keys = std::vector<std::pair<std::string, std::string>>;

Keys keysOf(std::string_view text) {
    Keys keys;
    readDesktopEntryKeys(
        text, [&](std::string_view key, std::string_view value) { keys.emplace_back(key, value); });
    return keys;
}

} // namespace

TEST(DesktopEntryKeys, AreThoseOfTheEntryGroupInTheirOrder) {
    EXPECT_EQ(
        keysOf("Name=before\n[Desktop Action x]\nName=no\n[Desktop Entry]\r\nName = One \r\n# Icon=no\n\n"
               "Exec=one=1\nno key\n[Other]\nName=no\n[Desktop Entry]\nIcon=i"),
        (Keys{{"Name", "One"}, {"Exec", "one=1"}, {"Icon", "i"}}));
    EXPECT_EQ(keysOf(""), Keys{});
    EXPECT_EQ(keysOf("[Desktop Entry]\n=\n"), (Keys{{"", ""}}));
}

TEST(DesktopEntryString, LosesItsEscapes) {
    EXPECT_EQ(desktopEntryString(R"(a\sb\tc\nd\re\\f)"), "a b\tc\nd\re\\f");
    EXPECT_EQ(desktopEntryString(R"(\x \" end\)"), R"(\x \" end\)");
}

TEST(ExecWords, AreSeparatedByBlanks) {
    EXPECT_EQ(execWords("tool  --all\t%U"), (Words{"tool", "--all", "%U"}));
    EXPECT_EQ(execWords(R"(tool\sargument)"), (Words{"tool", "argument"}));
    EXPECT_EQ(execWords("  "), Words{});
}

TEST(ExecWords, KeepWhatIsQuoted) {
    EXPECT_EQ(execWords(R"("/opt/my tools/run" "" "a"b)"), (Words{"/opt/my tools/run", "", "ab"}));
    EXPECT_EQ(execWords(R"("say \\"hi\\"" "\\$HOME")"), (Words{R"(say "hi")", "$HOME"}));
    EXPECT_EQ(execWords(R"(sh -c 'echo "a b" %U')"), (Words{"sh", "-c", R"(echo "a b" %U)"}));
    EXPECT_EQ(execWords(R"(/opt/a\ b)"), Words{"/opt/a b"});
}

TEST(ExecWords, AreNoneWhenAQuoteIsNotClosed) {
    EXPECT_EQ(execWords(R"(tool "open)"), Words{});
    EXPECT_EQ(execWords("tool it's"), Words{});
}

} // namespace tarvo::linux_platform
