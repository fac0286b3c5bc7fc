#include "processes/nettop_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<NetProcInfo> parse(const std::string& lines) {
    return parseNetworkStatisticsText(",bytes_in,bytes_out,\n" + lines);
}

TEST(NetworkStatisticsText, TheLabelLosesItsPid) {
    EXPECT_THAT(parse("Some.App.123,10,20,\nlaunchd.1,0,0,\n"),
                ElementsAre(NetProcInfo{"Some.App", 10, 20}, NetProcInfo{"launchd", 0, 0}));
}

TEST(NetworkStatisticsText, LinesThatDoNotParseAreSkipped) {
    EXPECT_THAT(parse("nodot,1,2,\n"
                      "a.1,1\n"
                      "a.1,,2,\n"
                      "a.1,1,,\n"
                      "a.1,-1,2,\n"
                      "a.1,1,2x,\n"
                      "a.1,18446744073709551616,2,\n"
                      ".1,7,8\n"),
                ElementsAre(NetProcInfo{"", 7, 8}));
}

TEST(NetworkStatisticsText, FurtherFieldsDoNotMatter) {
    EXPECT_THAT(parse("a.1,1,2\nb.2,3,4,5,6\n"), ElementsAre(NetProcInfo{"a", 1, 2}, NetProcInfo{"b", 3, 4}));
}

TEST(NetworkStatisticsText, TheFirstLineIsAlwaysTheHeader) {
    EXPECT_THAT(parseNetworkStatisticsText("a.1,1,2\n"), IsEmpty());
    EXPECT_THAT(parseNetworkStatisticsText("\n\na.1,1,2\n\nb.2,3,4\n"), ElementsAre(NetProcInfo{"b", 3, 4}));
    EXPECT_THAT(parseNetworkStatisticsText(""), IsEmpty());
}

TEST(NetworkStatisticsText, TextThatIsNotUTF8GivesNothing) {
    EXPECT_THAT(parse("a.1,1,2\n\x80.1,1,2\n"), IsEmpty());
}

} // namespace
} // namespace tarvo
