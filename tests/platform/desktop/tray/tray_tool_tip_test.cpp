#include "platform/desktop/tray/tray_tool_tip.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(TrayToolTip, EscapesWhatMarkupWouldRead) {
    EXPECT_EQ(escapedMarkup("a < b & c > d"), "a &lt; b &amp; c &gt; d");
    EXPECT_EQ(escapedMarkup("&lt;"), "&amp;lt;");
}

TEST(TrayToolTip, KeepsLinesAndEveryOtherCharacter) {
    EXPECT_EQ(escapedMarkup("Paměť: 48%\nSíť: ↓1.2 KB/s"), QStringLiteral("Paměť: 48%\nSíť: ↓1.2 KB/s"));
    EXPECT_EQ(escapedMarkup(""), "");
}

} // namespace
} // namespace tarvo::desktop
