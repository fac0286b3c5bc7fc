#include "processes/text_fields.h"

#include "processes/command_name.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvo {
namespace {

using testing::ElementsAre;

TEST(TextFields, EmptyLinesAreDropped) {
    std::vector<std::string> lines;
    forEachLine("\n\na\n\n b\nc", [&](std::string_view line) {
        lines.emplace_back(line);
        return true;
    });
    EXPECT_THAT(lines, ElementsAre("a", " b", "c"));
}

TEST(TextFields, TheWalkOverLinesStopsWhenTold) {
    int lines = 0;
    forEachLine("a\nb\nc\n", [&](std::string_view) { return ++lines < 2; });
    EXPECT_EQ(lines, 2);
}

TEST(TextFields, FieldsArePartedByRunsOfSpaces) {
    std::string_view text = "  a   b\tc ";
    EXPECT_EQ(takeField(text), "a");
    EXPECT_EQ(takeField(text), "b\tc");
    EXPECT_EQ(takeField(text), "");
    EXPECT_EQ(takeField(text), "");
}

TEST(TextFields, BlanksAreTrimmedAtBothEnds) {
    EXPECT_EQ(trimBlanks(" \t a b \t"), "a b");
    EXPECT_EQ(trimBlanks(" \t "), "");
}

TEST(TextFields, TheLastPathComponentFollowsTheLastSlash) {
    EXPECT_EQ(lastPathComponent("/usr/bin/env"), "env");
    EXPECT_EQ(lastPathComponent("bash"), "bash");
    EXPECT_EQ(lastPathComponent("/usr/"), "");
}

} // namespace
} // namespace tarvo
