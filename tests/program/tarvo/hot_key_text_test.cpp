#include "linux/hot_key_text.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using testing::HasSubstr;
using State = desktop::HotKeyState;

TEST(HotKeyText, SaysWhatTheHotKeyDoes) {
    EXPECT_EQ(hotKeyText(State::active).en, "Super+Shift+M opens and closes the panel.");
    EXPECT_EQ(hotKeyText(State::active).cs, "Super+Shift+M otevře a zavře panel.");
}

TEST(HotKeyText, SaysWhyThereIsNone) {
    EXPECT_THAT(hotKeyText(State::taken).en, HasSubstr("used by another program"));
    EXPECT_THAT(hotKeyText(State::unavailable).en, HasSubstr("not available"));
    EXPECT_EQ(hotKeyText(State::pending).en, hotKeyText(State::unavailable).en);
}

} // namespace
} // namespace tarvo
