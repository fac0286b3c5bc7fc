#include "platform/linux/cpu_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(CPUList, NamesCPUsAndRanges) {
    EXPECT_THAT(parseCPUList("0"), Optional(ElementsAre(0)));
    EXPECT_THAT(parseCPUList("16-18,30"), Optional(ElementsAre(16, 17, 18, 30)));
    EXPECT_THAT(parseCPUList("3,1-1,65535"), Optional(ElementsAre(3, 1, 65535)));
    EXPECT_THAT(parseCPUList(""), Optional(IsEmpty()));
}

TEST(CPUList, RefusesWhatIsNoList) {
    for (const char* text : {",", "1,,2", "-", "1-", "-1", "3-1", "a", "1 ", "1-2-3", "65536", "0x1", "+1"}) {
        EXPECT_EQ(parseCPUList(text), std::nullopt) << text;
    }
}

TEST(CPUList, RefusesMoreCPUsThanAMachineCanHave) {
    EXPECT_EQ(parseCPUList("0-65535,0-65535"), std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
