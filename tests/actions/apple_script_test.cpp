#include "actions/apple_script.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(ScriptErrorText, IsAbsentOnSuccess) {
    EXPECT_FALSE(scriptErrorText({}));
}

TEST(ScriptErrorText, NamesASourceThatDoesNotCompile) {
    EXPECT_EQ(scriptErrorText({.compiled = false, .failed = false, .message = {}, .errorDescription = {}}),
              "Neplatný AppleScript.");
}

TEST(ScriptErrorText, IsTheErrorsOwnMessage) {
    EXPECT_EQ(scriptErrorText(
                  {.compiled = true, .failed = true, .message = "Not allowed.", .errorDescription = "{}"}),
              "Not allowed.");
}

TEST(ScriptErrorText, DescribesAnErrorWithoutMessage) {
    EXPECT_EQ(
        scriptErrorText({.compiled = true, .failed = true, .message = {}, .errorDescription = "{code = 1}"}),
        "Neznámá chyba ({code = 1})).");
}

TEST(RunShortcutSource, EscapesDoubleQuotesAndNothingElse) {
    EXPECT_EQ(runShortcutSource(R"(Say "hi" \now)"),
              R"(tell application "Shortcuts Events" to run shortcut "Say \"hi\" \now")");
}

} // namespace
} // namespace tarvo
