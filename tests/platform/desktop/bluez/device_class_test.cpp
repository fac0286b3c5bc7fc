#include "platform/desktop/bluez/device_class.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

struct Known {
    DeviceKind kind;
    DeviceClass expected;
};

class DeviceClassOf : public testing::TestWithParam<Known> {};

TEST_P(DeviceClassOf, IsItsOwnThenThatOfItsAppearanceThenThatOfItsIcon) {
    EXPECT_EQ(deviceClass(GetParam().kind), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    BlueZ, DeviceClassOf,
    testing::Values(Known{{0x2540, 0, ""}, {5, 0x10}}, Known{{0x2580, 0, ""}, {5, 0x20}},
                    Known{{0x5A020C, 0, ""}, {2, 3}}, Known{{0x240404, 0x3C1, "input-keyboard"}, {4, 1}},
                    Known{{0, 0x0040, ""}, {2, 0}}, Known{{0, 0x0080, ""}, {1, 0}},
                    Known{{0, 0x00C0, ""}, {7, 0}}, Known{{0, 0x00C2, ""}, {7, 0}},
                    Known{{0, 0x03C0, ""}, {5, 0}}, Known{{0, 0x03C1, ""}, {5, 0x10}},
                    Known{{0, 0x03C2, ""}, {5, 0x20}}, Known{{0, 0x03C3, ""}, {5, 0}},
                    Known{{0, 0x03C4, ""}, {5, 0}}, Known{{0, 0x0841, ""}, {4, 0}},
                    Known{{0, 0x0941, ""}, {4, 0}}, Known{{0, 0x0340, ""}, {0, 0}},
                    Known{{0, 0x03C2, "phone"}, {5, 0x20}}, Known{{0, 0x0340, "phone"}, {2, 0}},
                    Known{{0, 0, "computer"}, {1, 0}}, Known{{0, 0, "audio-headset"}, {4, 0}},
                    Known{{0, 0, "audio-card"}, {4, 0}}, Known{{0, 0, "input-keyboard"}, {5, 0x10}},
                    Known{{0, 0, "input-mouse"}, {5, 0x20}}, Known{{0, 0, "input-tablet"}, {5, 0}},
                    Known{{0, 0, "input-gaming"}, {5, 0}}, Known{{0, 0, "printer"}, {6, 0}},
                    Known{{0, 0, "camera-photo"}, {6, 0}}, Known{{0, 0, "camera-video"}, {6, 0}},
                    Known{{0, 0, "network-wireless"}, {0, 0}}, Known{{0, 0, ""}, {0, 0}}));

} // namespace
} // namespace tarvo::desktop
