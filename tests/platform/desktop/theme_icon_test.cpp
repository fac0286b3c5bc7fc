#include "platform/desktop/theme_icon.h"

#include "support/temporary_folder.h"

#include <QBuffer>
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

TEST(ApplicationIcon, IsThePictureThatThePlatformHandsOver) {
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QBuffer file;
    ASSERT_TRUE(image.save(&file, "PNG"));
    const auto icon = applicationIcon(IconPicture{file.data().toStdString()});
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST(ApplicationIcon, IsAbsentWithoutAReadablePicture) {
    EXPECT_FALSE(applicationIcon(IconPicture{""}));
    EXPECT_FALSE(applicationIcon(IconPicture{"no picture"}));
    EXPECT_FALSE(applicationIcon(NamedIcon{"/nonexistent/icon.png"}));
}

} // namespace tarvo::desktop
