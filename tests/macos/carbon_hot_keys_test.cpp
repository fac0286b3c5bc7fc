#include "platform/macos/carbon_hot_keys.h"

#include "macos/mac_test.h"
#include "menubar/hot_key_manager.h"

#include <optional>

namespace tarvo {
namespace {

using namespace fakes;
using macos_platform::CarbonHotKeys;
using testing::ElementsAre;

constexpr std::uint32_t keyM = 46;
constexpr std::uint32_t commandShift = 768;

class CarbonHotKeysTest : public MacTest {
protected:
    std::optional<CarbonHotKeys> hotKeys{std::in_place};
    std::vector<HotKeyID> presses;
    std::function<void(const HotKeyID&)> note = [this](const HotKeyID& id) { presses.push_back(id); };
};

TEST_F(CarbonHotKeysTest, APressRunsTheHandlerWithTheKeysIdentity) {
    const HotKeyID id{0x534D686B, 1};
    hotKeys->installPressedHandler(note);
    ASSERT_TRUE(hotKeys->registerHotKey(keyM, commandShift, id).has_value());
    EXPECT_THAT(carbon().everRegistered, ElementsAre(RegisteredKey{keyM, commandShift, 0x534D686B, 1}));
    EXPECT_TRUE(pressKeys(keyM, commandShift));
    EXPECT_THAT(presses, ElementsAre(id));
    hotKeys.reset();
}

TEST_F(CarbonHotKeysTest, WhatIsRemovedIsNoLongerPressed) {
    const auto handler = hotKeys->installPressedHandler(note);
    const auto key = hotKeys->registerHotKey(keyM, commandShift, {});
    ASSERT_TRUE(key.has_value());
    hotKeys->unregisterHotKey(*key);
    EXPECT_FALSE(pressKeys(keyM, commandShift));
    hotKeys->removeHandler(handler);
    EXPECT_THAT(ledger().held, testing::IsEmpty());
}

TEST_F(CarbonHotKeysTest, TheEndRemovesWhatIsLeft) {
    hotKeys->installPressedHandler(note);
    hotKeys->installPressedHandler(note);
    hotKeys->registerHotKey(keyM, commandShift, {});
    hotKeys->registerHotKey(keyM + 1, commandShift, {});
    hotKeys.reset();
    EXPECT_EQ(taken("event handler"), 2);
    EXPECT_EQ(taken("hot key"), 2);
    EXPECT_THAT(ledger().held, testing::IsEmpty());
}

TEST_F(CarbonHotKeysTest, AKeyThatTheSystemRefusesIsAbsent) {
    carbon().keysAreTaken = true;
    EXPECT_EQ(hotKeys->registerHotKey(keyM, commandShift, {}), std::nullopt);
}

TEST_F(CarbonHotKeysTest, AHandlerMayRemoveItself) {
    std::optional<HotKeyHandlerRef> handler;
    handler =
        hotKeys->installPressedHandler([this, &handler, kept = std::string(100, 'x')](const HotKeyID& id) {
            hotKeys->removeHandler(*handler);
            presses.push_back(id);
            EXPECT_EQ(kept.size(), 100U);
        });
    hotKeys->registerHotKey(keyM, commandShift, {7, 8});
    EXPECT_TRUE(pressKeys(keyM, commandShift));
    EXPECT_THAT(presses, ElementsAre(HotKeyID{7, 8}));
}

TEST_F(CarbonHotKeysTest, ACallWithoutEventOrUserDataDoesNothing) {
    hotKeys->installPressedHandler(note);
    EXPECT_EQ(callHandler(false, true), 0);
    EXPECT_EQ(callHandler(true, false), 0);
    EXPECT_TRUE(presses.empty());
}

TEST_F(CarbonHotKeysTest, TheHotKeyManagerWorksOnThem) {
    int pressed = 0;
    {
        HotKeyManager manager(*hotKeys);
        manager.registerHotKey(keyM, commandShift, [&] { ++pressed; });
        EXPECT_TRUE(pressKeys(keyM, commandShift));
        EXPECT_THAT(carbon().everRegistered, ElementsAre(RegisteredKey{46, 768, 0x534D686B, 1}));
    }
    EXPECT_EQ(pressed, 1);
    EXPECT_FALSE(pressKeys(keyM, commandShift));
    EXPECT_THAT(ledger().held, testing::IsEmpty());
}

} // namespace
} // namespace tarvo
