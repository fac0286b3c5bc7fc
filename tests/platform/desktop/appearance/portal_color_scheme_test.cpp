#include "platform/desktop/appearance/portal_color_scheme.h"

#include "support/qt_wait.h"
#include "support/scripted_settings_portal.h"
#include "support/test_bus.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class PortalColorSchemeTest : public testing::Test {
protected:
    static bool becomes(const PortalColorScheme& colors, bool dark) {
        return waitUntil([&] { return colors.prefersDark() == dark; });
    }
    bool isAsked(int times) {
        return waitUntil([&] { return portal.asked.size() >= times; });
    }

    TestBus bus;
    QDBusConnection own = bus.connect();
    QDBusConnection other = bus.connect();
    ScriptedSettingsPortal portal{other};
};

TEST_F(PortalColorSchemeTest, IsLightUntilThePortalHasAnswered) {
    portal.scheme = 1;
    portal.appear();
    const PortalColorScheme colors(own);
    EXPECT_FALSE(colors.prefersDark());
    EXPECT_TRUE(becomes(colors, true));
    EXPECT_EQ(portal.asked, QStringList{"ReadOne org.freedesktop.appearance color-scheme"});
}

TEST_F(PortalColorSchemeTest, FollowsEachChange) {
    portal.appear();
    PortalColorScheme colors(own);
    int told = 0;
    colors.changed = [&] { ++told; };
    ASSERT_TRUE(isAsked(1));
    portal.Choose(1);
    EXPECT_TRUE(becomes(colors, true));
    portal.Choose(2);
    EXPECT_TRUE(becomes(colors, false));
    portal.Choose(0);
    portal.Choose(1);
    EXPECT_TRUE(becomes(colors, true));
    EXPECT_EQ(told, 3);
}

TEST_F(PortalColorSchemeTest, IgnoresOtherSettings) {
    portal.appear();
    const PortalColorScheme colors(own);
    ASSERT_TRUE(isAsked(1));
    emit portal.SettingChanged("org.freedesktop.appearance", "contrast", QDBusVariant(1U));
    emit portal.SettingChanged("org.gnome.desktop.interface", "color-scheme", QDBusVariant(1U));
    emit portal.SettingChanged("org.freedesktop.appearance", "color-scheme", QDBusVariant("1"));
    emit portal.SettingChanged("org.freedesktop.appearance", "color-scheme", QDBusVariant(7U));
    PortalColorScheme later(own);
    ASSERT_TRUE(isAsked(2));
    runPostedEvents();
    EXPECT_FALSE(colors.prefersDark());
    portal.Choose(1);
    EXPECT_TRUE(becomes(colors, true));
}

TEST_F(PortalColorSchemeTest, AsksAPortalThatComesLater) {
    portal.scheme = 1;
    const PortalColorScheme colors(own);
    runPostedEvents();
    EXPECT_FALSE(colors.prefersDark());
    portal.appear();
    EXPECT_TRUE(becomes(colors, true));
}

TEST_F(PortalColorSchemeTest, AsksAnOldPortalByItsOwnMethod) {
    OldSettingsPortal old;
    other.registerObject("/org/freedesktop/portal/desktop", &old, QDBusConnection::ExportAllSlots);
    other.registerService("org.freedesktop.portal.Desktop");
    const PortalColorScheme colors(own);
    EXPECT_TRUE(becomes(colors, true));
}

TEST_F(PortalColorSchemeTest, WithoutABusTheColoursAreTheToolkitsOwn) {
    const PortalColorScheme colors(QDBusConnection("no such connection"));
    runPostedEvents();
    EXPECT_FALSE(colors.prefersDark());
}

} // namespace
} // namespace tarvo::desktop
