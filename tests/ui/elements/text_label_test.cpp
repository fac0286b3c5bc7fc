#include "ui/elements/text_label.h"

#include "support/painted_widget.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(TextLabel, IsShortenedWhenItDoesNotFit) {
    TextLabel label({std::string(200, 'W')});
    EXPECT_EQ(label.minimumSizeHint().width(), 0);
    const QImage image = painted(label, {100, 20});
    EXPECT_FALSE(isBlank(image));
}

TEST(TextLabel, GrowsWithItsLinesWhenItWraps) {
    TextLabelFields fields{"Several words that need more than one line of this width", TextRole::caption};
    fields.wraps = true;
    const TextLabel label(fields);
    EXPECT_GT(label.heightForWidth(80), 2 * label.heightForWidth(2000));
}

TEST(TextLabel, ReadsItsText) {
    TextLabel label({"before"});
    label.setText("after");
    EXPECT_EQ(label.accessibleText(), "after");
}

} // namespace tarvo::ui
