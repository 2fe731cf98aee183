#include "ui/zs_page.h"

#include <ctime>

#include "platform/mfc/property_sheet.h"
#include "tests/ui/dialog_fixture.h"
#include "ui/page_settings.h"

namespace {

class ZSPage : public CDialogTest {
protected:
    ZSPage() { m_sheet.AddPage(&m_page); }
    /// The date shown, when the settings have this text.
    std::string Shown(const char* pDate) {
        WritePageText(g_settingDate, pDate);
        std::string strShown;
        Play(m_sheet, [&] {
            const auto date = m_page.m_dateCtrl.GetControl()->m_date;
            strShown = std::to_string(static_cast<int>(date.year())) + "." +
                       std::to_string(static_cast<unsigned>(date.month())) + "." +
                       std::to_string(static_cast<unsigned>(date.day()));
        });
        return strShown;
    }

    CZSPage m_page;
    CPropertySheet m_sheet{"页"};
};

} // namespace

TEST_F(ZSPage, BeginsWithAllSwitchesOnTextsEmptyAndTheDateToday) {
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

TEST_F(ZSPage, AsksForNoHelpButton) {
    EXPECT_EQ(m_page.m_psp.dwFlags & PSP_HASHELP, 0U);
}

TEST_F(ZSPage, ShowsAndWritesTheSettings) {
    WritePageNumber(g_settingShowTester, 0);
    WritePageText(g_settingUnit, "一院");
    WritePageText(g_settingTester, "甲");
    WritePageText(g_settingChecker, "乙");
    WritePageText(g_settingDate, "2024年3月9日");
    EXPECT_EQ(Play(m_sheet,
                   [&] {
                       EXPECT_EQ(TextOf(m_page, 1016), "一院");
                       EXPECT_EQ(TextOf(m_page, 1017), "甲");
                       EXPECT_EQ(TextOf(m_page, 1018), "乙");
                       std::string strChecks;
                       for (const UINT nId : {1021U, 1022U, 1023U, 1024U})
                           strChecks += std::to_string(m_page.GetDlgItem(nId)->GetControl()->m_nCheck);
                       EXPECT_EQ(strChecks, "1011");
                       for (const char* pLine :
                            {"uncheck 1021", "check 1022", "uncheck 1023", "uncheck 1024", "set 1016 Unit",
                             "set 1017 Tester", "set 1018 Checker", "set 1019 2025-12-31", "ok"})
                           RunDialogLine(m_sheet, pLine);
                   }),
              ID_OK);
    EXPECT_STREQ(m_page.m_strDate, "2025年12月31日");
    for (const CPageSetting& setting : {g_settingShowUnit, g_settingShowChecker, g_settingShowDate})
        EXPECT_EQ(ReadPageNumber(setting), 0) << setting.m_pszKey;
    EXPECT_EQ(ReadPageNumber(g_settingShowTester), 1);
    EXPECT_EQ(ReadPageText(g_settingUnit), "Unit");
    EXPECT_EQ(ReadPageText(g_settingTester), "Tester");
    EXPECT_EQ(ReadPageText(g_settingChecker), "Checker");
    EXPECT_EQ(ReadPageText(g_settingDate), "2025年12月31日");
}

TEST_F(ZSPage, WritesItsKeysInOrder) {
    EXPECT_EQ(Run(m_sheet, {"set 1019 2024-03-09", "ok"}), ID_OK);
    EXPECT_EQ(ToUtf8(m_root.Read("Settings.ini")),
              ToUtf8("[CBRENDlg]\nbRQ=1\nbSYZ=1\nbWCDW=1\nbJCZ=1\nsJCZ=\nsWCDW=\nsSYZ=\nsRQ=2024年3月9日\n"));
}

TEST_F(ZSPage, WritesADateInTheFormInWhichItReadIt) {
    EXPECT_EQ(Shown("2024年3月9日"), "2024.3.9");
    WritePageText(g_settingDate, "2024年3月9日");
    EXPECT_EQ(Run(m_sheet, {"ok"}), ID_OK);
    EXPECT_EQ(ReadPageText(g_settingDate), "2024年3月9日");
}

TEST_F(ZSPage, ShowsTodayForATextThatSaysNoDay) {
    const std::string strToday = Shown("");
    for (const char* pDate : {"2024-3-9", "1899年3月9日", "2024年13月9日", "3月9日2024年"})
        EXPECT_EQ(Shown(pDate), strToday) << pDate;
}

TEST_F(ZSPage, CutsALongTextWithTheNextReading) {
    EXPECT_EQ(Run(m_sheet, {"set 1016 \"01234567890123456789\"", "ok"}), ID_OK);
    Play(m_sheet, [&] { EXPECT_EQ(TextOf(m_page, 1016), "01234567890123"); });
}

TEST_F(ZSPage, WritesNothingWhenItIsCancelled) {
    EXPECT_EQ(Run(m_sheet, {"set 1016 x", "cancel"}), ID_CANCEL);
    EXPECT_EQ(m_root.Read("Settings.ini"), "");
}

TEST_F(ZSPage, IsMadeByItsName) {
    const std::unique_ptr<CWnd> pMade(CRuntimeClass::CreateObject("CZSPage"));
    EXPECT_NE(dynamic_cast<CZSPage*>(pMade.get()), nullptr);
}
