#include "ui/elements/stat_row.h"

#include "support/painted_widget.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

StatRowFields row(std::string label, std::string value) {
    return {"arrow.down.circle.fill", colors::blue, std::move(label), std::move(value), colors::primary};
}

QImage paintedRow(const std::string& label, const std::string& value, int width) {
    StatRow widget(row(label, value));
    widget.setPalette(lightPalette());
    return painted(widget, {width, widget.sizeHint().height()});
}

} // namespace

TEST(StatRow, IsAsHighAsItsTileAndItsPadding) {
    EXPECT_EQ(StatRow(row("Download", "1 KB/s")).sizeHint().height(), 34);
}

TEST(StatRow, KeepsItsValueWhenTheLabelIsTooLong) {
    const std::string name(200, 'W');
    const QRect valueArea(260, 0, 60, 34);
    EXPECT_EQ(paintedRow(name, "42%", 320).copy(valueArea.adjusted(30, 0, 0, 0)),
              paintedRow("CPU", "42%", 320).copy(valueArea.adjusted(30, 0, 0, 0)));
}

TEST(StatRow, DrawsTheValueOfChangingDigitsAtOnePlace) {
    const QImage one = paintedRow("Rate", "1.1 KB/s", 320);
    const QImage eight = paintedRow("Rate", "8.8 KB/s", 320);
    const QRect unit(320 - 24, 0, 24, 34);
    EXPECT_EQ(one.copy(unit), eight.copy(unit));
}

TEST(StatRow, ReadsLabelAndValue) {
    EXPECT_EQ(StatRow(row("Download", "5120.0 GB/s")).accessibleText(), "Download 5120.0 GB/s");
    EXPECT_EQ(StatRow(row("Download", "")).accessibleText(), "Download");
}

TEST(StatRow, BearsAValueWiderThanTheRow) {
    EXPECT_FALSE(isBlank(paintedRow("Label", std::string(300, '8'), 120)));
}

} // namespace tarvo::ui
