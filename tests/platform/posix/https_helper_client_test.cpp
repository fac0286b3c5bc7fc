#include "platform/posix/https_helper_client.h"

#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/scripted_child_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Eq;
using testing::Optional;
using testing::SizeIs;

class HTTPSHelperClientTest : public testing::Test {
protected:
    std::optional<std::string> fetch(const std::string& helper = "/libexec/fetch") {
        HTTPSHelperClient client(processes, dispatcher, helper);
        std::optional<std::optional<std::string>> result;
        client.fetch("https://tarvo.example/update.json", 8s,
                     [&](std::optional<std::string> reply) { result = std::move(reply); });
        EXPECT_FALSE(result) << "waited for the helper";
        dispatcher.runAll();
        EXPECT_TRUE(result);
        return result.value_or(std::nullopt);
    }
    void helperEndsWith(ChildProcessResult result) {
        processes.results["/libexec/fetch"] = std::move(result);
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    ScriptedChildProcesses processes;
};

TEST_F(HTTPSHelperClientTest, HandsOnWhatTheHelperWrote) {
    helperEndsWith({.output = std::string("reply\0\n", 7), .exitStatus = 0});
    EXPECT_THAT(fetch(), Optional(std::string("reply\0\n", 7)));
    ASSERT_THAT(processes.requests, SizeIs(1));
    EXPECT_THAT(processes.requests[0].arguments, ElementsAre("https://tarvo.example/update.json", "8000"));
    EXPECT_THAT(processes.requests[0].timeLimit, Eq(8s));
}

TEST_F(HTTPSHelperClientTest, FailsWhenTheHelperFails) {
    helperEndsWith({.output = "half", .exitStatus = 1});
    EXPECT_FALSE(fetch());
    helperEndsWith({.output = "half", .exitStatus = std::nullopt});
    EXPECT_FALSE(fetch());
    helperEndsWith({.output = "half", .exitStatus = 0, .exceededTimeLimit = true});
    EXPECT_FALSE(fetch());
}

TEST_F(HTTPSHelperClientTest, FailsWithoutAHelper) {
    EXPECT_FALSE(fetch("/nowhere"));
    processes.runs.clear();
    EXPECT_FALSE(fetch(""));
    EXPECT_THAT(processes.runs, SizeIs(0));
}

TEST_F(HTTPSHelperClientTest, TakesNoMoreThanAMebibyte) {
    helperEndsWith({.output = std::string(HTTPSHelperClient::maxReplySize, ' '), .exitStatus = 0});
    EXPECT_TRUE(fetch());
    helperEndsWith({.output = std::string(HTTPSHelperClient::maxReplySize + 1, ' '), .exitStatus = 0});
    EXPECT_FALSE(fetch());
}

} // namespace
} // namespace tarvo
