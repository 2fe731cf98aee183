#include "ui/page_settings.h"

#include <array>

#include "tests/support/suite_fixture.h"

namespace {

class PageSettings : public CSuiteTest {};

} // namespace

TEST_F(PageSettings, HaveTheirDefaults) {
    for (const CPageSetting& setting : {g_settingOuterFrame, g_settingOneFile, g_settingShowDate,
                                        g_settingShowTester, g_settingShowUnit, g_settingShowChecker})
        EXPECT_EQ(ReadPageNumber(setting), 1) << setting.m_pszKey;
    EXPECT_EQ(ReadPageText(g_settingSheetSize), "A4");
    EXPECT_EQ(ReadPageNumber(g_settingFramesPerRow), 2);
    for (const CPageSetting& setting : {g_settingChecker, g_settingUnit, g_settingTester, g_settingDate})
        EXPECT_EQ(ReadPageText(setting), "") << setting.m_pszKey;
}

TEST_F(PageSettings, StandInTheSettingsFile) {
    WritePageNumber(g_settingFramesPerRow, 5);
    WritePageText(g_settingSheetSize, "A3");
    EXPECT_EQ(m_root.Read("Settings.ini"), "[CBRENDlg]\nnNUM=5\nsTF=A3\n");
    EXPECT_EQ(ReadPageNumber(g_settingFramesPerRow), 5);
    EXPECT_EQ(ReadPageText(g_settingSheetSize), "A3");
}

TEST_F(PageSettings, AreCutWhenTheyAreRead) {
    WritePageText(g_settingUnit, "一二三四五六七八九十一二三四五六七八九十");
    EXPECT_EQ(ReadPageText(g_settingUnit), "一二三四五六七");
    WritePageText(g_settingUnit, "a一二三四五六七");
    EXPECT_EQ(ReadPageText(g_settingUnit), "a一二三四五六"); // at a character
    std::array<char, 64> szWhole{};
    GetPrivateProfileStringA("CBRENDlg", "sWCDW", "", szWhole.data(), szWhole.size(), g_strSettingsIni);
    EXPECT_STREQ(szWhole.data(), "a一二三四五六七");
}

TEST_F(PageSettings, HoldADateWithTwoDigitMonthAndDay) {
    WritePageText(g_settingDate, "2024年12月31日");
    EXPECT_EQ(ReadPageText(g_settingDate), "2024年12月31日");
}

TEST_F(PageSettings, ReadANumberThatIsNoneAsZero) {
    WritePageText(g_settingFramesPerRow, "两");
    EXPECT_EQ(ReadPageNumber(g_settingFramesPerRow), 0);
    WritePageText(g_settingFramesPerRow, "3个");
    EXPECT_EQ(ReadPageNumber(g_settingFramesPerRow), 3);
}
