#include "platform/linux/desktop_entry.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(ProgramOfExec, IsTheBaseNameOfTheFirstWord) {
    EXPECT_EQ(programOfExec("/usr/bin/editor --new-window %F"), "editor");
    EXPECT_EQ(programOfExec("player %U"), "player");
}

TEST(ProgramOfExec, ResolvesQuotesAndBackslashes) {
    EXPECT_EQ(programOfExec(R"("/opt/My Editor/bin/my editor" %F)"), "my editor");
    EXPECT_EQ(programOfExec(R"(/opt/a\ b/c\ d)"), "c d");
}

TEST(ProgramOfExec, PassesOverAnEnvironment) {
    EXPECT_EQ(programOfExec("env GDK_BACKEND=x11 -u LANG=C /usr/bin/editor %U"), "editor");
    EXPECT_EQ(programOfExec("/usr/bin/env python3 script"), "python3");
}

TEST(ProgramOfExec, IsEmptyWithoutAProgram) {
    EXPECT_EQ(programOfExec(""), "");
    EXPECT_EQ(programOfExec("env A=1"), "");
    EXPECT_EQ(programOfExec("\""), "");
}

TEST(ParseDesktopEntry, ReadsIconAndProgram) {
    const auto entry =
        parseDesktopEntry("[Desktop Entry]\nType=Application\nIcon=editor\nExec=/usr/bin/edit %F\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->icon, "editor");
    EXPECT_EQ(entry->program, "edit");
}

TEST(ParseDesktopEntry, ReadsOnlyTheEntryGroup) {
    const auto entry = parseDesktopEntry("[Desktop Action new]\nIcon=other\nExec=other\n[Desktop Entry]\r\n"
                                         "# Icon=comment\nType = Application\nIcon = own\nExec=own\n"
                                         "[Desktop Action more]\nIcon=last\nExec=last");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->icon, "own");
    EXPECT_EQ(entry->program, "own");
}

TEST(ParseDesktopEntry, IsAbsentForOtherTypesAndWithoutAnIcon) {
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Link\nIcon=a\n"));
    EXPECT_FALSE(parseDesktopEntry("[Desktop Entry]\nType=Application\nExec=a\n"));
    EXPECT_FALSE(parseDesktopEntry("Type=Application\nIcon=a\n"));
    EXPECT_FALSE(parseDesktopEntry(""));
}

TEST(ParseDesktopEntry, TakesNoTranslatedKeyForThePlainOne) {
    const auto entry = parseDesktopEntry("[Desktop Entry]\nType=Application\nIcon=a\nIcon[cs]=b\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->icon, "a");
}

} // namespace tarvo::linux_platform
