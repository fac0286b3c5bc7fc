#include "platform/desktop/hot_key/desktop_hot_keys.h"

#include <gmock/gmock.h>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DesktopHotKeysTest : public testing::Test {
protected:
    struct Binding : HotKeyBinding {
        explicit Binding(DesktopHotKeysTest& owner) : test(owner) { ++test.bound; }
        ~Binding() override { --test.bound; }
        HotKeyState state() const override { return test.bindingState; }
        DesktopHotKeysTest& test;
    };

    HotKeyState bindingState = HotKeyState::active;
    int bound = 0;
    HotKeyEvents events;
    std::vector<HotKeyID> heard;
    DesktopHotKeys hotKeys{[this](const KeyCombination&, HotKeyEvents given) {
        events = std::move(given);
        return std::make_unique<Binding>(*this);
    }};
};

TEST_F(DesktopHotKeysTest, HandAPressToTheHandlerWithItsIdentifier) {
    hotKeys.installPressedHandler([&](const HotKeyID& id) { heard.push_back(id); });
    ASSERT_TRUE(hotKeys.registerHotKey(46, 768, {7, 1}));
    EXPECT_THAT(heard, IsEmpty());
    events.pressed();
    EXPECT_THAT(heard, ElementsAre(HotKeyID{7, 1}));
}

TEST_F(DesktopHotKeysTest, RunOnlyTheHandlerThatWasInstalledLast) {
    hotKeys.installPressedHandler([&](const HotKeyID&) { heard.push_back({1, 1}); });
    const auto newer = hotKeys.installPressedHandler([&](const HotKeyID&) { heard.push_back({2, 2}); });
    hotKeys.registerHotKey(46, 768, {});
    events.pressed();
    hotKeys.removeHandler(newer);
    events.pressed();
    EXPECT_THAT(heard, ElementsAre(HotKeyID{2, 2}, HotKeyID{1, 1}));
}

TEST_F(DesktopHotKeysTest, LetAHandlerRemoveItself) {
    HotKeyHandlerRef handler = 0;
    handler = hotKeys.installPressedHandler([&](const HotKeyID& id) {
        hotKeys.removeHandler(handler);
        heard.push_back(id);
    });
    hotKeys.registerHotKey(46, 768, {7, 1});
    events.pressed();
    events.pressed();
    EXPECT_THAT(heard, ElementsAre(HotKeyID{7, 1}));
}

TEST_F(DesktopHotKeysTest, GiveTheKeysBackWhenUnregistered) {
    const auto hotKey = hotKeys.registerHotKey(46, 768, {});
    EXPECT_EQ(bound, 1);
    hotKeys.unregisterHotKey(*hotKey);
    EXPECT_EQ(bound, 0);
    EXPECT_EQ(hotKeys.state(), HotKeyState::unavailable);
}

TEST_F(DesktopHotKeysTest, TellThatTheKeysAreTaken) {
    int changes = 0;
    hotKeys.onStateChanged = [&] { ++changes; };
    bindingState = HotKeyState::taken;
    EXPECT_TRUE(hotKeys.registerHotKey(46, 768, {}));
    EXPECT_EQ(hotKeys.state(), HotKeyState::taken);
    EXPECT_EQ(changes, 1);
    bindingState = HotKeyState::active;
    events.stateChanged(HotKeyState::active);
    EXPECT_EQ(hotKeys.state(), HotKeyState::active);
    EXPECT_EQ(changes, 2);
}

TEST_F(DesktopHotKeysTest, HaveNoHotKeyWithoutTheKeyOrTheMeans) {
    EXPECT_FALSE(hotKeys.registerHotKey(1, 768, {}));
    EXPECT_EQ(bound, 0);
    DesktopHotKeys without({});
    EXPECT_FALSE(without.registerHotKey(46, 768, {}));
    DesktopHotKeys refused([](const KeyCombination&, HotKeyEvents) { return nullptr; });
    EXPECT_FALSE(refused.registerHotKey(46, 768, {}));
    EXPECT_EQ(refused.state(), HotKeyState::unavailable);
}

} // namespace
} // namespace tarvo::desktop
