#include "menubar/app_delegate_fixture.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using testing::ElementsAre;

class ContextMenu : public AppDelegateTest {
protected:
    static std::vector<std::string> titles(const Menu& menu) {
        std::vector<std::string> result;
        for (const auto& row : menu)
            result.push_back(row.title);
        return result;
    }
};

TEST_F(ContextMenu, OpensOnARightClickUnderTheClickedItem) {
    useModularLayout();
    launch();
    bar.button(1).click(StatusClick::right);
    EXPECT_TRUE(bar.button(0).openedMenus.empty());
    ASSERT_EQ(bar.button(1).openedMenus.size(), 1u);
    EXPECT_THAT(titles(bar.button(1).openedMenus[0]), ElementsAre("Open Detail Window…", "", "Quit"));
    EXPECT_EQ(bar.button(1).openedMenus[0][0].keyEquivalent, "");
    EXPECT_EQ(bar.button(1).openedMenus[0][2].keyEquivalent, "q");
    EXPECT_FALSE(popover().isShown());
}

TEST_F(ContextMenu, SpeaksCzech) {
    launch();
    localization.setLanguage(AppLanguage::cs);
    bar.button(0).click(StatusClick::right);
    EXPECT_THAT(titles(bar.button(0).openedMenus.at(0)),
                ElementsAre("Otevřít detailní přehled…", "", "Ukončit"));
}

TEST_F(ContextMenu, IsDetachedAgainSoThatALeftClickOpensThePopover) {
    launch();
    bar.button(0).click(StatusClick::right);
    EXPECT_EQ(bar.button(0).menu, std::nullopt);
    bar.button(0).click(StatusClick::left);
    EXPECT_TRUE(popover().isShown());
    EXPECT_EQ(bar.button(0).openedMenus.size(), 1u);
}

TEST_F(ContextMenu, OpensTheDetailWindowAndQuits) {
    launch();
    bar.button(0).click(StatusClick::right);
    const auto menu = bar.button(0).openedMenus.at(0);
    menu[0].action();
    EXPECT_EQ(application.windows.size(), 1u);
    menu[2].action();
    EXPECT_EQ(application.log.back(), "terminate");
    EXPECT_FALSE(menu[1].action) << "the separator does nothing";
}

TEST_F(ContextMenu, IsHandedToHostsThatOpenItThemselves) {
    useModularLayout();
    launch();
    localization.setLanguage(AppLanguage::cs);
    for (std::size_t i = 0; i < bar.size(); ++i) {
        EXPECT_THAT(titles(bar.menuFromSource(i)), ElementsAre("Otevřít detailní přehled…", "", "Ukončit"));
    }
}

TEST_F(ContextMenu, KeepsItsItemWhileTheItemsAreRebuiltUnderIt) {
    launch();
    auto& clicked = bar.button(0);
    clicked.whileMenuIsOpen = [&] {
        announceStyleChange();
        EXPECT_EQ(bar.size(), 2u) << "the item of the open menu and the new one";
    };
    clicked.click(StatusClick::right);
    EXPECT_EQ(bar.size(), 1u);
    EXPECT_EQ(bar.button(0).title, "CPU 12% · RAM 48%");
}

} // namespace
} // namespace tarvo
