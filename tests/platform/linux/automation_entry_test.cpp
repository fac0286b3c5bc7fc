#include "platform/linux/automation_entry.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using Words = std::vector<std::string>;

AutomationEntry parsed(std::string_view text, std::string_view language = "en") {
    return parseAutomationEntry(text, language).value_or(AutomationEntry{"absent", {}});
}

TEST(AutomationEntry, HasANameAndACommand) {
    EXPECT_EQ(parsed("[Desktop Entry]\nType=Application\nName=Tidy up\nExec=tidy --all\n"),
              (AutomationEntry{"Tidy up", {"tidy", "--all"}}));
}

TEST(AutomationEntry, PrefersTheNameOfTheLanguage) {
    constexpr auto text = "[Desktop Entry]\nName=Tidy up\nName[cs]=Uklidit\nName[de]=Aufr\nExec=tidy\n";
    EXPECT_EQ(parsed(text, "cs").name, "Uklidit");
    EXPECT_EQ(parsed(text, "en").name, "Tidy up");
}

TEST(AutomationEntry, ReadsOnlyItsOwnGroup) {
    constexpr auto text =
        "# Name=no\n[Desktop Action x]\nName=Other\nExec=other\n[Desktop Entry]\nName=One\nExec=one\n"
        "[Another]\nName=Two\nExec=two\n";
    EXPECT_EQ(parsed(text), (AutomationEntry{"One", {"one"}}));
}

TEST(AutomationEntry, UndoesQuotesAndEscapes) {
    EXPECT_EQ(
        parsed("[Desktop Entry]\nName=a\\sb\nExec=\"/opt/my tools/run\" \"say \\\\\"hi\\\\\"\" plain\n"),
        (AutomationEntry{"a b", {"/opt/my tools/run", "say \"hi\"", "plain"}}));
}

TEST(AutomationEntry, LeavesFieldCodesOut) {
    EXPECT_EQ(parsed("[Desktop Entry]\nName=n\nExec=tool %U --rate=50%% %f\n").command,
              (Words{"tool", "--rate=50%"}));
}

TEST(AutomationEntry, IsAbsentWithoutNameOrCommand) {
    for (const auto* text :
         {"", "[Desktop Entry]\nName=n\n", "[Desktop Entry]\nExec=x\n", "Name=n\nExec=x\n",
          "[Desktop Entry]\nName=\nExec=x\n", "[Desktop Entry]\nName=n\nExec=\n",
          "[Desktop Entry]\nName=n\nExec=\"open\n", "[Desktop Entry]\nName=n\nExec=%U\n"}) {
        EXPECT_FALSE(parseAutomationEntry(text, "en")) << text;
    }
}

} // namespace
} // namespace tarvo::linux_platform
