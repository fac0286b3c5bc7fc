#include "core/shared_instance.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

struct Thing {
    int value = 0;
};

TEST(SharedInstance, TheLatestInstalledIsFoundUntilItsDoorCloses) {
    Thing first{1};
    Thing second{2};
    const SharedInstance<Thing> outer(first);
    {
        const SharedInstance<Thing> inner(second);
        EXPECT_EQ(SharedInstance<Thing>::get().value, 2);
    }
    EXPECT_EQ(SharedInstance<Thing>::get().value, 1);
}

} // namespace
} // namespace tarvo
