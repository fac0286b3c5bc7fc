#include "platform/linux/process_scanner.h"

#include "support/process_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::int32_t> pidsOf(const ProcessScan& scan) {
    std::vector<std::int32_t> pids;
    for (const auto& process : scan.processes)
        pids.push_back(process.pid);
    return pids;
}

TEST(ProcessScanner, EveryProcessIsListedByAscendingPid) {
    ProcessTree tree;
    for (const auto pid : {300, 5, 41, 1, 1000})
        tree.put(pid, {});
    ProcessScanner scanner{Root(tree.root())};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    EXPECT_THAT(pidsOf(scan), ElementsAre(1, 5, 41, 300, 1000));
}

TEST(ProcessScanner, CountersAndNamesAreThoseOfTheProcess) {
    ProcessTree tree(2'000'000);
    MadeProcess made;
    made.name = "we ) (x y";
    made.userTicks = 70;
    made.systemTicks = 7;
    made.startTime = 4711;
    made.residentPages = 99;
    tree.put(12, made);
    tree.put(13, {});
    ProcessScanner scanner{Root(tree.root())};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    const auto* const process = scan.find(12);
    ASSERT_NE(process, nullptr);
    EXPECT_EQ(scan.nameOf(*process), "we ) (x y");
    EXPECT_EQ(process->ticks, 77U);
    EXPECT_EQ(process->startTime, 4711U);
    EXPECT_EQ(process->residentPages, 99U);
    EXPECT_EQ(scan.physicalBytes, 2'000'000U * 1024U);
    EXPECT_EQ(scan.find(14), nullptr);
    EXPECT_EQ(scan.find(11), nullptr);
}

TEST(ProcessScanner, ZombiesAreLeftOutAndKernelThreadsMarked) {
    ProcessTree tree;
    MadeProcess zombie;
    zombie.state = 'Z';
    tree.put(3, zombie);
    MadeProcess thread;
    thread.flags = 0x208040;
    tree.put(4, thread);
    ProcessScanner scanner{Root(tree.root())};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    ASSERT_THAT(pidsOf(scan), ElementsAre(4));
    EXPECT_TRUE(scan.processes[0].isKernelThread);
}

TEST(ProcessScanner, WhatIsNoProcessIsPassedOver) {
    ProcessTree tree;
    tree.put(8, {});
    tree.folder.makeFolder("proc/self");
    tree.folder.makeFolder("proc/12"); // ended between the listing and the look
    tree.folder.makeFolder("proc/99999999999");
    tree.folder.write("proc/13/stat", "nonsense");
    tree.folder.write("proc/14/stat", "");
    tree.folder.write("proc/15x/stat", statText(15, {}));
    ProcessScanner scanner{Root(tree.root())};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    EXPECT_THAT(pidsOf(scan), ElementsAre(8));
}

TEST(ProcessScanner, APassSeesThePresentProcessesOnly) {
    ProcessTree tree;
    tree.put(8, {});
    tree.put(9, {});
    ProcessScanner scanner{Root(tree.root())};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    tree.remove(8);
    tree.put(10, {});
    ASSERT_TRUE(scanner.scan(scan));
    EXPECT_THAT(pidsOf(scan), ElementsAre(9, 10));
}

TEST(ProcessScanner, AThousandProcessesAreListed) {
    ProcessTree tree;
    for (std::int32_t pid = 1; pid <= 1000; ++pid)
        tree.put(pid, {});
    ProcessScanner scanner{Root(tree.root())};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    EXPECT_THAT(scan.processes, SizeIs(1000));
    EXPECT_EQ(scan.nameOf(scan.processes.back()), "process");
}

TEST(ProcessScanner, AMachineWithoutProcessesFilesFails) {
    const TemporaryFolder empty;
    ProcessScanner scanner{Root(empty.path().string())};
    ProcessScan scan;
    scan.processes.resize(3);
    EXPECT_FALSE(scanner.scan(scan));
    EXPECT_THAT(scan.processes, IsEmpty());
    empty.write("proc/5/stat", statText(5, {}));
    EXPECT_TRUE(scanner.scan(scan));
    EXPECT_THAT(pidsOf(scan), ElementsAre(5));
    EXPECT_EQ(scan.physicalBytes, 0U);
}

TEST(ProcessScanner, TheRunningMachineListsThisProcess) {
    ProcessScanner scanner{Root()};
    ProcessScan scan;
    ASSERT_TRUE(scanner.scan(scan));
    const auto* const self = scan.find(::getpid());
    ASSERT_NE(self, nullptr);
    EXPECT_GT(self->residentPages, 0U);
    EXPECT_GT(self->startTime, 0U);
    EXPECT_GT(scan.physicalBytes, 0U);
}

} // namespace
} // namespace tarvo::linux_platform
