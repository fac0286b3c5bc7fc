#include "platform/desktop/hot_key/hot_key_means.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

HotKeyMeans means(const char* platform, const char* waylandDisplay) {
    return hotKeyMeans(QString::fromLatin1(platform), [=](const std::string& name) {
        return name == "WAYLAND_DISPLAY" && waylandDisplay ? std::optional<std::string>(waylandDisplay)
                                                           : std::nullopt;
    });
}

TEST(HotKeyMeans, AreGrabsInAnX11Session) {
    EXPECT_EQ(means("xcb", nullptr), HotKeyMeans::x11);
    EXPECT_EQ(means("xcb", ""), HotKeyMeans::x11);
}

TEST(HotKeyMeans, AreThePortalInAWaylandSessionUnderXWaylandToo) {
    EXPECT_EQ(means("wayland", "wayland-0"), HotKeyMeans::portal);
    EXPECT_EQ(means("xcb", "wayland-0"), HotKeyMeans::portal);
}

TEST(HotKeyMeans, AreNoneWithoutAScreen) {
    EXPECT_EQ(means("offscreen", nullptr), HotKeyMeans::none);
    EXPECT_EQ(means("offscreen", "wayland-0"), HotKeyMeans::none);
}

TEST(HotKeyMeans, BindNothingWhereThereAreNone) {
    const QDBusConnection noBus(QStringLiteral("no such connection"));
    EXPECT_EQ(hotKeyBinder(HotKeyMeans::none, noBus, {})({}, {}), nullptr);
    EXPECT_EQ(hotKeyBinder(HotKeyMeans::portal, noBus, {})({}, {}), nullptr);
}

} // namespace
} // namespace tarvo::desktop
