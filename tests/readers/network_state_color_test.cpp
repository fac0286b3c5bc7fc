#include "readers/network_state_color.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(NetworkStateColor, TellsStatesApart) {
    EXPECT_EQ(networkStateColor("ESTABLISHED"), NetworkStateColor::green);
    EXPECT_EQ(networkStateColor("LISTEN"), NetworkStateColor::blue);
    EXPECT_EQ(networkStateColor("CLOSE_WAIT"), NetworkStateColor::orange);
    EXPECT_EQ(networkStateColor("TIME_WAIT"), NetworkStateColor::orange);
    EXPECT_EQ(networkStateColor("CLOSING"), NetworkStateColor::orange);
    EXPECT_EQ(networkStateColor("SYN_SENT"), NetworkStateColor::purple);
    EXPECT_EQ(networkStateColor("SYN_RCVD"), NetworkStateColor::purple);
}

TEST(NetworkStateColor, IsGreyForAnythingElse) {
    EXPECT_EQ(networkStateColor(""), NetworkStateColor::grey);
    EXPECT_EQ(networkStateColor("FIN_WAIT_1"), NetworkStateColor::grey);
    EXPECT_EQ(networkStateColor("LISTENING"), NetworkStateColor::grey);
    EXPECT_EQ(networkStateColor("CLOSE"), NetworkStateColor::grey);
}

TEST(NetworkStateColor, DoesNotMindTheCase) {
    EXPECT_EQ(networkStateColor("established"), NetworkStateColor::green);
    EXPECT_EQ(networkStateColor("Syn_Sent"), NetworkStateColor::purple);
}

} // namespace tarvo
