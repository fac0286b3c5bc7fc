#include "ui/elements/badge.h"
#include "ui/elements/ring_gauge.h"
#include "ui/elements/stat_row.h"

#include "support/painted_widget.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

template <typename Widget>
int paintsAfter(Widget& widget, const typename Widget::Fields& fields) {
    widget.show();
    QApplication::processEvents();
    const PaintCounter counter(widget);
    widget.set(fields);
    QApplication::processEvents();
    return counter.count();
}

} // namespace

TEST(Element, IsNotPaintedAgainForEqualFields) {
    RingGauge gauge({"CPU", 40, "45 °C"});
    EXPECT_EQ(paintsAfter(gauge, {"CPU", 40, "45 °C"}), 0);
    StatRow row({"globe", colors::blue, "Public IP", "192.0.2.1", colors::primary});
    EXPECT_EQ(paintsAfter(row, row.fields()), 0);
}

TEST(Element, IsPaintedOnceForChangedFields) {
    RingGauge gauge({"CPU", 40, "45 °C"});
    EXPECT_EQ(paintsAfter(gauge, {"CPU", 41, "45 °C"}), 1);
}

TEST(Element, IsReadableByAssistiveTechnology) {
    RingGauge gauge({"CPU", 40, "45 °C"});
    auto* interface = QAccessible::queryAccessibleInterface(&gauge);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->text(QAccessible::Name).toStdString(), "CPU 40%, 45 °C");
    EXPECT_EQ(interface->role(), QAccessible::Indicator);
    gauge.set({"CPU", 41, ""});
    EXPECT_EQ(interface->text(QAccessible::Name).toStdString(), "CPU 41%");
}

TEST(Element, AsksForNewRoomOnlyWhenItsSizeChanges) {
    Badge badge({"5", colors::red});
    const int narrow = badge.sizeHint().width();
    badge.set({"5000", colors::red});
    EXPECT_GT(badge.sizeHint().width(), narrow);
}

} // namespace tarvo::ui
