#include "platform/desktop/tray/dbus_menu_rows.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class DBusMenuRowsTest : public testing::Test {
protected:
    Menu menu(const std::string& first = "Open Detail Window…") {
        return {{first, "", [this] { ++opened; }}, {}, {"Quit", "q", [this] { ++quits; }}};
    }
    int opened = 0;
    int quits = 0;
    DBusMenuRows rows;
};

TEST_F(DBusMenuRowsTest, TheWholeLayoutIsTheRootWithARowForEachRow) {
    rows.update(menu());
    const auto layout = rows.layout(0, -1, {});
    ASSERT_TRUE(layout.has_value());
    EXPECT_EQ(layout->id, 0);
    EXPECT_EQ(layout->properties.value("children-display"), "submenu");
    ASSERT_EQ(layout->children.size(), 3);
    EXPECT_EQ(layout->children[0].id, 1);
    EXPECT_EQ(layout->children[0].properties.value("label"), "Open Detail Window…");
    EXPECT_EQ(layout->children[1].properties.value("type"), "separator");
    EXPECT_EQ(layout->children[2].id, 3);
    EXPECT_EQ(layout->children[2].properties.value("label"), "Quit");
}

TEST_F(DBusMenuRowsTest, ADepthOfNoneIsTheItemAlone) {
    rows.update(menu());
    EXPECT_TRUE(rows.layout(0, 0, {})->children.isEmpty());
    EXPECT_EQ(rows.layout(0, 1, {})->children.size(), 3);
}

TEST_F(DBusMenuRowsTest, ARowHasALayoutOfItsOwn) {
    rows.update(menu());
    EXPECT_EQ(rows.layout(3, -1, {})->properties.value("label"), "Quit");
    EXPECT_TRUE(rows.layout(3, -1, {})->children.isEmpty());
}

TEST_F(DBusMenuRowsTest, UnknownItemsHaveNone) {
    rows.update(menu());
    EXPECT_FALSE(rows.layout(4, -1, {}).has_value());
    EXPECT_FALSE(rows.layout(-1, -1, {}).has_value());
    EXPECT_FALSE(rows.action(4));
    EXPECT_FALSE(rows.action(0));
}

TEST_F(DBusMenuRowsTest, GivesOnlyThePropertiesThatWereNamed) {
    rows.update(menu());
    const auto row = rows.layout(1, 0, {"type", "enabled"});
    EXPECT_TRUE(row->properties.isEmpty());
    EXPECT_EQ(rows.properties({1, 2}, {"type"})[1].properties.value("type"), "separator");
}

TEST_F(DBusMenuRowsTest, NoItemsMeansAllAndUnknownOnesAreLeftOut) {
    rows.update(menu());
    EXPECT_EQ(rows.properties({}, {}).size(), 4);
    const auto some = rows.properties({3, 9}, {});
    ASSERT_EQ(some.size(), 1);
    EXPECT_EQ(some[0].id, 3);
}

TEST_F(DBusMenuRowsTest, TheRevisionGrowsOnlyWithWhatIsShown) {
    EXPECT_TRUE(rows.update(menu()));
    const uint revision = rows.revision();
    EXPECT_FALSE(rows.update(menu()));
    EXPECT_EQ(rows.revision(), revision);
    EXPECT_TRUE(rows.update(menu("Otevřít detailní přehled…")));
    EXPECT_GT(rows.revision(), revision);
}

TEST_F(DBusMenuRowsTest, AnUnderscoreIsShownAsOne) {
    rows.update({{"a_b", "", {}}});
    EXPECT_EQ(rows.layout(1, 0, {})->properties.value("label"), "a__b");
}

TEST_F(DBusMenuRowsTest, ChoosingARowRunsItsAction) {
    rows.update(menu());
    rows.action(1)();
    rows.action(3)();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(quits, 1);
    EXPECT_FALSE(rows.action(2)) << "a separator does nothing";
}

} // namespace
} // namespace tarvo::desktop
