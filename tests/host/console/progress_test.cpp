#include "host/console/progress.h"

#include <gtest/gtest.h>

TEST(Progress, WorkGoesOnWhereNobodyLooks) {
    EXPECT_TRUE(ShowProgress("Plotting", 1, 2));
}

TEST(Progress, TheOneWhoLooksHearsAllAndCanGiveItUp) {
    std::string strHeard;
    SetProgressSink([&](const std::string& strWork, std::size_t nDone, std::size_t nAll) {
        strHeard += strWork + " " + std::to_string(nDone) + "/" + std::to_string(nAll) + " ";
        return nDone < 1;
    });
    EXPECT_TRUE(ShowProgress("Plotting", 0, 2));
    EXPECT_FALSE(ShowProgress("Plotting", 1, 2));
    SetProgressSink({});
    EXPECT_TRUE(ShowProgress("Plotting", 1, 2));
    EXPECT_EQ(strHeard, "Plotting 0/2 Plotting 1/2 ");
}
