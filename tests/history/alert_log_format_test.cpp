#include "history/alert_log_format.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using std::chrono::seconds;
using testing::IsEmpty;
using testing::Optional;

constexpr WallTime moment{seconds{1'794'801'192}}; // 2026-11-16T03:53:12Z

const UUID someID = UUID::parse("01234567-89AB-4CDE-8F01-23456789ABCD").value();

AlertLogEntry entry(std::string title, std::string body) {
    return {someID, moment, std::move(title), std::move(body)};
}

TEST(AlertLogFormat, WritesCompactObjectsInOrder) {
    EXPECT_THAT(
        encodeAlertLog({entry("High CPU Usage", "a"), entry("Málo místa na disku", "b")}),
        Optional(std::string(
            R"([{"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":"High CPU Usage","body":"a"},)"
            R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":"Málo místa na disku","body":"b"}])")));
    EXPECT_THAT(encodeAlertLog({}), Optional(std::string("[]")));
}

TEST(AlertLogFormat, ReadsBackEveryText) {
    const std::vector<AlertLogEntry> entries{
        entry("quote \" backslash \\ slash /", "line\nfeed\ttab\r\b\f"),
        entry(std::string("nul \0 and \x1f and \x7f", 18), "Zbývá jen 9.5 GB volného místa 🔋"),
        entry("", "")};
    const auto json = encodeAlertLog(entries);
    ASSERT_TRUE(json);
    EXPECT_THAT(parseAlertLog(*json), Optional(entries));
}

TEST(AlertLogFormat, RefusesToWriteWhatIsNotUTF8) {
    EXPECT_FALSE(encodeAlertLog({entry("fine", "b\xFFroken")}));
    EXPECT_FALSE(encodeAlertLog({entry("\xC3", "fine")}));
}

TEST(AlertLogFormat, AcceptsAnyOrderOfKeysEitherCaseOfTheIdentifierAndEscapes) {
    EXPECT_THAT(parseAlertLog(R"([ {"body":"\u00e1\/\ud83d\udd0b", "more": 1, "title":"T",
                                    "id":"01234567-89ab-4cde-8f01-23456789abcd",
                                    "date":"2026-11-16T03:53:12Z"} ])"),
                Optional(std::vector{entry("T", "á/🔋")}));
    EXPECT_THAT(parseAlertLog("[]"), Optional(IsEmpty()));
}

TEST(AlertLogFormat, RefusesTheWholeFileForOneMismatch) {
    const std::string good =
        R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":"t","body":"b"})";
    ASSERT_TRUE(parseAlertLog("[" + good + "," + good + "]"));
    for (
        const auto* bad :
        {R"({"date":"2026-11-16T03:53:12Z","title":"t","body":"b"})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","title":"t","body":"b"})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","body":"b"})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":"t"})",
         R"({"id":"0123456789AB4CDE8F0123456789ABCD","date":"2026-11-16T03:53:12Z","title":"t","body":"b"})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12.0Z","title":"t","body":"b"})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":null,"body":"b"})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":"t","body":1})",
         R"({"id":"01234567-89AB-4CDE-8F01-23456789ABCD","date":"2026-11-16T03:53:12Z","title":"\ud800","body":"b"})",
         "\"text\"", "[]", "{}"}) {
        EXPECT_FALSE(parseAlertLog("[" + good + "," + bad + "]")) << bad;
    }
    EXPECT_FALSE(parseAlertLog(good));
    EXPECT_FALSE(parseAlertLog(""));
    EXPECT_FALSE(parseAlertLog("[" + good));
    EXPECT_FALSE(parseAlertLog("[" + good + "]]"));
}

} // namespace
} // namespace tarvo
