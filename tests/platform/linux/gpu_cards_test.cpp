#include "platform/linux/gpu_cards.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;

namespace {

class GPUCardsOfATree : public testing::Test {
protected:
    void add(const std::string& card, const std::string& address, const std::string& driver) {
        const auto device = "sys/devices/pci0000:00/" + address;
        folder.makeFolder(device);
        folder.link(device + "/driver", "../../../bus/pci/drivers/" + driver);
        folder.makeFolder(device + "/drm/" + card);
        folder.link(device + "/drm/" + card + "/device", "../..");
        folder.link("sys/class/drm/" + card, "../../devices/pci0000:00/" + address + "/drm/" + card);
    }
    std::vector<std::string> addresses() const {
        std::vector<std::string> result;
        for (const auto& card : listGPUCards(Root(folder.path(""))))
            result.push_back(card.address);
        return result;
    }

    TemporaryFolder folder;
};

} // namespace

TEST_F(GPUCardsOfATree, AreDescribedByDriverAndAddress) {
    add("card1", "0000:03:00.0", "amdgpu");
    folder.makeFolder("sys/class/drm/card1-DP-1");
    folder.makeFolder("sys/class/drm/renderD128");
    const auto cards = listGPUCards(Root(folder.path("")));
    ASSERT_EQ(cards.size(), 1U);
    EXPECT_EQ(cards[0].folder, "/sys/class/drm/card1");
    EXPECT_EQ(cards[0].driver, "amdgpu");
    EXPECT_EQ(cards[0].address, "0000:03:00.0");
    EXPECT_EQ(cards[0].number, 1U);
    EXPECT_FALSE(cards[0].startedTheScreen);
}

TEST_F(GPUCardsOfATree, BeginWithTheOneOfTheBootScreen) {
    add("card0", "0000:0b:00.0", "amdgpu");
    add("card1", "0000:03:00.0", "amdgpu");
    add("card2", "0000:0f:00.0", "amdgpu");
    EXPECT_THAT(addresses(), ElementsAre("0000:03:00.0", "0000:0b:00.0", "0000:0f:00.0"));
    folder.write("sys/devices/pci0000:00/0000:0f:00.0/boot_vga", "1\n");
    EXPECT_THAT(addresses(), ElementsAre("0000:0f:00.0", "0000:03:00.0", "0000:0b:00.0"));
}

TEST_F(GPUCardsOfATree, SleepWhenTheSystemSuspendedThem) {
    add("card0", "0000:01:00.0", "nvidia");
    const Root root(folder.path(""));
    const auto card = listGPUCards(root).at(0);
    const auto status = "sys/devices/pci0000:00/0000:01:00.0/power/runtime_status";
    EXPECT_FALSE(isSleeping(root, card));
    for (const auto* const state : {"active\n", "unsupported\n", "resuming\n"}) {
        folder.write(status, state);
        EXPECT_FALSE(isSleeping(root, card)) << state;
    }
    for (const auto* const state : {"suspended\n", "suspending\n"}) {
        folder.write(status, state);
        EXPECT_TRUE(isSleeping(root, card)) << state;
    }
}

TEST_F(GPUCardsOfATree, AreNoneWithoutAGraphicsCard) {
    EXPECT_TRUE(addresses().empty());
}

} // namespace tarvo::linux_platform
