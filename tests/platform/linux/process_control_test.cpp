#include "platform/linux/process_control.h"

#include "platform/linux/process_stat.h"
#include "platform/linux/read_file.h"
#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>

namespace tarvo::linux_platform {
namespace {

/// A child that waits for a signal; killed and reaped at the end whatever happened.
class WaitingChild {
public:
    WaitingChild() : pid_(::fork()) {
        if (pid_ == 0) {
            for (;;)
                ::pause();
        }
    }
    ~WaitingChild() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
    WaitingChild(const WaitingChild&) = delete;
    WaitingChild& operator=(const WaitingChild&) = delete;

    pid_t pid() const { return pid_; }
    /// The signal that ended it, waiting for its end.
    int endedBy() {
        int status = 0;
        ::waitpid(pid_, &status, 0);
        pid_ = -1;
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }
    bool isAlive() const { return ::waitpid(pid_, nullptr, WNOHANG) == 0; }
    std::uint64_t startTime() const {
        return parseProcessStat(readFile(fmt::format("/proc/{}/stat", pid_)).value_or(""))->startTime;
    }

private:
    pid_t pid_;
};

std::optional<std::uint64_t> notListed(std::int32_t) {
    return std::nullopt;
}

TEST(ProcessControl, AListedProcessIsAskedToEnd) {
    WaitingChild child;
    LinuxProcessControl control(Root(), [&](std::int32_t) { return std::optional(child.startTime()); });
    EXPECT_TRUE(control.terminate(child.pid()));
    EXPECT_EQ(child.endedBy(), SIGTERM);
}

TEST(ProcessControl, AProcessThatWasNeverListedIsAskedToEnd) {
    WaitingChild child;
    LinuxProcessControl control(Root(), notListed);
    EXPECT_TRUE(control.terminate(child.pid()));
    EXPECT_EQ(child.endedBy(), SIGTERM);
}

TEST(ProcessControl, AnotherProcessUnderTheListedNumberIsLeftAlone) {
    WaitingChild child;
    LinuxProcessControl control(Root(), [&](std::int32_t) { return std::optional(child.startTime() - 1); });
    EXPECT_FALSE(control.terminate(child.pid()));
    EXPECT_TRUE(child.isAlive());
}

TEST(ProcessControl, AnEndedProcessIsNoFailureOfOurs) {
    pid_t pid = 0;
    {
        WaitingChild child;
        pid = child.pid();
    }
    EXPECT_FALSE(LinuxProcessControl(Root(), notListed).terminate(pid));
}

TEST(ProcessControl, AProcessThatIsHeldIsTheOneThatIsReachedLater) {
    WaitingChild child;
    std::uint64_t listed = child.startTime();
    LinuxProcessControl control(Root(), [&](std::int32_t) { return std::optional(listed); });
    const auto terminate = control.terminator(child.pid());
    // The number is listed for another process meanwhile: what is held does not change.
    ++listed;
    EXPECT_TRUE(terminate());
    EXPECT_EQ(child.endedBy(), SIGTERM);
    EXPECT_FALSE(terminate());
}

TEST(ProcessControl, ARecordedMachineSharesNoProcessWithThisOne) {
    WaitingChild child;
    const TemporaryFolder recorded;
    recorded.write(fmt::format("proc/{}/stat", child.pid()),
                   readFile(fmt::format("/proc/{}/stat", child.pid())).value_or(""));
    LinuxProcessControl control(Root(recorded.path()), [&](std::int32_t) { return child.startTime(); });
    EXPECT_FALSE(control.terminate(child.pid()));
    EXPECT_TRUE(child.isAlive());
}

TEST(ProcessControl, GroupsAndTheFirstProcessAreRefused) {
    WaitingChild child;
    LinuxProcessControl control(Root(), notListed);
    EXPECT_FALSE(control.terminate(1));
    EXPECT_FALSE(control.terminate(0));
    EXPECT_FALSE(control.terminate(-1));
    EXPECT_FALSE(control.terminate(-child.pid()));
    EXPECT_TRUE(child.isAlive());
}

/// Makes pidfd_open fail in this process as on a kernel that has none.
bool takeAwayProcessDescriptors() {
    std::array<sock_filter, 4> program{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_open, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

TEST(ProcessControl, OnAnOldKernelTheNumberIsSignalled) {
    WaitingChild target;
    enum Outcome { sent, refused, noFilter };
    const pid_t helper = ::fork();
    if (helper == 0) {
        if (!takeAwayProcessDescriptors()) ::_exit(noFilter);
        ::_exit(LinuxProcessControl(Root(), notListed).terminate(target.pid()) ? sent : refused);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(helper, &status, 0), helper);
    if (WEXITSTATUS(status) == noFilter) GTEST_SKIP() << "system call filters are not allowed here";
    EXPECT_EQ(WEXITSTATUS(status), sent);
    EXPECT_EQ(target.endedBy(), SIGTERM);
}

} // namespace
} // namespace tarvo::linux_platform
