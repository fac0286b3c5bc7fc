#include "processes/process_list.h"

#include "support/scripted_child_processes.h"
#include "support/scripted_process_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

TEST(ProcessList, TheToolIsRunWithTheOrderAskedFor) {
    ScriptedChildProcesses children;
    children.outputs["/bin/ps"] = "  1 2.0 3.0 /sbin/init\n";
    EXPECT_THAT(topProcesses(children, ProcessSort::cpu, 5), ElementsAre(ProcInfo{1, "init", 2, 3}));
    topProcesses(children, ProcessSort::memory, 5);
    EXPECT_THAT(children.runs,
                ElementsAre(Pair("/bin/ps", ElementsAre("-A", "-o", "pid=,pcpu=,pmem=,comm=", "-r")),
                            Pair("/bin/ps", ElementsAre("-A", "-o", "pid=,pcpu=,pmem=,comm=", "-m"))));
}

TEST(ProcessList, TheToolIsToWriteDecimalPoints) {
    ScriptedChildProcesses children;
    topProcesses(children, ProcessSort::cpu, 5);
    EXPECT_THAT(children.requests.at(0).environment,
                ElementsAre(Pair("LC_ALL", ""), Pair("LC_NUMERIC", "C")));
}

TEST(ProcessList, AToolThatCannotBeStartedGivesNothing) {
    ScriptedChildProcesses children;
    EXPECT_THAT(topProcesses(children, ProcessSort::cpu, 5), IsEmpty());
    EXPECT_THAT(children.runs, SizeIs(1));
}

TEST(ProcessList, RowsBecomeRecordsInTheirOrder) {
    ScriptedProcessTable table;
    table.answer = {{412, 45.6, 1.2, "/opt/Some App/Some App"}, {7, 3.5, 0.5, "/usr/bin/bash"}};
    EXPECT_THAT(topProcesses(table, ProcessSort::cpu, 5),
                ElementsAre(ProcInfo{412, "Some App", 45.6, 1.2}, ProcInfo{7, "bash", 3.5, 0.5}));
    EXPECT_THAT(table.asked, ElementsAre(Pair(ProcessOrder::cpu, 5)));
    topProcesses(table, ProcessSort::memory, 500);
    EXPECT_THAT(table.asked.back(), Pair(ProcessOrder::memory, 500));
}

TEST(ProcessList, ABareNameKeepsItsSlashes) {
    ScriptedProcessTable table;
    table.answer = {{31, 0, 0, "kworker/0:1-events"}};
    EXPECT_EQ(topProcesses(table, ProcessSort::cpu, 5).at(0).name, "kworker/0:1-events");
}

TEST(ProcessList, TheLimitIsLookedAtAfterTheRecord) {
    ScriptedProcessTable table;
    table.answer.resize(10);
    EXPECT_THAT(topProcesses(table, ProcessSort::cpu, 0), SizeIs(1));
    EXPECT_THAT(topProcesses(table, ProcessSort::cpu, -3), SizeIs(1));
    EXPECT_THAT(topProcesses(table, ProcessSort::cpu, 4), SizeIs(4));
    EXPECT_THAT(topProcesses(table, ProcessSort::cpu, 500), SizeIs(10));
}

} // namespace
} // namespace tarvo
