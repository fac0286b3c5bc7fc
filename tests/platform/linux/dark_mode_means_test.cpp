#include "platform/linux/dark_mode_means.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using Commands = std::vector<ToolCommand>;

class DarkModeMeansTest : public testing::Test {
protected:
    DarkModeMeansTest() {
        for (const char* theme : {"Yaru", "Yaru-dark", "Arc-Dark", "Arc", "Adwaita-dark", "Materia-light",
                                  "Materia-dark", "Lonely"})
            folder.makeFolder(std::string("themes/") + theme);
    }
    Commands commands(Desktop desktop, std::string_view answer) const {
        const DesktopEnvironment environment{desktop, false, true, "/home/jana", themes()};
        return darkModeMeans(environment).front().commands(answer);
    }
    std::string sibling(const std::string& theme) const { return siblingTheme(theme, themes()); }
    std::vector<std::string> themes() const { return {folder.path("none"), folder.path("themes")}; }

    TemporaryFolder folder;
};

ToolCommand set(const char* schema, const char* key, const char* value) {
    return {"gsettings", {"set", schema, key, value}};
}

constexpr const char* gnomeSchema = "org.gnome.desktop.interface";

} // namespace

TEST_F(DarkModeMeansTest, SwitchTheColourSchemeOfGNOMEToTheOther) {
    EXPECT_EQ(darkModeMeans({Desktop::gnome, false, true, ""}).front().question,
              (ToolCommand{"gsettings", {"list-recursively", gnomeSchema}}));
    EXPECT_EQ(commands(Desktop::gnome, "org.gnome.desktop.interface color-scheme 'prefer-dark'\n"),
              (Commands{set(gnomeSchema, "color-scheme", "default")}));
    for (const char* light : {"default", "prefer-light"}) {
        EXPECT_EQ(commands(Desktop::gnome,
                           std::string("org.gnome.desktop.interface color-scheme '") + light + "'\n"),
                  (Commands{set(gnomeSchema, "color-scheme", "prefer-dark")}));
    }
}

TEST_F(DarkModeMeansTest, TakeTheThemeAlongForProgramsThatKnowNoScheme) {
    EXPECT_EQ(commands(Desktop::gnome, "org.gnome.desktop.interface clock-format '24h'\n"
                                       "org.gnome.desktop.interface color-scheme 'default'\n"
                                       "org.gnome.desktop.interface gtk-theme 'Yaru'\n"),
              (Commands{set(gnomeSchema, "color-scheme", "prefer-dark"),
                        set(gnomeSchema, "gtk-theme", "Yaru-dark")}));
    EXPECT_EQ(commands(Desktop::gnome, "org.gnome.desktop.interface color-scheme 'prefer-dark'\n"
                                       "org.gnome.desktop.interface gtk-theme 'Yaru-dark'\n"),
              (Commands{set(gnomeSchema, "color-scheme", "default"), set(gnomeSchema, "gtk-theme", "Yaru")}));
}

TEST_F(DarkModeMeansTest, LeaveAThemeAloneThatIsAlreadyAsWished) {
    EXPECT_EQ(commands(Desktop::gnome, "org.gnome.desktop.interface color-scheme 'default'\n"
                                       "org.gnome.desktop.interface gtk-theme 'Yaru-dark'\n"),
              (Commands{set(gnomeSchema, "color-scheme", "prefer-dark")}));
    EXPECT_EQ(commands(Desktop::gnome, "org.gnome.desktop.interface color-scheme 'default'\n"
                                       "org.gnome.desktop.interface gtk-theme 'Lonely'\n"),
              (Commands{set(gnomeSchema, "color-scheme", "prefer-dark")}));
}

TEST_F(DarkModeMeansTest, SwitchTheSchemeOfCinnamonAndTheThemeOfMATE) {
    EXPECT_EQ(commands(Desktop::cinnamon, "org.x.apps.portal color-scheme 'default'\n"),
              (Commands{set("org.x.apps.portal", "color-scheme", "prefer-dark")}));
    EXPECT_EQ(commands(Desktop::mate, "org.mate.interface gtk-theme 'Arc'\n"),
              (Commands{set("org.mate.interface", "gtk-theme", "Arc-Dark")}));
    EXPECT_TRUE(commands(Desktop::mate, "org.mate.interface gtk-theme 'Lonely'\n").empty());
}

TEST_F(DarkModeMeansTest, SwitchPlasmaBetweenAColourSchemeAndItsSister) {
    const auto plasma = [this](std::string_view listing) { return commands(Desktop::kde, listing); };
    EXPECT_EQ(plasma("You have the following color schemes on your system:\n"
                     " * BreezeDark (current color scheme)\n * BreezeLight\n"),
              (Commands{{"plasma-apply-colorscheme", {"BreezeLight"}}}));
    EXPECT_EQ(plasma(" * BreezeDark\n * BreezeLight (current color scheme)\n"),
              (Commands{{"plasma-apply-colorscheme", {"BreezeDark"}}}));
    EXPECT_EQ(plasma(" * OxygenDark (current color scheme)\n * OxygenLight\n * BreezeLight\n"),
              (Commands{{"plasma-apply-colorscheme", {"OxygenLight"}}}));
    EXPECT_EQ(plasma(" * Dracula (current color scheme)\n"),
              (Commands{{"plasma-apply-colorscheme", {"BreezeDark"}}}));
    EXPECT_EQ(plasma(""), (Commands{{"plasma-apply-colorscheme", {"BreezeDark"}}}));
}

TEST_F(DarkModeMeansTest, SwitchXfceBetweenAThemeAndItsInstalledSister) {
    EXPECT_EQ(commands(Desktop::xfce, "Adwaita\n").front().arguments.back(), "Adwaita-dark");
    EXPECT_EQ(commands(Desktop::xfce, "Adwaita-dark\n").front().arguments.back(), "Adwaita");
    EXPECT_TRUE(commands(Desktop::xfce, "Lonely\n").empty());
    EXPECT_TRUE(commands(Desktop::xfce, "\n").empty());
}

TEST_F(DarkModeMeansTest, AreNoneWhereTheDesktopHasNoDarkMode) {
    for (const Desktop desktop : {Desktop::other, Desktop::sway, Desktop::wlroots, Desktop::lxqt})
        EXPECT_TRUE(darkModeMeans({desktop, true, false, "/home/jana"}).empty());
}

TEST_F(DarkModeMeansTest, FindTheSisterOfATheme) {
    EXPECT_EQ(sibling("Yaru"), "Yaru-dark");
    EXPECT_EQ(sibling("Yaru-dark"), "Yaru");
    EXPECT_EQ(sibling("Arc"), "Arc-Dark");
    EXPECT_EQ(sibling("Arc-Dark"), "Arc");
    EXPECT_EQ(sibling("Materia-dark"), "Materia-light");
    EXPECT_EQ(sibling("Materia-light"), "Materia-dark");
    EXPECT_EQ(sibling("Lonely"), "");
    EXPECT_EQ(sibling("../themes/Yaru"), "");
    EXPECT_EQ(sibling("-dark"), "");
    EXPECT_EQ(sibling(""), "");
}

TEST(SettingIn, AListingOfASchemaIsTheValueWithoutQuotes) {
    const std::string_view listing = "org.a b 'c d'\norg.a bb true\norg.a e ''\nodd\n";
    EXPECT_EQ(settingIn(listing, "b"), "c d");
    EXPECT_EQ(settingIn(listing, "bb"), "true");
    EXPECT_EQ(settingIn(listing, "e"), "");
    EXPECT_EQ(settingIn(listing, "missing"), "");
    EXPECT_EQ(settingIn("", "b"), "");
}

} // namespace tarvo::linux_platform
