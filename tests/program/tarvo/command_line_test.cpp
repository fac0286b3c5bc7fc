#include "command_line.h"

#include <gmock/gmock.h>

#include <vector>

namespace tarvo {
namespace {

using testing::HasSubstr;

CommandLine parse(const std::vector<std::string_view>& arguments) {
    return parseCommandLine(arguments);
}

TEST(CommandLine, WithoutArgumentsIsThisMachine) {
    EXPECT_EQ(parse({}), CommandLine(ProgramOptions{}));
}

TEST(CommandLine, NamesTheFolderOfARecordedMachine) {
    EXPECT_EQ(parse({"--root", "/tmp/laptop"}), CommandLine(ProgramOptions{"/tmp/laptop"}));
}

TEST(CommandLine, TakesTheRootFolderAsThisMachine) {
    EXPECT_EQ(parse({"--root", "/"}), CommandLine(ProgramOptions{}));
    EXPECT_EQ(parse({"--root", "//"}), CommandLine(ProgramOptions{}));
}

TEST(CommandLine, AsksForHelpOrTheVersion) {
    EXPECT_EQ(parse({"--help"}), CommandLine(ShowHelp{}));
    EXPECT_EQ(parse({"-h", "--version"}), CommandLine(ShowHelp{}));
    EXPECT_EQ(parse({"--version", "--nonsense"}), CommandLine(ShowVersion{}));
}

TEST(CommandLine, SaysWhatIsWrong) {
    EXPECT_EQ(parse({"--nonsense", "--help"}), CommandLine(UsageError{"unknown argument '--nonsense'"}));
    EXPECT_EQ(parse({"--root"}), CommandLine(UsageError{"--root needs a folder"}));
    EXPECT_EQ(parse({"--root", ""}), CommandLine(UsageError{"--root needs a folder"}));
}

TEST(CommandLine, HelpNamesEveryArgument) {
    for (const auto* argument : {"--root", "--version", "--help"})
        EXPECT_THAT(std::string(helpText()), HasSubstr(argument));
}

} // namespace
} // namespace tarvo
