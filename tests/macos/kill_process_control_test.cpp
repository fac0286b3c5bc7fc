#include "platform/macos/kill_process_control.h"

#include "macos/mac_test.h"

namespace tarvo {
namespace {

using namespace fakes;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr int politeRequest = 15;

class KillProcessControlTest : public MacTest {
protected:
    macos_platform::KillProcessControl control;
};

TEST_F(KillProcessControlTest, AsksExactlyThatProcessToEnd) {
    const auto terminate = control.terminator(412);
    EXPECT_THAT(processes().signals, IsEmpty());
    EXPECT_TRUE(terminate());
    EXPECT_THAT(processes().signals, ElementsAre(Pair(412, politeRequest)));
}

TEST_F(KillProcessControlTest, TellsWhenNothingWasSent) {
    processes().refuses = true;
    EXPECT_FALSE(control.terminate(412));
}

TEST_F(KillProcessControlTest, NeverSignalsAGroupOrTheSystem) {
    for (const std::int32_t pid : {1, 0, -1, -412})
        EXPECT_FALSE(control.terminate(pid));
    EXPECT_THAT(processes().signals, IsEmpty());
}

} // namespace
} // namespace tarvo
