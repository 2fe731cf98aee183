#include "platform/windows/host_assert.h"

#include <gtest/gtest.h>

TEST(HostAssertDeathTest, StopsTheProcessAndSaysWhy) {
    EXPECT_DEATH(HOST_ASSERT(1 + 1 == 3, "sums are right"),
                 "host_assert_test.cpp:[0-9]+: sums are right .1 \\+ 1 == 3.");
}

TEST(HostAssert, GoesOnWhenTheConditionHolds) {
    int evaluated = 0;
    HOST_ASSERT(++evaluated == 1, "the condition is evaluated once");
    EXPECT_EQ(evaluated, 1);
}
