#include "ui/controls/accent_theme_picker.h"

#include "support/memory_preference_store.h"
#include "support/painted_widget.h"
#include "ui/press.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(AccentThemePicker, HasACircleForEachThemeInOrder) {
    AccentThemePicker picker([](AccentTheme) {});
    picker.resize(picker.sizeHint());
    picker.ensurePolished();
    (void)painted(picker, picker.sizeHint());
    int left = -1;
    for (const AccentTheme theme : allAccentThemes) {
        EXPECT_GT(picker.circle(theme)->x(), left);
        left = picker.circle(theme)->x();
    }
}

TEST(AccentThemePicker, MarksTheSelectedOne) {
    AccentThemePicker picker([](AccentTheme) {});
    picker.setSelected(AccentTheme::pink);
    EXPECT_EQ(picker.selected(), AccentTheme::pink);
    QAbstractButton& circle = *picker.circle(AccentTheme::pink);
    const QImage marked = painted(circle, {22, 22});
    picker.setSelected(AccentTheme::blue);
    EXPECT_NE(painted(circle, {22, 22}), marked);
}

TEST(AccentThemePicker, TellsTheThemeThatTheUserTapped) {
    std::vector<AccentTheme> told;
    AccentThemePicker picker([&](AccentTheme theme) { told.push_back(theme); });
    picker.setSelected(AccentTheme::teal);
    EXPECT_TRUE(told.empty());
    picker.circle(AccentTheme::graphite)->click();
    EXPECT_EQ(told, std::vector<AccentTheme>{AccentTheme::graphite});
}

TEST(AccentThemePicker, NamesItsCirclesInBothLanguages) {
    MemoryPreferenceStore store;
    LocalizationManager loc(store, "cs");
    AccentThemePicker picker([](AccentTheme) {});
    picker.setLanguage(loc);
    EXPECT_EQ(picker.circle(AccentTheme::green)->accessibleName().toStdString(), "Zelená");
    loc.setLanguage(AppLanguage::en);
    picker.setLanguage(loc);
    EXPECT_EQ(picker.circle(AccentTheme::green)->accessibleName().toStdString(), "Green");
}

} // namespace tarvo::ui
