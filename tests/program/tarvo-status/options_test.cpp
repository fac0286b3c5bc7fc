#include "options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tarvo::status {
namespace {

Arguments parse(std::vector<std::string_view> arguments) {
    return parseArguments(arguments);
}
Options options(std::vector<std::string_view> arguments) {
    const auto parsed = parse(std::move(arguments));
    EXPECT_TRUE(std::holds_alternative<Options>(parsed));
    return std::holds_alternative<Options>(parsed) ? std::get<Options>(parsed) : Options{};
}
std::string problem(std::vector<std::string_view> arguments) {
    const auto parsed = parse(std::move(arguments));
    const auto* error = std::get_if<UsageError>(&parsed);
    return error ? error->message : "";
}

TEST(Options, AreTextOfThisMachineAtThePreferredIntervalByDefault) {
    const auto parsed = options({});
    EXPECT_FALSE(parsed.once);
    EXPECT_FALSE(parsed.detail);
    EXPECT_EQ(parsed.interval, std::nullopt);
    EXPECT_EQ(parsed.format, OutputFormat::text);
    EXPECT_EQ(parsed.root, "");
}

TEST(Options, TakeEveryOptionInBothForms) {
    const Options wanted{.once = true,
                         .detail = true,
                         .interval = Seconds(0.5),
                         .format = OutputFormat::json,
                         .root = "/tmp/machine"};
    EXPECT_EQ(
        options({"--once", "--detail", "--interval", "0.5", "--format", "json", "--root", "/tmp/machine"}),
        wanted);
    EXPECT_EQ(options({"--root=/tmp/machine", "--format=json", "--interval=0.5", "--detail", "--once"}),
              wanted);
}

TEST(Options, KnowTheThreeFormats) {
    EXPECT_EQ(options({"--format", "text"}).format, OutputFormat::text);
    EXPECT_EQ(options({"--format", "json"}).format, OutputFormat::json);
    EXPECT_EQ(options({"--format", "waybar"}).format, OutputFormat::waybar);
    for (const auto* other : {"", "JSON", "xml", "text "}) {
        EXPECT_THAT(problem({"--format", other}), testing::HasSubstr("--format takes text, json or waybar"))
            << other;
    }
}

TEST(Options, TakeFractionsOfSecondsWithAPoint) {
    EXPECT_EQ(options({"--interval", "0.25"}).interval, Seconds(0.25));
    EXPECT_EQ(options({"--interval", "3"}).interval, Seconds(3));
    EXPECT_EQ(options({"--interval", "1e2"}).interval, Seconds(100));
}

TEST(Options, RefuseIntervalsThatAreNoPeriod) {
    for (const auto* text : {"0", "0.0", "-1", "-0", "", " 1", "1 ", "1s", "0,5", "0x10", "nan", "inf",
                             "-inf", "1e400", "1e-400", "100000", "0.001", "abc"}) {
        EXPECT_THAT(problem({"--interval", text}), testing::HasSubstr("--interval takes seconds")) << text;
    }
}

TEST(Options, RefuseAnOptionWithoutItsValue) {
    EXPECT_EQ(problem({"--interval"}), "--interval needs a value");
    EXPECT_EQ(problem({"--once", "--root"}), "--root needs a value");
    EXPECT_EQ(problem({"--root", ""}), "--root takes a folder");
    EXPECT_EQ(problem({"--root="}), "--root takes a folder");
}

TEST(Options, RefuseWhatTheyDoNotKnow) {
    for (const auto* argument :
         {"", "-", "--", "once", "--onc", "--once=1", "-x", "--detail=", "--verbose"}) {
        EXPECT_EQ(problem({argument}), std::string("unknown argument '") + argument + "'");
    }
}

TEST(Options, LetTheFirstOfHelpVersionAndErrorDecide) {
    EXPECT_EQ(parse({"--once", "--help", "--bad"}), Arguments(ShowHelp{}));
    EXPECT_EQ(parse({"-h"}), Arguments(ShowHelp{}));
    EXPECT_EQ(parse({"--version", "--help"}), Arguments(ShowVersion{}));
    EXPECT_EQ(problem({"--bad", "--help"}), "unknown argument '--bad'");
}

TEST(Options, LetTheLastOfTwoHold) {
    EXPECT_EQ(options({"--interval", "1", "--interval", "5"}).interval, Seconds(5));
}

TEST(Options, AreAllNamedInTheHelp) {
    for (const auto* name :
         {"--once", "--interval", "--format", "--detail", "--root", "--help", "--version"}) {
        EXPECT_THAT(std::string(helpText()), testing::HasSubstr(name));
    }
}

} // namespace
} // namespace tarvo::status
