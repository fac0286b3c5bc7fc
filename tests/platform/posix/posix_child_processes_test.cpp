#include "platform/posix/posix_child_processes.h"

#include "eventually.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>

#include <filesystem>
#include <future>
#include <vector>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

/// Lines for a shell, the one tool that every machine has and that can play any other.
ChildProcessRequest shell(std::string script) {
    return {.executable = "/bin/sh", .arguments = {"-c", std::move(script)}};
}

ChildProcessResult resultOf(const ChildProcessRequest& request) {
    const auto result = POSIXChildProcesses().run(request);
    EXPECT_TRUE(result.has_value());
    return result.value_or(ChildProcessResult{});
}

std::size_t openDescriptors() {
    std::size_t open = 0;
    for (int number = 0; number < 1024; ++number) {
        if (::fcntl(number, F_GETFD) >= 0) ++open;
    }
    return open;
}

TEST(ChildProcesses, TheOutputIsReadToItsEnd) {
    const auto result = resultOf(shell("printf 'one\\ntwo'"));
    EXPECT_EQ(result.output, "one\ntwo");
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.errorTail, "");
    EXPECT_FALSE(result.exceededTimeLimit);
}

TEST(ChildProcesses, AnOutputThatIsLargerThanAnyPipeIsReadWhole) {
    const auto result =
        resultOf(shell("i=0; while [ $i -lt 20000 ]; do echo 0123456789012345678; i=$((i+1)); done"));
    EXPECT_EQ(result.output.size(), 400'000U);
    EXPECT_EQ(result.exitStatus, 0);
}

TEST(ChildProcesses, AnEndlessOutputIsCutAtItsMaximumAndTheToolStillAwaited) {
    const auto result = resultOf(shell("head -c 20000000 /dev/zero; exit 4"));
    EXPECT_EQ(result.output.size(), ChildProcesses::maximumOutput);
    EXPECT_EQ(result.exitStatus, 4);
}

TEST(ChildProcesses, BytesThatAreNoTextComeThroughUnchanged) {
    const std::string bytes("\0\377a", 3);
    EXPECT_EQ(resultOf(shell("printf '\\000\\377a'")).output, bytes);
}

TEST(ChildProcesses, ArgumentsReachTheToolAsTheyAre) {
    ChildProcessRequest request = shell("printf '%s|' \"$@\"");
    request.arguments.insert(request.arguments.end(), {"sh", "a b", "$(id)", "", "\"'\\"});
    EXPECT_EQ(resultOf(request).output, "a b|$(id)||\"'\\|");
}

TEST(ChildProcesses, TheExitStatusIsToldAndASignalHasNone) {
    EXPECT_EQ(resultOf(shell("exit 3")).exitStatus, 3);
    const auto killed = resultOf(shell("printf x; kill -9 $$"));
    EXPECT_FALSE(killed.exitStatus);
    EXPECT_EQ(killed.output, "x");
    EXPECT_FALSE(killed.exceededTimeLimit);
}

TEST(ChildProcesses, AToolThatIsMissingOrNotAbsoluteCannotBeStarted) {
    POSIXChildProcesses processes;
    EXPECT_FALSE(processes.run({.executable = "/nowhere/at/all"}));
    EXPECT_FALSE(processes.run({.executable = "sh"}));
    EXPECT_FALSE(processes.run({.executable = ""}));
    EXPECT_FALSE(processes.run({.executable = "/"}));
}

TEST(ChildProcesses, VariablesAreAddedToTheEnvironmentAndReplaceTheirNamesakes) {
    ASSERT_EQ(::setenv("TARVO_TEST_KEPT", "kept", 1), 0);
    ASSERT_EQ(::setenv("TARVO_TEST_REPLACED", "old", 1), 0);
    auto request =
        shell("printf '%s,%s,%s' \"$TARVO_TEST_KEPT\" \"$TARVO_TEST_REPLACED\" \"$TARVO_TEST_ADDED\"");
    request.environment = {{"TARVO_TEST_REPLACED", "new"}, {"TARVO_TEST_ADDED", "a=b"}};
    EXPECT_EQ(resultOf(request).output, "kept,new,a=b");
    ::unsetenv("TARVO_TEST_KEPT");
    ::unsetenv("TARVO_TEST_REPLACED");
}

TEST(ChildProcesses, StandardInputIsEmpty) {
    EXPECT_EQ(resultOf(shell("cat; echo end")).output, "end\n");
}

TEST(ChildProcesses, StandardErrorIsThrownAwayUnlessItsTailIsWanted) {
    auto request = shell("echo trouble >&2; echo fine");
    EXPECT_EQ(resultOf(request).errorTail, "");
    request.keepErrorTail = true;
    const auto result = resultOf(request);
    EXPECT_EQ(result.errorTail, "trouble\n");
    EXPECT_EQ(result.output, "fine\n");
}

TEST(ChildProcesses, OnlyTheEndOfALongErrorTextIsKept) {
    auto request =
        shell("i=0; while [ $i -lt 9999 ]; do echo 012345678; i=$((i+1)); done >&2; printf last >&2");
    request.keepErrorTail = true;
    const auto result = resultOf(request);
    EXPECT_EQ(result.errorTail.size(), ChildProcesses::errorTailLength);
    EXPECT_TRUE(result.errorTail.ends_with("012345678\nlast"));
}

TEST(ChildProcesses, AToolThatExceedsItsTimeIsEndedWithWhatItStarted) {
    auto request = shell("echo before; sleep 1000 & echo $!; wait");
    request.timeLimit = 200ms;
    const auto result = resultOf(request);
    EXPECT_TRUE(result.exceededTimeLimit);
    EXPECT_FALSE(result.exitStatus);
    EXPECT_TRUE(result.output.starts_with("before\n"));
}

TEST(ChildProcesses, AToolThatClosesItsOutputAndStaysIsEndedToo) {
    auto request = shell("exec >&- 2>&-; while :; do :; done");
    request.timeLimit = 50ms;
    EXPECT_TRUE(resultOf(request).exceededTimeLimit);
}

TEST(ChildProcesses, AToolThatEndsInTimeIsUntouchedByItsLimit) {
    auto request = shell("echo done; exit 2");
    request.timeLimit = 60s;
    const auto result = resultOf(request);
    EXPECT_FALSE(result.exceededTimeLimit);
    EXPECT_EQ(result.output, "done\n");
    EXPECT_EQ(result.exitStatus, 2);
}

ChildProcessRequest lastingShell(std::string script) {
    auto request = shell(std::move(script));
    request.mayGoOn = true;
    return request;
}

TEST(ChildProcesses, OneThatMayGoOnIsAwaitedWithoutWhatItStarted) {
    const TemporaryFolder folder;
    const auto result = resultOf(lastingShell("(while [ ! -e '" + folder.path("go") +
                                              "' ]; do sleep 0.05; done; echo late >&2; echo ended >'" +
                                              folder.path("ended") + "') & echo early >&2; exit 3"));
    EXPECT_EQ(result.exitStatus, 3);
    EXPECT_EQ(result.errorTail, "early\n");
    // What it started writes to where nobody reads any more, and lives on.
    folder.write("go", "");
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(folder.path("ended")); }));
}

TEST(ChildProcesses, OneThatMayGoOnIsLeftRunningAtItsLimit) {
    const TemporaryFolder folder;
    auto request = lastingShell("while [ ! -e '" + folder.path("go") +
                                "' ]; do sleep 0.05; done; echo ended >'" + folder.path("ended") + "'");
    request.timeLimit = 50ms;
    const auto result = resultOf(request);
    EXPECT_TRUE(result.exceededTimeLimit);
    EXPECT_FALSE(result.exitStatus);
    folder.write("go", "");
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(folder.path("ended")); }));
}

TEST(ChildProcesses, OneThatMayGoOnKeepsTheEndOfAnyAmountOfErrors) {
    const auto result = resultOf(lastingShell("head -c 3000000 /dev/zero >&2; printf last >&2"));
    EXPECT_EQ(result.errorTail.size(), ChildProcesses::errorTailLength);
    EXPECT_TRUE(result.errorTail.ends_with("last"));
    EXPECT_EQ(result.exitStatus, 0);
}

TEST(ChildProcesses, SignalsThatAreIgnoredHereAreNotIgnoredThere) {
    const auto previous = ::signal(SIGTERM, SIG_IGN);
    EXPECT_FALSE(resultOf(shell("kill -TERM $$; echo survived")).exitStatus);
    ::signal(SIGTERM, previous);
}

TEST(ChildProcesses, NoDescriptorIsLeftOpen) {
    const auto before = openDescriptors();
    auto request = shell("echo out; echo error >&2");
    request.keepErrorTail = true;
    for (int i = 0; i < 20; ++i)
        resultOf(request);
    for (int i = 0; i < 20; ++i)
        resultOf(lastingShell("echo error >&2"));
    POSIXChildProcesses().run({.executable = "/nowhere"});
    POSIXChildProcesses().run({.executable = "/nowhere", .mayGoOn = true});
    EXPECT_EQ(openDescriptors(), before);
}

TEST(ChildProcesses, SeveralThreadsMayRunToolsAtOnce) {
    std::vector<std::future<std::string>> outputs;
    for (int i = 0; i < 8; ++i) {
        outputs.push_back(std::async(std::launch::async,
                                     [i] { return resultOf(shell("echo " + std::to_string(i))).output; }));
    }
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(outputs[static_cast<std::size_t>(i)].get(), std::to_string(i) + "\n");
}

} // namespace
} // namespace tarvo
