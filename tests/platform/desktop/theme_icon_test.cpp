#include "platform/desktop/theme_icon.h"

#include "support/temporary_folder.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tarvo::desktop {

TEST(ThemeIcon, IsReadFromAnAbsolutePath) {
    const TemporaryFolder folder;
    const std::string path = folder.path("icon.png");
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(QString::fromStdString(path)));
    const auto icon = themeIcon(path);
    ASSERT_TRUE(icon);
    EXPECT_FALSE(icon->isNull());
}

TEST(ThemeIcon, IsAbsentForWhatDoesNotExist) {
    EXPECT_FALSE(themeIcon("/nonexistent/icon.png"));
    EXPECT_FALSE(themeIcon("no-such-icon-in-any-theme"));
    EXPECT_FALSE(themeIcon(""));
}

} // namespace tarvo::desktop
