#include "composition/machine.h"

#include "platform/linux/linux_volumes.h"
#include "readers/user_volumes.h"
#include "support/manual_clock.h"
#include "support/manual_dispatcher.h"
#include "support/recorded_machine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace tarvo {

using testing::DoubleEq;
using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using namespace std::chrono_literals;

constexpr double kilobytesPerGB = 1024 * 1024;

// One recorded machine, looked at twice with two seconds in between.
class Recorded {
public:
    explicit Recorded(const std::string& name) : files(name) {
        EXPECT_EQ(readers.cpuUsage(), CPUUsage{});
        readers.gpuUtilizationPercent();
        files.letTimePass();
        clock.advance(2s);
        cpu = readers.cpuUsage();
        gpu = readers.gpuUtilizationPercent();
        memory = readers.memoryUsage();
        load = readers.loadAverages();
        network = readers.networkTotals();
        disks = readers.diskIOTotals();
    }

    RecordedMachine files;
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    Machine machine{{.root = files.root()}, clock, dispatcher};
    StatsReaders readers = machine.readers();

    CPUUsage cpu;
    std::optional<double> gpu;
    MemoryInfo memory;
    std::optional<LoadAverages> load;
    NetworkTotals network;
    DiskIOTotals disks;
};

DiskIOTotals sectors(std::uint64_t read, std::uint64_t written) {
    return {read * 512, written * 512};
}

// In kB, as the machine's file has it.
double kilobytes(double gigabytes) {
    return gigabytes * kilobytesPerGB;
}

void expectParts(const MemoryInfo& memory, double active, double wired, double compressed, double inactive,
                 double free) {
    constexpr double onePage = 64; // kB, on any machine that runs this test
    EXPECT_NEAR(kilobytes(memory.memActiveGB), active, onePage);
    EXPECT_NEAR(kilobytes(memory.memWiredGB), wired, onePage);
    EXPECT_NEAR(kilobytes(memory.memCompressedGB), compressed, onePage);
    EXPECT_NEAR(kilobytes(memory.memInactiveGB), inactive, onePage);
    EXPECT_NEAR(kilobytes(memory.memFreeGB), free, onePage);
    EXPECT_NEAR(kilobytes(memory.memTotalGB), active + wired + compressed + inactive + free, onePage);
}

// The volumes of a recorded machine, each with 1 of 4 GB free.
std::vector<DiskVolume> volumesOf(const std::string& name) {
    const RecordedMachine files(name);
    ManualClock clock;
    linux_platform::VolumeSources sources;
    sources.networkLimit = 1min;
    sources.measure = [](const std::string&) {
        return linux_platform::FileSystemSize{1'000'000'000, 4'000'000'000};
    };
    linux_platform::LinuxVolumes volumes(linux_platform::Root(files.root()), clock, sources);
    return listUserVolumes(volumes);
}

DiskVolume volume(std::string name, std::string path, bool isRemovable = false) {
    return {.name = std::move(name),
            .path = std::move(path),
            .freeGB = 1,
            .totalGB = 4,
            .isRemovable = isRemovable};
}

} // namespace

TEST(RecordedMachine, VirtualMachineWithLittleToSee) {
    Recorded machine("vm-empty");
    EXPECT_THAT(machine.cpu.perCore, ElementsAre(DoubleEq(25), DoubleEq(20)));
    EXPECT_DOUBLE_EQ(machine.cpu.total, 22.5);
    expectParts(machine.memory, 390'068, 51'480, 0, 708'272, 23'534'276);
    EXPECT_NEAR(machine.memory.memPercent, 441'548.0 / 24'684'096 * 100, 0.001);
    EXPECT_EQ(machine.memory.swapTotalGB, 0);
    ASSERT_TRUE(machine.load);
    EXPECT_EQ(machine.load->one, 0.08);
    EXPECT_EQ(machine.load->fifteen, 0.01);
    EXPECT_EQ(machine.network, (NetworkTotals{150'563'625, 349'941}));
    EXPECT_EQ(machine.disks, sectors(5'001'274, 14'408'728));
    EXPECT_EQ(machine.gpu, std::nullopt);
    EXPECT_EQ(machine.readers.localIPAddress(), std::nullopt);
    EXPECT_EQ(machine.readers.currentSSID(), std::nullopt);
    EXPECT_TRUE(machine.readers.diskSpace());
    EXPECT_THAT(volumesOf("vm-empty"), ElementsAre(volume("/", "/")));
}

TEST(RecordedMachine, LaptopWithTwoKindsOfCores) {
    Recorded machine("laptop-intel-hybrid");
    EXPECT_THAT(machine.cpu.perCore,
                ElementsAre(DoubleEq(50), DoubleEq(50), DoubleEq(10), DoubleEq(10), DoubleEq(10),
                            DoubleEq(10), DoubleEq(10), DoubleEq(10), 0, 0, 0, DoubleEq(100)));
    EXPECT_NEAR(machine.cpu.total, 520.0 / 24, 1e-9);
    EXPECT_NEAR(kilobytes(machine.memory.memUsedGB), 6'488'000, 64);
    EXPECT_NEAR(kilobytes(machine.memory.memWiredGB), 554'000, 64);
    EXPECT_NEAR(kilobytes(machine.memory.swapUsedGB), 262'144, 0.001);
    EXPECT_NEAR(kilobytes(machine.memory.swapTotalGB), 8'388'604, 0.001);
    EXPECT_EQ(machine.load->five, 0.94);
    // Wi-Fi and the unplugged Ethernet; not the container bridge, its ports or the tunnel.
    EXPECT_EQ(machine.network, (NetworkTotals{8'128'699'669, 512'529'998}));
    // The built-in disk and the stick on USB; not the encrypted layer above it.
    EXPECT_EQ(machine.disks, sectors(30'025'480, 41'004'296));
    // The GT that slept less was awake for half a second of two.
    EXPECT_DOUBLE_EQ(machine.gpu.value(), 25);
}

TEST(RecordedMachine, LaptopsVolumesAreItsDiskAndTheStick) {
    EXPECT_THAT(volumesOf("laptop-intel-hybrid"),
                ElementsAre(volume("fedora", "/"), volume("My Stick", "/run/media/ann/My Stick", true)));
}

TEST(RecordedMachine, DesktopWithTwoGPUsAndSeveralDisks) {
    Recorded machine("desktop-amd-two-gpus");
    EXPECT_THAT(machine.cpu.perCore, SizeIs(16));
    EXPECT_DOUBLE_EQ(machine.cpu.total, 50);
    EXPECT_NEAR(kilobytes(machine.memory.memUsedGB), 17'780'000, 64);
    EXPECT_EQ(machine.load->one, 8.12);
    // The bridge, the virtual machine's port and the VPN carry the same bytes as the card.
    EXPECT_EQ(machine.network, (NetworkTotals{91'237'567'890, 7'654'561'098}));
    // The mirror and the logical volume above it are the two SATA disks; the second path to the NVMe disk is
    // hidden.
    EXPECT_EQ(machine.disks, sectors(110'002'048, 206'041'088));
    // The card that started the screen, though it is the second by number.
    EXPECT_EQ(machine.gpu, 64);
    EXPECT_THAT(volumesOf("desktop-amd-two-gpus"),
                ElementsAre(volume("/", "/"), volume("Data", "/srv/data")));
}

TEST(RecordedMachine, NetbookThatSwapsToCompressedMemory) {
    Recorded machine("netbook-zram");
    EXPECT_THAT(machine.cpu.perCore, ElementsAre(DoubleEq(100), DoubleEq(50), DoubleEq(50), 0));
    EXPECT_DOUBLE_EQ(machine.cpu.total, 50);
    expectParts(machine.memory, 2'213'664, 116'000, 270'336, 1'120'000, 180'000);
    EXPECT_NEAR(kilobytes(machine.memory.swapUsedGB), 1'049'992, 0.001);
    // The modem stays out while Wi-Fi is up.
    EXPECT_EQ(machine.network, (NetworkTotals{40'000'000, 6'000'000}));
    EXPECT_EQ(machine.disks, sectors(7'000'016, 2'000'000));
    EXPECT_EQ(machine.gpu, std::nullopt);
    EXPECT_THAT(volumesOf("netbook-zram"), ElementsAre(volume("/", "/")));
}

TEST(RecordedMachine, SingleBoardComputer) {
    Recorded machine("raspberrypi5");
    EXPECT_THAT(machine.cpu.perCore, ElementsAre(DoubleEq(20), DoubleEq(30), DoubleEq(40), DoubleEq(10)));
    EXPECT_DOUBLE_EQ(machine.cpu.total, 25);
    EXPECT_NEAR(kilobytes(machine.memory.memUsedGB), 1'056'176, 64);
    // Wi-Fi is off.
    EXPECT_EQ(machine.network, (NetworkTotals{600'040'960, 80'008'192}));
    EXPECT_EQ(machine.disks, sectors(1'500'000, 800'128));
    EXPECT_DOUBLE_EQ(machine.gpu.value(), 35);
    EXPECT_THAT(volumesOf("raspberrypi5"), ElementsAre(volume("rootfs", "/")));
}

TEST(RecordedMachine, ContainerSeesTheHostsLoadAndItsOwnNetwork) {
    Recorded machine("container");
    EXPECT_THAT(machine.cpu.perCore, Each(DoubleEq(10)));
    EXPECT_THAT(machine.cpu.perCore, SizeIs(8));
    EXPECT_NEAR(kilobytes(machine.memory.memUsedGB), 8'800'000, 64);
    EXPECT_EQ(machine.network, (NetworkTotals{5'000'000, 700'000}));
    EXPECT_EQ(machine.disks, DiskIOTotals{});
    EXPECT_EQ(machine.gpu, std::nullopt);
    EXPECT_THAT(volumesOf("container"), ElementsAre(volume("/", "/")));
}

TEST(RecordedMachine, ServerThatHasRunForMoreThanAYear) {
    Recorded machine("server-2socket");
    EXPECT_THAT(machine.cpu.perCore, SizeIs(64));
    EXPECT_THAT(std::vector<double>(machine.cpu.perCore.begin(), machine.cpu.perCore.begin() + 32),
                Each(DoubleEq(0)));
    EXPECT_THAT(std::vector<double>(machine.cpu.perCore.begin() + 32, machine.cpu.perCore.end()),
                Each(DoubleEq(50)));
    EXPECT_DOUBLE_EQ(machine.cpu.total, 25);
    expectParts(machine.memory, 153'551'136, 74'348'864, 0, 280'000'000, 20'000'000);
    EXPECT_EQ(machine.load->one, 33.10);
    // The two ports; not the bond over them and not its VLAN.
    EXPECT_EQ(machine.network, (NetworkTotals{23'456'790'012'345, 3'456'790'012'345}));
    EXPECT_EQ(machine.disks, sectors(520'000'000'000, 440'000'000'000));
    EXPECT_THAT(volumesOf("server-2socket"), ElementsAre(volume("/", "/"), volume("backup", "/mnt/backup"),
                                                         volume("tank", "/tank"), volume("vm", "/tank/vm")));
}

} // namespace tarvo
