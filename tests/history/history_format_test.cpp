#include "history/history_format.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using std::chrono::seconds;
using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

constexpr WallTime moment{seconds{1'794'801'192}}; // 2026-11-16T03:53:12Z

std::string encoded(const HistorySample& sample) {
    std::string json;
    return appendHistorySample(json, sample) ? json : "refused";
}

std::optional<HistorySample> decoded(const std::string& object) {
    const auto samples = parseHistory("[" + object + "]");
    return samples && samples->size() == 1 ? std::optional(samples->front()) : std::nullopt;
}

TEST(HistoryFormat, WritesOneCompactObjectASample) {
    EXPECT_EQ(encoded({moment, 12.5, 48.25, 51}),
              R"({"date":"2026-11-16T03:53:12Z","cpu":12.5,"mem":48.25,"cpuTemp":51})");
}

TEST(HistoryFormat, LeavesOutTheKeyOfAnAbsentTemperature) {
    EXPECT_EQ(encoded({moment, 0, 100, std::nullopt}),
              R"({"date":"2026-11-16T03:53:12Z","cpu":0,"mem":100})");
}

TEST(HistoryFormat, ReadsBackEveryNumberExactly) {
    for (const double value :
         {0.1, 1.0 / 3, 23.076923076923077, 1e-300, 5e-324, 1.7976931348623157e308, -0.0}) {
        const HistorySample sample{moment, value, value, value};
        EXPECT_THAT(decoded(encoded(sample)), Optional(sample)) << value;
    }
}

TEST(HistoryFormat, RefusesToWriteANumberThatIsNotFinite) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(encoded({moment, nan, 1, 1}), "refused");
    EXPECT_EQ(encoded({moment, 1, infinity, 1}), "refused");
    EXPECT_EQ(encoded({moment, 1, 1, -infinity}), "refused");
    std::string untouched = "before";
    EXPECT_FALSE(appendHistorySample(untouched, {moment, nan, 1, 1}));
    EXPECT_EQ(untouched, "before");
}

TEST(HistoryFormat, AcceptsAnyOrderOfKeysWhiteSpaceAndKeysItDoesNotKnow) {
    EXPECT_THAT(decoded(R"( { "later": [{"x": null}], "mem": 2, "cpuTemp": 3.5,
                             "cpu" : 1e1, "date":"2026-11-16T03:53:12Z" } )"),
                Optional(HistorySample{moment, 10, 2, 3.5}));
}

TEST(HistoryFormat, TakesANullTemperatureAsAbsent) {
    EXPECT_THAT(decoded(R"({"date":"2026-11-16T03:53:12Z","cpu":1,"mem":2,"cpuTemp":null})"),
                Optional(HistorySample{moment, 1, 2, std::nullopt}));
}

TEST(HistoryFormat, ReadsAnEmptyArray) {
    EXPECT_THAT(parseHistory("[]"), Optional(IsEmpty()));
}

TEST(HistoryFormat, KeepsTheOrderOfTheFile) {
    const auto samples = parseHistory(R"([{"date":"2026-11-16T03:53:12Z","cpu":1,"mem":0},)"
                                      R"({"date":"2020-01-01T00:00:00Z","cpu":2,"mem":0}])");
    ASSERT_TRUE(samples);
    EXPECT_THAT(*samples,
                ElementsAre(testing::Field(&HistorySample::cpu, 1), testing::Field(&HistorySample::cpu, 2)));
}

TEST(HistoryFormat, RefusesTheWholeFileForOneMismatch) {
    const std::string good = R"({"date":"2026-11-16T03:53:12Z","cpu":1,"mem":2})";
    for (const auto* bad :
         {R"({"date":"2026-11-16T03:53:12Z","mem":2})", R"({"date":"2026-11-16T03:53:12Z","cpu":1})",
          R"({"cpu":1,"mem":2})", R"({"date":"2026-11-16T03:53:12Z","cpu":"1","mem":2})",
          R"({"date":"2026-11-16T03:53:12Z","cpu":null,"mem":2})",
          R"({"date":"2026-11-16T03:53:12Z","cpu":1,"mem":true})",
          R"({"date":"2026-11-16T03:53:12Z","cpu":1,"mem":2,"cpuTemp":"3"})",
          R"({"date":1794801192,"cpu":1,"mem":2})", R"({"date":"2026-11-16T03:53:12.5Z","cpu":1,"mem":2})",
          R"({"date":"yesterday","cpu":1,"mem":2})", "[]", "1", "null",
          R"({"date":"2026-11-16T03:53:12Z","cpu":NaN,"mem":2})",
          R"({"date":"2026-11-16T03:53:12Z","cpu":1,"mem":2,})"}) {
        EXPECT_FALSE(parseHistory("[" + good + "," + bad + "]")) << bad;
    }
}

TEST(HistoryFormat, RefusesWhatIsNoWholeArray) {
    const std::string array = R"([{"date":"2026-11-16T03:53:12Z","cpu":1,"mem":2}])";
    ASSERT_TRUE(parseHistory(array));
    for (std::size_t length = 0; length < array.size(); ++length) {
        EXPECT_FALSE(parseHistory(array.substr(0, length))) << length;
    }
    EXPECT_FALSE(parseHistory(array + "x"));
    EXPECT_FALSE(parseHistory(array + array));
    EXPECT_FALSE(parseHistory(array.substr(1, array.size() - 2)));
    EXPECT_FALSE(parseHistory("\xEF\xBB\xBF" + array));
    EXPECT_FALSE(parseHistory(std::string("[\0]", 3)));
}

} // namespace
} // namespace tarvo
