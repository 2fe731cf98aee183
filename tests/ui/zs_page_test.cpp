#include "ui/zs_page.h"

#include <gtest/gtest.h>

#include <ctime>

TEST(ZSPage, BeginsWithAllSwitchesOnTextsEmptyAndTheDateToday) {
    const std::time_t before = std::time(nullptr);
    const CZSPage page;
    EXPECT_EQ(page.m_bDate, 1);
    EXPECT_EQ(page.m_bTester, 1);
    EXPECT_EQ(page.m_bUnit, 1);
    EXPECT_EQ(page.m_bChecker, 1);
    EXPECT_STREQ(page.m_strChecker, "");
    EXPECT_STREQ(page.m_strUnit, "");
    EXPECT_STREQ(page.m_strTester, "");
    EXPECT_STREQ(page.m_strDate, "");
    EXPECT_GE(page.m_tDate.GetTime(), before);
    EXPECT_LE(page.m_tDate.GetTime(), std::time(nullptr));
}

TEST(ZSPage, AsksForNoHelpButton) {
    EXPECT_EQ(CZSPage().m_psp.dwFlags & PSP_HASHELP, 0U);
}
