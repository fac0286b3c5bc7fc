#include "platform/linux/linux_gpus.h"

#include "platform/linux/linux_io_registry.h"
#include "platform/posix/file_descriptor.h"
#include "readers/gpu_utilization.h"
#include "support/manual_clock.h"
#include "support/temporary_folder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace tarvo::linux_platform {

namespace {

using namespace std::chrono_literals;

// Tells whether anybody opened a file.
class OpenWatch {
public:
    explicit OpenWatch(const std::string& path) : queue_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        if (::inotify_add_watch(queue_.get(), path.c_str(), IN_OPEN) < 0)
            throw std::runtime_error("no watch");
    }
    bool sawOpen() const {
        std::array<char, 4096> events{};
        return ::read(queue_.get(), events.data(), events.size()) > 0;
    }

private:
    FileDescriptor queue_;
};

class GPUsOfATree : public testing::Test {
protected:
    GPUsOfATree() {
        registry.provide("IOAccelerator", [this] { return gpus.services(); });
    }
    std::string add(const std::string& card, const std::string& address, const std::string& driver) {
        const auto device = "sys/devices/pci0000:00/" + address + "/";
        folder.makeFolder(device);
        folder.link(device + "driver", "../../../bus/pci/drivers/" + driver);
        folder.makeFolder(device + "drm/" + card);
        folder.link(device + "drm/" + card + "/device", "../..");
        folder.link("sys/class/drm/" + card, "../../devices/pci0000:00/" + address + "/drm/" + card);
        return device;
    }
    void addClient(int process, int descriptor, const std::string& fdinfo) {
        const auto path = fmt::format("proc/{}/", process);
        const auto number = std::to_string(descriptor);
        if (!std::filesystem::is_symlink(folder.path(path + "fd/" + number))) {
            folder.link(path + "fd/" + number, "/dev/dri/renderD128");
        }
        folder.write(path + "fdinfo/" + number, fdinfo);
    }
    static std::string render(std::uint64_t id, std::uint64_t nanoseconds) {
        return fmt::format(
            "drm-driver:\ti915\ndrm-client-id:\t{}\ndrm-pdev:\t0000:00:02.0\ndrm-engine-render:\t{} ns\n", id,
            nanoseconds);
    }
    std::optional<double> percent() { return gpuUtilizationPercent(registry); }

    TemporaryFolder folder;
    ManualClock clock;
    std::vector<std::pair<std::string, bool>> asked; ///< of the NVIDIA library: address, may sleep
    std::optional<double> nvidiaAnswer;
    LinuxGPUs gpus{Root(folder.path("")), clock, [this](const std::string& address, bool maySleep) {
                       asked.emplace_back(address, maySleep);
                       return nvidiaAnswer;
                   }};
    LinuxIORegistry registry;
};

} // namespace

TEST_F(GPUsOfATree, AMDStatesItsUse) {
    const auto device = add("card0", "0000:03:00.0", "amdgpu");
    EXPECT_EQ(percent(), std::nullopt);
    folder.write(device + "gpu_busy_percent", "37\n");
    EXPECT_EQ(percent(), 37);
    folder.write(device + "gpu_busy_percent", "busy\n");
    EXPECT_EQ(percent(), std::nullopt);
}

TEST_F(GPUsOfATree, ASleepingCardIsNeverAsked) {
    const auto sleeping = add("card0", "0000:01:00.0", "amdgpu");
    folder.write(sleeping + "power/runtime_status", "suspended\n");
    folder.write(sleeping + "gpu_busy_percent", "80\n");
    const auto awake = add("card1", "0000:03:00.0", "amdgpu");
    folder.write(awake + "power/runtime_status", "active\n");
    folder.write(awake + "gpu_busy_percent", "9\n");
    const OpenWatch watchOfSleeping(folder.path(sleeping + "gpu_busy_percent"));
    const OpenWatch watchOfAwake(folder.path(awake + "gpu_busy_percent"));
    EXPECT_EQ(percent(), 9);
    EXPECT_FALSE(watchOfSleeping.sawOpen());
    EXPECT_TRUE(watchOfAwake.sawOpen());

    const auto nvidia = add("card2", "0000:00:01.0", "nvidia");
    folder.write(nvidia + "power/runtime_status", "suspended\n");
    EXPECT_EQ(percent(), 9);
    EXPECT_TRUE(asked.empty());
}

TEST_F(GPUsOfATree, NVIDIAIsAskedByAddressAndNotKeptAwake) {
    const auto device = add("card0", "0000:01:00.0", "nvidia");
    nvidiaAnswer = 61;
    EXPECT_EQ(percent(), 61);
    folder.write(device + "power/control", "auto\n");
    EXPECT_EQ(percent(), 61);
    using Question = std::pair<std::string, bool>;
    EXPECT_EQ(asked, (std::vector<Question>{{"0000:01:00.0", false}, {"0000:01:00.0", true}}));
    nvidiaAnswer.reset();
    EXPECT_EQ(percent(), std::nullopt);
}

TEST_F(GPUsOfATree, CardsAfterTheFirstThatAnswersAreLeftAlone) {
    const auto amd = add("card0", "0000:00:02.0", "amdgpu");
    folder.write(amd + "boot_vga", "1\n");
    folder.write(amd + "gpu_busy_percent", "0\n");
    add("card1", "0000:01:00.0", "nvidia");
    nvidiaAnswer = 99;
    EXPECT_EQ(percent(), 0);
    EXPECT_TRUE(asked.empty());
}

TEST_F(GPUsOfATree, IntelIsSeenThroughItsClients) {
    add("card0", "0000:00:02.0", "i915");
    addClient(100, 5, render(1, 0));
    addClient(100, 6, render(1, 0));
    addClient(200, 9, render(2, 0));
    folder.link("proc/200/fd/10", "/dev/null");
    folder.write("proc/200/fdinfo/10", render(3, 0));
    EXPECT_EQ(percent(), std::nullopt);
    clock.advance(2s);
    addClient(100, 5, render(1, 500'000'000));
    addClient(100, 6, render(1, 500'000'000));
    addClient(200, 9, render(2, 100'000'000));
    folder.write("proc/200/fdinfo/10", render(3, 2'000'000'000));
    EXPECT_DOUBLE_EQ(percent().value(), 30);
}

TEST_F(GPUsOfATree, ClientsOfAnotherCardDoNotCount) {
    add("card0", "0000:00:03.0", "i915");
    addClient(100, 5, render(1, 0));
    percent();
    clock.advance(2s);
    addClient(100, 5, render(1, 1'000'000'000));
    EXPECT_EQ(percent(), std::nullopt);
}

TEST_F(GPUsOfATree, NewClientsAreFoundWithinTenSeconds) {
    add("card0", "0000:00:02.0", "i915");
    addClient(100, 5, render(1, 0));
    percent();
    clock.advance(5s);
    addClient(200, 5, render(2, 0));
    EXPECT_EQ(percent(), 0);
    clock.advance(5s);
    addClient(200, 5, render(2, 5'000'000'000));
    EXPECT_EQ(percent(), 0);
    clock.advance(5s);
    addClient(200, 5, render(2, 7'500'000'000));
    EXPECT_EQ(percent(), 50);
}

TEST_F(GPUsOfATree, IntelWithoutVisibleClientsIsSeenThroughItsSleep) {
    add("card0", "0000:00:02.0", "i915");
    folder.write("sys/class/drm/card0/gt/gt0/rc6_residency_ms", "1000\n");
    folder.write("sys/class/drm/card0/gt/gt1/rc6_residency_ms", "1000\n");
    EXPECT_EQ(percent(), std::nullopt);
    clock.advance(2s);
    folder.write("sys/class/drm/card0/gt/gt0/rc6_residency_ms", "2500\n");
    folder.write("sys/class/drm/card0/gt/gt1/rc6_residency_ms", "3000\n");
    EXPECT_DOUBLE_EQ(percent().value(), 25);
}

TEST_F(GPUsOfATree, OlderAndNewerDriversTellTheirSleepElsewhere) {
    add("card0", "0000:00:02.0", "i915");
    folder.write("sys/class/drm/card0/power/rc6_residency_ms", "0\n");
    percent();
    clock.advance(1s);
    folder.write("sys/class/drm/card0/power/rc6_residency_ms", "900\n");
    EXPECT_DOUBLE_EQ(percent().value(), 10);

    folder.remove("sys/class/drm");
    const auto other = add("card1", "0000:00:03.0", "xe");
    folder.write(other + "tile0/gt0/gtidle/idle_residency_ms", "0\n");
    folder.write(other + "tile0/gt1/gtidle/idle_residency_ms", "0\n");
    percent();
    clock.advance(1s);
    folder.write(other + "tile0/gt0/gtidle/idle_residency_ms", "1000\n");
    folder.write(other + "tile0/gt1/gtidle/idle_residency_ms", "200\n");
    EXPECT_DOUBLE_EQ(percent().value(), 80);
}

TEST_F(GPUsOfATree, VideoCoreStatesTheWorkOfItsQueues) {
    const auto device = add("card0", "1002000000.v3d", "v3d");
    const auto stats = [&](int timestamp, int runtime) {
        folder.write(device + "gpu_stats",
                     fmt::format("queue timestamp jobs runtime\nbin {} 5 7\nrender {} 5 {}\n", timestamp,
                                 timestamp, runtime));
    };
    stats(1'000'000, 0);
    EXPECT_EQ(percent(), std::nullopt);
    stats(2'000'000, 450'000);
    EXPECT_DOUBLE_EQ(percent().value(), 45);
}

TEST_F(GPUsOfATree, OtherDriversSayNothing) {
    add("card0", "0000:00:01.0", "virtio-pci");
    EXPECT_EQ(gpus.services().size(), 1U);
    EXPECT_EQ(percent(), std::nullopt);
}

} // namespace tarvo::linux_platform
