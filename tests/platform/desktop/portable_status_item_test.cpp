#include "platform/desktop/portable_status_item.h"

#include "support/recording_status_bar_host.h"

#include <gmock/gmock.h>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;

class PortableStatusItemTest : public testing::Test {
protected:
    RecordingStatusBarHost::Log log;
    RecordingStatusBarHost host{"bar", log};
    PortableStatusItem item;
};

TEST_F(PortableStatusItemTest, KeepsItsContentBeforeItHasAHost) {
    item.setTitle("CPU 23%");
    item.moveTo(host);
    EXPECT_THAT(log, ElementsAre("bar add [CPU 23%]"));
}

TEST_F(PortableStatusItemTest, TellsItsHostOfAChangeOnlyWhenSomethingDiffers) {
    item.moveTo(host);
    item.setTitle("23%");
    item.setTitle("23%");
    item.setToolTip("Processor");
    item.setToolTip("Processor");
    item.setContentTint(SystemColor::red);
    item.setContentTint(SystemColor::red);
    EXPECT_THAT(log,
                ElementsAre("bar add []", "bar face [23%]", "bar tip Processor [23%]", "bar face [23%]"));
}

TEST_F(PortableStatusItemTest, AnAttributedTitleWithoutAttributesIsThePlainOne) {
    item.setTitle("23%");
    item.moveTo(host);
    item.setAttributedTitle({{{"23%", std::nullopt, std::nullopt}}, false, std::nullopt});
    EXPECT_THAT(log, ElementsAre("bar add [23%]"));
}

TEST_F(PortableStatusItemTest, AnEmptyTitleHasNoRuns) {
    item.setTitle("23%");
    item.setTitle("");
    EXPECT_TRUE(item.content().title.runs.empty());
}

TEST_F(PortableStatusItemTest, LeavesOneHostBeforeItAppearsInTheNext) {
    RecordingStatusBarHost tray("tray", log);
    item.setTitle("23%");
    item.moveTo(host);
    item.moveTo(tray);
    EXPECT_THAT(log, ElementsAre("bar add [23%]", "bar remove", "tray add [23%]"));
}

TEST_F(PortableStatusItemTest, AClickRunsTheActionWithItsButton) {
    std::vector<std::optional<StatusClick>> clicks;
    item.setAction([&](std::optional<StatusClick> click) { clicks.push_back(click); });
    item.clicked(StatusClick::right);
    item.performClick();
    EXPECT_THAT(clicks, ElementsAre(std::optional(StatusClick::right), std::nullopt));
}

TEST_F(PortableStatusItemTest, AClickOpensTheMenuWhileOneIsAttached) {
    int actions = 0;
    item.moveTo(host);
    item.setAction([&](std::optional<StatusClick>) { ++actions; });
    item.setMenu(Menu{{"Quit", "q", {}}});
    item.clicked(StatusClick::left);
    item.setMenu(std::nullopt);
    item.clicked(StatusClick::left);
    EXPECT_EQ(log.back(), "bar menu Quit");
    EXPECT_EQ(actions, 1);
}

TEST_F(PortableStatusItemTest, TheActionMayDestroyTheItem) {
    auto own = std::make_unique<PortableStatusItem>();
    own->setAction([&](std::optional<StatusClick>) { own.reset(); });
    own->clicked(StatusClick::left);
    EXPECT_EQ(own, nullptr);
}

TEST_F(PortableStatusItemTest, AsksForTheContextMenuEachTime) {
    int asked = 0;
    EXPECT_TRUE(item.contextMenu().empty());
    item.setMenuSource([&] {
        ++asked;
        return Menu{{"Quit", "q", {}}};
    });
    EXPECT_EQ(item.contextMenu().size(), 1U);
    EXPECT_EQ(item.contextMenu().size(), 1U);
    EXPECT_EQ(asked, 2);
}

TEST_F(PortableStatusItemTest, KnowsItsPlaceOnlyThroughItsHost) {
    EXPECT_FALSE(item.screenRect().has_value());
    item.moveTo(host);
    EXPECT_EQ(item.screenRect(), (Rect{1, 2, 3, 4}));
}

} // namespace
} // namespace tarvo::desktop
