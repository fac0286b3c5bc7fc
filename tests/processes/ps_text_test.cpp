#include "processes/ps_text.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(ProcessStatusText, AnApplicationPathWithBlanksStaysWhole) {
    EXPECT_THAT(
        parseProcessStatusText("  123  45.6  1.2 /Applications/Some App.app/Contents/MacOS/Some App\n", 5),
        ElementsAre(ProcInfo{123, "Some App", 45.6, 1.2}));
}

TEST(ProcessStatusText, ANameWithoutASlashIsKept) {
    EXPECT_THAT(parseProcessStatusText("7 0.0 0.0 kthreadd", 5), ElementsAre(ProcInfo{7, "kthreadd", 0, 0}));
}

TEST(ProcessStatusText, RunsOfSpacesInsideACommandAreKept) {
    EXPECT_THAT(parseProcessStatusText("7   1.5    2.5    /opt/a  b", 5),
                ElementsAre(ProcInfo{7, "a  b", 1.5, 2.5}));
}

TEST(ProcessStatusText, TabsEndLinesButDoNotPartFields) {
    EXPECT_THAT(parseProcessStatusText("\t 7 1.5 2.5 /bin/a \t\n8\t1 1 /bin/b\n", 5),
                ElementsAre(ProcInfo{7, "a", 1.5, 2.5}));
}

TEST(ProcessStatusText, LinesThatDoNotParseAreSkipped) {
    const auto text = "1 2.0 3.0\n"              // three fields
                      "x 2.0 3.0 /bin/pid\n"     // no pid
                      "1 , 3.0 /bin/cpu\n"       // no share
                      "1 2.0 3,0 /bin/memory\n"  // another locale's number
                      "99999999999 1 1 /bin/a\n" // out of range
                      "1.0 1 1 /bin/a\n"         // not a whole number
                      "1 nan 1 /bin/a\n"
                      "1 1 inf /bin/a\n"
                      "   \t \n"
                      "\n"
                      "4 2.0 3.0 /bin/good\n";
    EXPECT_THAT(parseProcessStatusText(text, 50), ElementsAre(ProcInfo{4, "good", 2, 3}));
}

TEST(ProcessStatusText, ReadingStopsAtTheLimit) {
    std::string text;
    for (int pid = 1; pid <= 300; ++pid)
        text += fmt::format("{} {}.5 1.0 /bin/p{}\nnonsense\n", pid, 300 - pid, pid);
    const auto processes = parseProcessStatusText(text, 5);
    ASSERT_THAT(processes, SizeIs(5));
    EXPECT_EQ(processes.front(), (ProcInfo{1, "p1", 299.5, 1}));
    EXPECT_EQ(processes.back(), (ProcInfo{5, "p5", 295.5, 1}));
    EXPECT_THAT(parseProcessStatusText(text, 1000), SizeIs(300));
}

TEST(ProcessStatusText, TheLimitIsLookedAtAfterTheRecord) {
    const auto text = "nonsense\n1 2 3 /bin/a\n2 2 3 /bin/b\n";
    for (const std::int64_t limit :
         {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1}, std::int64_t{0}})
        EXPECT_THAT(parseProcessStatusText(text, limit), SizeIs(1)) << limit;
    EXPECT_THAT(parseProcessStatusText("nonsense\n", 0), IsEmpty());
}

TEST(ProcessStatusText, TextThatIsNotUTF8GivesNothing) {
    EXPECT_THAT(parseProcessStatusText("1 2 3 /bin/a\n2 2 3 /bin/\xFF\n", 5), IsEmpty());
    EXPECT_THAT(parseProcessStatusText("1 2 3 /bin/čísla\n", 5), ElementsAre(ProcInfo{1, "čísla", 2, 3}));
    EXPECT_THAT(parseProcessStatusText("", 5), IsEmpty());
}

} // namespace
} // namespace tarvo
