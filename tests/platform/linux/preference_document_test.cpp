#include "platform/linux/preference_document.h"

#include <gmock/gmock.h>

#include <limits>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr WallTime date{std::chrono::seconds{1'763'265'193}};

PreferenceValue valueOf(std::string_view json) {
    const auto document = parsePreferences(R"({"k": )" + std::string(json) + "}");
    EXPECT_TRUE(document && document->values.contains("k")) << json;
    return document && document->values.contains("k") ? document->values.at("k") : PreferenceValue{};
}

TEST(PreferenceDocument, EachKindOfValueHasItsForm) {
    EXPECT_EQ(valueOf("true"), PreferenceValue(true));
    EXPECT_EQ(valueOf("2"), PreferenceValue(std::int64_t{2}));
    EXPECT_EQ(valueOf("-9223372036854775808"), PreferenceValue(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ(valueOf("2.0"), PreferenceValue(2.0));
    EXPECT_EQ(valueOf("1e3"), PreferenceValue(1000.0));
    EXPECT_EQ(valueOf(R"("2")"), PreferenceValue(std::string("2")));
    EXPECT_EQ(valueOf(R"(["a", "b"])"), PreferenceValue(std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(valueOf("[]"), PreferenceValue(std::vector<std::string>{}));
    EXPECT_EQ(valueOf(R"({"date": "2025-11-16T03:53:13Z"})"), PreferenceValue(date));
}

TEST(PreferenceDocument, ATextThatLooksLikeADateStaysAText) {
    EXPECT_EQ(valueOf(R"("2025-11-16T03:53:13Z")"), PreferenceValue(std::string("2025-11-16T03:53:13Z")));
}

TEST(PreferenceDocument, WhatIsWrittenIsReadAsTheSameKinds) {
    PreferenceDocument document;
    document.values = {{"flag", false},
                       {"whole", std::int64_t{2}},
                       {"float", 2.0},
                       {"third", 1.0 / 3},
                       {"text", std::string("Příliš žluťoučký \"kůň\"\n\x01")},
                       {"list", std::vector<std::string>{"", "b"}},
                       {"empty list", std::vector<std::string>{}},
                       {"date", date},
                       {"", std::string("no name")}};
    EXPECT_EQ(parsePreferences(formatPreferences(document)), document);
}

TEST(PreferenceDocument, IsWrittenAsReadableJSONWithKeysInOrder) {
    PreferenceDocument document;
    document.values = {{"refreshInterval", 2.0}, {"appLanguage", std::string("cs")}};
    EXPECT_EQ(formatPreferences(document),
              "{\n    \"appLanguage\": \"cs\",\n    \"refreshInterval\": 2.0\n}\n");
    EXPECT_EQ(formatPreferences({}), "{}\n");
}

TEST(PreferenceDocument, WhatIsNoneOfOurKindsIsCarriedAlong) {
    const auto document = parsePreferences(
        R"({"mixed": ["a", 1], "object": {"x": {"y": null}}, "nothing": null, "huge": 18446744073709551615,
            "bad date": {"date": "tomorrow"}, "more": {"date": "2025-11-16T03:53:13Z", "zone": 1}})");
    ASSERT_TRUE(document);
    EXPECT_THAT(document->values, IsEmpty());
    EXPECT_THAT(document->others, testing::UnorderedElementsAre(
                                      Pair("mixed", R"(["a",1])"), Pair("object", R"({"x":{"y":null}})"),
                                      Pair("nothing", "null"), Pair("huge", "18446744073709551615"),
                                      Pair("bad date", R"({"date":"tomorrow"})"),
                                      Pair("more", R"({"date":"2025-11-16T03:53:13Z","zone":1})")));
    EXPECT_EQ(parsePreferences(formatPreferences(*document)), document);
}

TEST(PreferenceDocument, ATextOfBlanksHoldsNothing) {
    EXPECT_EQ(parsePreferences(""), PreferenceDocument{});
    EXPECT_EQ(parsePreferences(" \n\t"), PreferenceDocument{});
}

TEST(PreferenceDocument, WhatIsNoJSONObjectIsAbsent) {
    for (const char* text : {"{", "{}}", "[]", "null", "\"text\"", "{\"a\": }", "{\"a\": 1,}", "{a: 1}",
                             "{\"a\": 1e999}", "{\"a\": NaN}", "{\"a\": \"\xff\"}",
                             "\x7f"
                             "ELF",
                             "{\"a\": 1} // note"}) {
        EXPECT_FALSE(parsePreferences(text)) << text;
    }
}

TEST(PreferenceDocument, ATruncatedFileIsAbsentWhereverItIsCut) {
    PreferenceDocument document;
    document.values = {{"list", std::vector<std::string>{"a"}}, {"date", date}, {"number", 1.5}};
    std::string text = formatPreferences(document);
    text.pop_back(); // without its last line feed it is still whole
    EXPECT_TRUE(parsePreferences(text));
    for (std::size_t length = 1; length < text.size(); ++length)
        EXPECT_FALSE(parsePreferences(text.substr(0, length)));
}

TEST(PreferenceDocument, DeepNestingIsAbsentInsteadOfExhaustingTheStack) {
    std::string deep = "{\"a\": ";
    deep += std::string(400'000, '[') + std::string(400'000, ']') + '}';
    EXPECT_FALSE(parsePreferences(deep));
    EXPECT_FALSE(parsePreferences(std::string(400'000, '{')));
}

TEST(PreferenceDocument, BracketsInATextAreNoNesting) {
    PreferenceDocument document;
    document.values = {{"text", std::string(100, '[') + "\"" + std::string(100, '{')}};
    EXPECT_EQ(parsePreferences(formatPreferences(document)), document);
}

TEST(PreferenceDocument, OfTwoEqualKeysTheLastCounts) {
    const auto document = parsePreferences(R"({"a": 1, "a": 2})");
    ASSERT_TRUE(document);
    EXPECT_THAT(document->values, ElementsAre(Pair("a", PreferenceValue(std::int64_t{2}))));
}

TEST(PreferenceDocument, NumbersThatAreNotFiniteAreLeftOut) {
    PreferenceDocument document;
    document.values = {{"inf", std::numeric_limits<double>::infinity()}, {"nan", std::nan("")}};
    EXPECT_EQ(formatPreferences(document), "{}\n");
}

TEST(PreferenceDocument, ATextThatIsNotUTF8IsWrittenWithItsFaultsReplaced) {
    PreferenceDocument document;
    document.values = {{"text", std::string("a\xff"
                                            "b")}};
    const auto read = parsePreferences(formatPreferences(document));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->values.at("text"), PreferenceValue(std::string("a\uFFFDb")));
}

} // namespace
} // namespace tarvo::linux_platform
