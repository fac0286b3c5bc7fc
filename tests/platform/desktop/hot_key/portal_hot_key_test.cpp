#include "platform/desktop/hot_key/portal_hot_key.h"

#include "../services/private_bus.h"
#include "support/qt_wait.h"
#include "support/scripted_portal.h"

#include <gmock/gmock.h>

#include <optional>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;

constexpr KeyCombination keys{.letter = U'm', .usualKeyCode = 58, .logo = true, .shift = true};

TEST(PortalTrigger, IsWrittenAsThePortalWantsIt) {
    EXPECT_EQ(portalTrigger(keys), "SHIFT+LOGO+m");
    EXPECT_EQ(portalTrigger({.letter = U'm', .alt = true, .control = true}), "CTRL+ALT+m");
    EXPECT_EQ(portalTrigger({.letter = U'm'}), "m");
}

class PortalHotKeyTest : public testing::Test {
protected:
    void SetUp() override {
        if (!bus.isRunning()) GTEST_SKIP() << "needs dbus-daemon";
        portal.emplace(bus.connect());
    }

    void bind() {
        hotKey.emplace(keys,
                       HotKeyEvents{.pressed = [this] { ++presses; },
                                    .stateChanged = [this](HotKeyState state) { states.push_back(state); }},
                       bus.connect(), PortalHotKey::Texts{"io.example.Program", "Open the panel"});
    }
    bool waitFor(HotKeyState state) {
        return waitUntil([&] { return hotKey->state() == state; });
    }

    PrivateBus bus;
    std::optional<ScriptedPortal> portal;
    int presses = 0;
    std::vector<HotKeyState> states;
    std::optional<PortalHotKey> hotKey;
};

TEST_F(PortalHotKeyTest, AsksForTheShortcutUnderTheProgramsName) {
    bind();
    EXPECT_EQ(hotKey->state(), HotKeyState::pending);
    ASSERT_TRUE(waitFor(HotKeyState::active));
    EXPECT_THAT(portal->calls, ElementsAre("Register", "Get", "CreateSession", "BindShortcuts"));
    EXPECT_EQ(portal->applicationID, "io.example.Program");
    EXPECT_EQ(portal->trigger, "SHIFT+LOGO+m");
    EXPECT_EQ(portal->description, "Open the panel");
    EXPECT_EQ(portal->boundIn, portal->session);
    EXPECT_THAT(states, ElementsAre(HotKeyState::active));
}

TEST_F(PortalHotKeyTest, HearsThePressesOfItsOwnSessionOnly) {
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::active));
    portal->press(portal->shortcut, "/another/session");
    portal->press("another-shortcut", portal->session);
    portal->press(portal->shortcut, portal->session);
    ASSERT_TRUE(waitUntil([&] { return presses > 0; }));
    EXPECT_EQ(presses, 1);
}

TEST_F(PortalHotKeyTest, TakesASessionThatIsSentAsAPath) {
    portal->sendsPath = true;
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::active));
    EXPECT_EQ(portal->boundIn, portal->session);
}

TEST_F(PortalHotKeyTest, IsUnavailableWhereThePortalHasNoShortcuts) {
    portal->hasShortcuts = false;
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::unavailable));
    EXPECT_THAT(portal->calls, ElementsAre("Register", "Get"));
}

TEST_F(PortalHotKeyTest, IsUnavailableWithoutAPortalUntilThereIsOne) {
    portal->vanish();
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::unavailable));
    portal->appear();
    ASSERT_TRUE(waitFor(HotKeyState::active));
}

TEST_F(PortalHotKeyTest, IsUnavailableWhenTheUserRefuses) {
    portal->bindResponse = 1;
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::unavailable));
    EXPECT_EQ(portal->calls.back(), "BindShortcuts");
}

TEST_F(PortalHotKeyTest, IsUnavailableWhenTheSessionIsRefused) {
    portal->sessionResponse = 2;
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::unavailable));
    EXPECT_EQ(portal->calls.back(), "CreateSession");
}

TEST_F(PortalHotKeyTest, ClosesItsSessionAtTheEnd) {
    bind();
    ASSERT_TRUE(waitFor(HotKeyState::active));
    hotKey.reset();
    EXPECT_TRUE(waitUntil([&] { return portal->calls.back() == "Close"; }));
}

} // namespace
} // namespace tarvo::desktop
