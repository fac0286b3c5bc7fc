#include "platform/macos/tmutil_backup_tool.h"

#include "sensors/time_machine.h"
#include "support/scripted_child_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(TmutilBackupTool, IsRunWithTheCommandAsItsOnlyArgument) {
    ScriptedChildProcesses children;
    children.outputs["/usr/bin/tmutil"] = "{\n    Percent = \"0.5\";\n    Running = 1;\n}\n";
    macos_platform::TmutilBackupTool tool(children);
    const auto info = readTimeMachineInfo(tool);
    EXPECT_TRUE(info.isRunning);
    EXPECT_EQ(info.percent, 50);
    EXPECT_EQ(info.lastBackupDate, std::nullopt);
    EXPECT_THAT(children.runs, ElementsAre(Pair("/usr/bin/tmutil", ElementsAre("status")),
                                           Pair("/usr/bin/tmutil", ElementsAre("latestbackup"))));
}

TEST(TmutilBackupTool, AnswersNothingWhenItCannotBeStarted) {
    ScriptedChildProcesses children;
    macos_platform::TmutilBackupTool tool(children);
    EXPECT_EQ(tool.output("status"), std::nullopt);
}

} // namespace
} // namespace tarvo
