#include "json_writer.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <limits>

namespace tarvo::status {
namespace {

std::string jsonString(std::string_view text) {
    std::string out;
    appendJSONString(out, text);
    return out;
}
TEST(JSONWriter, SeparatesMembersAndElements) {
    std::string out;
    JSONWriter json(out);
    json.beginObject();
    json.key("a");
    json.value(std::int64_t{-1});
    json.key("list");
    json.beginArray();
    json.value(true);
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.value(std::string_view("x"));
    json.endArray();
    json.key("b");
    json.value(1.5);
    json.endObject();
    EXPECT_EQ(out, R"({"a":-1,"list":[true,{},[],"x"],"b":1.5})");
}

TEST(JSONWriter, WritesBehindWhatIsThere) {
    std::string out = "before ";
    JSONWriter(out).value(false);
    EXPECT_EQ(out, "before false");
}

TEST(JSONWriter, WritesNumbersThatReadBackTheSame) {
    for (const double number : {0.0, -0.5, 1.0 / 3, 1e300, 5e-324, 123456789012345680.0}) {
        std::string out;
        JSONWriter(out).value(number);
        EXPECT_EQ(nlohmann::json::parse(out).get<double>(), number) << out;
    }
    std::string out;
    JSONWriter(out).value(std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(out, "18446744073709551615");
}

TEST(JSONWriter, WritesNullForWhatIsNotANumber) {
    for (const double number :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -HUGE_VAL}) {
        std::string out;
        JSONWriter(out).value(number);
        EXPECT_EQ(out, "null");
    }
}

TEST(JSONWriter, EscapesWhatJSONAsksFor) {
    EXPECT_EQ(jsonString("a\"b\\c\nd\te\x01\x1F\x7F/"), "\"a\\\"b\\\\c\\nd\\te\\u0001\\u001f\x7F/\"");
    EXPECT_EQ(jsonString(std::string_view("\0", 1)), "\"\\u0000\"");
    EXPECT_EQ(jsonString(""), "\"\"");
}

TEST(JSONWriter, KeepsWellFormedText) {
    for (const auto* text : {"Paměť", "°C · ↓", "🔋", "\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"}) {
        EXPECT_EQ(jsonString(text), std::string("\"") + text + "\"");
    }
}

TEST(JSONWriter, ReplacesMalformedBytes) {
    EXPECT_EQ(jsonString("a\xFFz"), "\"a\uFFFDz\"");
    EXPECT_EQ(jsonString("\x80"), "\"\uFFFD\"");
    EXPECT_EQ(jsonString("\xC0\xAF"), "\"\uFFFD\uFFFD\"");                     // overlong
    EXPECT_EQ(jsonString("\xED\xA0\x80"), "\"\uFFFD\uFFFD\uFFFD\"");           // surrogate
    EXPECT_EQ(jsonString("\xF4\x90\x80\x80"), "\"\uFFFD\uFFFD\uFFFD\uFFFD\""); // above the last code point
    EXPECT_EQ(jsonString("\xE2\x82"), "\"\uFFFD\uFFFD\"");                     // cut short
    EXPECT_EQ(jsonString("\xF0\x9F\x94\""), "\"\uFFFD\uFFFD\uFFFD\\\"\"");
}

TEST(JSONWriter, NeverWritesTextThatAParserRefuses) {
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; ++second) {
            const std::string text{static_cast<char>(first), static_cast<char>(second), '\xBF', 'x'};
            EXPECT_TRUE(nlohmann::json::accept(jsonString(text))) << first << ' ' << second;
        }
    }
}

TEST(JSONWriter, WritesDatesInUTCToTheSecond) {
    std::string out;
    JSONWriter(out).value(WallTime(std::chrono::milliseconds(1'763'265'193'999)));
    EXPECT_EQ(out, "\"2025-11-16T03:53:13Z\"");
}

} // namespace
} // namespace tarvo::status
