#include "platform/linux/application_id.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using IDs = std::vector<std::string>;

IDs idsOf(const std::string& unit) {
    return applicationIDs("0::/user.slice/user-1000.slice/user@1000.service/app.slice/" + unit + "\n");
}

} // namespace

TEST(ApplicationIDs, ComeFromAScope) {
    EXPECT_EQ(idsOf("app-gnome-org.example.Editor-12345.scope"),
              (IDs{"org.example.Editor", "gnome-org.example.Editor"}));
}

TEST(ApplicationIDs, ComeFromAServiceWithAndWithoutARandomPart) {
    EXPECT_EQ(idsOf("app-org.example.Editor@f00.service"), IDs{"org.example.Editor"});
    EXPECT_EQ(idsOf("app-KDE-editor.service"), (IDs{"editor", "KDE-editor"}));
}

TEST(ApplicationIDs, AreUnescaped) {
    EXPECT_EQ(idsOf("app-gnome-my\\x2deditor-7.scope"), (IDs{"my-editor", "gnome-my-editor"}));
    EXPECT_EQ(idsOf("app-gnome-a\\xZZ-7.scope").front(), "a\\xZZ");
}

TEST(ApplicationIDs, ComeFromTheInnermostApplicationUnit) {
    EXPECT_EQ(applicationIDs("0::/app.slice/app-gnome-editor-7.scope/child\n"),
              (IDs{"editor", "gnome-editor"}));
}

TEST(ApplicationIDs, AreNoneOutsideAnApplication) {
    EXPECT_TRUE(applicationIDs("").empty());
    EXPECT_TRUE(applicationIDs("0::/init.scope\n").empty());
    EXPECT_TRUE(applicationIDs("0::/system.slice/cron.service\n").empty());
    EXPECT_TRUE(idsOf("app-.scope").empty());
}

} // namespace tarvo::linux_platform
