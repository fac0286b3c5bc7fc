#include "platform/linux/process_name.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

TEST(ProcessName, IsWhatTheKernelKeeps) {
    const TemporaryFolder folder;
    folder.write("proc/812/comm", "xfce4-panel\n");
    EXPECT_EQ(processName(Root(folder.path().string()), 812), "xfce4-panel");
}

TEST(ProcessName, IsEmptyWithoutSuchAProcess) {
    const TemporaryFolder folder;
    EXPECT_EQ(processName(Root(folder.path().string()), 812), "");
}

} // namespace
} // namespace tarvo::linux_platform
