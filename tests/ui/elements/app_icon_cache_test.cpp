#include "ui/elements/app_icon_cache.h"
#include "ui/elements/process_icon_view.h"

#include "support/painted_widget.h"

#include <QPixmap>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

QIcon redSquare() {
    QPixmap picture(32, 32);
    picture.fill(Qt::red);
    return QIcon(picture);
}

} // namespace

TEST(AppIconCache, AsksOnceForAnIconThatExists) {
    int asked = 0;
    AppIconCache cache([&](std::int32_t) {
        ++asked;
        return std::optional(redSquare());
    });
    EXPECT_TRUE(cache.icon(412).has_value());
    EXPECT_TRUE(cache.icon(412).has_value());
    EXPECT_EQ(asked, 1);
}

TEST(AppIconCache, AsksAgainForAnIconThatDoesNotExistYet) {
    std::optional<QIcon> answer;
    AppIconCache cache([&](std::int32_t) { return answer; });
    EXPECT_FALSE(cache.icon(412).has_value());
    answer = redSquare();
    EXPECT_TRUE(cache.icon(412).has_value());
}

TEST(AppIconCache, TakesAnEmptyIconForNone) {
    AppIconCache cache([](std::int32_t) { return std::optional(QIcon()); });
    EXPECT_FALSE(cache.icon(412).has_value());
}

TEST(AppIconCache, KeepsProcessesApart) {
    AppIconCache cache([](std::int32_t pid) { return pid == 1 ? std::optional(redSquare()) : std::nullopt; });
    EXPECT_TRUE(cache.icon(1).has_value());
    EXPECT_FALSE(cache.icon(2).has_value());
}

TEST(AppIconCache, HasNoIconsWithoutASource) {
    AppIconCache cache({});
    EXPECT_FALSE(cache.icon(1).has_value());
}

TEST(ProcessIconView, ShowsTheIconInFullAndTheGearInset) {
    AppIconCache cache([](std::int32_t pid) { return pid == 1 ? std::optional(redSquare()) : std::nullopt; });
    ProcessIconView view(cache);
    view.set({1});
    const QImage icon = painted(view, {18, 18});
    EXPECT_EQ(icon.pixelColor(1, 1), QColor(Qt::red));
    view.set({2});
    const QImage gear = painted(view, {18, 18});
    EXPECT_TRUE(isBlank(gear.copy(0, 0, 18, 4)));
    EXPECT_FALSE(isBlank(gear));
}

} // namespace tarvo::ui
