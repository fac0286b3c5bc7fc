#include "menubar/hot_key_manager.h"

#include "support/recording_hot_keys.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

TEST(FourCharCode, PutsTheFirstLetterIntoTheMostSignificantByte) {
    EXPECT_EQ(fourCharCode("SMhk"), 0x534D686BU);
    EXPECT_EQ(fourCharCode("A"), 0x41U);
    EXPECT_EQ(fourCharCode(""), 0U);
}

TEST(FourCharCode, KeepsTheLastFourBytesOfALongerText) {
    EXPECT_EQ(fourCharCode("xxSMhk"), 0x534D686BU);
}

TEST(FourCharCode, TakesBytesOfUTF8AsTheyAre) {
    EXPECT_EQ(fourCharCode("\u00e9"), 0xC3A9U);
}

class HotKeyManagerTest : public testing::Test {
protected:
    RecordingHotKeys hotKeys;
    int presses = 0;
    std::function<void()> count = [this] { ++presses; };
};

TEST_F(HotKeyManagerTest, RegistersNothingByItself) {
    const HotKeyManager manager(hotKeys);
    EXPECT_THAT(hotKeys.keys, IsEmpty());
    EXPECT_THAT(hotKeys.handlers, IsEmpty());
}

TEST_F(HotKeyManagerTest, RegistersTheKeyUnderItsOwnIdentifier) {
    HotKeyManager manager(hotKeys);
    manager.registerHotKey(46, 768, count);
    ASSERT_THAT(hotKeys.keys, SizeIs(1));
    EXPECT_EQ(hotKeys.keys.begin()->second, (RecordingHotKeys::Registered{46, 768, {0x534D686B, 1}}));
}

TEST_F(HotKeyManagerTest, RunsTheHandlerAtEachPress) {
    HotKeyManager manager(hotKeys);
    manager.registerHotKey(46, 768, count);
    EXPECT_EQ(presses, 0);
    hotKeys.press();
    hotKeys.press();
    EXPECT_EQ(presses, 2);
}

TEST_F(HotKeyManagerTest, DoesNothingAtAPressWithoutAHandler) {
    HotKeyManager manager(hotKeys);
    manager.registerHotKey(46, 768, nullptr);
    hotKeys.press();
    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyManagerTest, DoesNotCompareWhichKeyItWas) {
    HotKeyManager manager(hotKeys);
    manager.registerHotKey(46, 768, count);
    hotKeys.handlers.begin()->second({1, 2});
    EXPECT_EQ(presses, 1);
}

TEST_F(HotKeyManagerTest, LeavesNothingRegisteredBehind) {
    auto manager = std::make_unique<HotKeyManager>(hotKeys);
    manager->registerHotKey(46, 768, count);
    manager.reset();
    EXPECT_THAT(hotKeys.keys, IsEmpty());
    EXPECT_THAT(hotKeys.handlers, IsEmpty());
    hotKeys.press();
    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyManagerTest, APressThatIsOnItsWayWhenTheManagerGoesRunsNothing) {
    auto manager = std::make_unique<HotKeyManager>(hotKeys);
    manager->registerHotKey(46, 768, count);
    const auto onItsWay = hotKeys.handlers.begin()->second;
    manager.reset();
    onItsWay({});
    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyManagerTest, RegisteredAgainAddsAHotKeyAndRunsTheNewerHandlerOnly) {
    HotKeyManager manager(hotKeys);
    manager.registerHotKey(46, 768, [] { ADD_FAILURE() << "the older handler"; });
    manager.registerHotKey(46, 256, count);
    EXPECT_THAT(hotKeys.keys, SizeIs(2));
    EXPECT_THAT(hotKeys.handlers, SizeIs(2));
    hotKeys.press();
    EXPECT_EQ(presses, 1);
    hotKeys.handlers.begin()->second({});
    EXPECT_EQ(presses, 1) << "what was installed first has lost its handler";
}

TEST_F(HotKeyManagerTest, GoesOnWhereThereIsNoSuchKey) {
    hotKeys.knowsTheKey = false;
    HotKeyManager manager(hotKeys);
    manager.registerHotKey(46, 768, count);
    EXPECT_THAT(hotKeys.keys, IsEmpty());
    EXPECT_THAT(hotKeys.handlers, SizeIs(1));
}

} // namespace
} // namespace tarvo
