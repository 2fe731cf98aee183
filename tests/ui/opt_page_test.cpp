#include "ui/opt_page.h"

#include "platform/mfc/property_sheet.h"
#include "tests/ui/dialog_fixture.h"
#include "ui/page_settings.h"

namespace {

constexpr const char* g_pDefaults = "[CBRENDlg]\nbWJKX=1\nbYZT=1\nsTF=A4\nnNUM=2\n";

class OptPage : public CDialogTest {
protected:
    OptPage() { m_sheet.AddPage(&m_page); }
    void Line(const std::string& strLine) { RunDialogLine(m_sheet, strLine); }
    std::string Size() const {
        CString strSize;
        m_page.m_comboSize.GetLBText(m_page.m_comboSize.GetCurSel(), strSize);
        return strSize.GetString();
    }

    COptPage m_page;
    CPropertySheet m_sheet{"页"};
};

} // namespace

TEST_F(OptPage, BeginsWithItsOwnValues) {
    EXPECT_EQ(m_page.m_bFrameBorder, 1);
    EXPECT_STREQ(m_page.m_strSheetSize, "A4");
    EXPECT_EQ(m_page.m_bOneDwg, 0);
    EXPECT_EQ(m_page.m_nPerRow, 2);
    EXPECT_EQ(m_page.m_nMode, 0);
    EXPECT_EQ(m_page.m_psp.dwFlags & PSP_HASHELP, 0U);
}

TEST_F(OptPage, ShowsTheDefaultsOfTheSettings) {
    EXPECT_EQ(Play(m_sheet,
                   [&] {
                       EXPECT_EQ(m_page.m_bOneDwg, 1);
                       EXPECT_EQ(Entries(m_page, 1028), " A0 A1 A2 A3>A4");
                       EXPECT_EQ(TextOf(m_page, 1058), "2");
                       EXPECT_EQ(Greyed(m_page), "");
                       EXPECT_TRUE(m_page.m_comboSize.IsWindowEnabled());
                       Line("ok");
                   }),
              ID_OK);
    EXPECT_EQ(m_root.Read("Settings.ini"), g_pDefaults);
}

TEST_F(OptPage, ShowsAndWritesTheSettings) {
    WritePageNumber(g_settingOuterFrame, 0);
    WritePageNumber(g_settingOneFile, 0);
    WritePageText(g_settingSheetSize, "A2");
    WritePageNumber(g_settingFramesPerRow, 7);
    EXPECT_EQ(
        Play(m_sheet,
             [&] {
                 EXPECT_EQ(Size(), "A2");
                 EXPECT_EQ(Greyed(m_page), "1058");
                 for (const char* pLine : {"check 1026", "check 1027", "select 1028 A0", "set 1058 3", "ok"})
                     Line(pLine);
             }),
        ID_OK);
    EXPECT_EQ(m_root.Read("Settings.ini"), "[CBRENDlg]\nbWJKX=1\nbYZT=1\nsTF=A0\nnNUM=3\n");
}

TEST_F(OptPage, WritesNothingWhenItIsCancelled) {
    EXPECT_EQ(Run(m_sheet, {"uncheck 1026", "cancel"}), ID_CANCEL);
    EXPECT_EQ(m_root.Read("Settings.ini"), "");
}

TEST_F(OptPage, TakesTheSizeWhenTheListCloses) {
    Play(m_sheet, [&] {
        Line("select 1028 A1");
        EXPECT_STREQ(m_page.m_strSheetSize, "A1");
    });
}

TEST_F(OptPage, GreysTheNumberOfFramesAndKeepsItsValue) {
    EXPECT_EQ(Play(m_sheet,
                   [&] {
                       Line("set 1058 9");
                       Line("uncheck 1027");
                       EXPECT_EQ(Greyed(m_page), "1058");
                       EXPECT_EQ(TextOf(m_page, 1058), "9");
                       EXPECT_EQ(m_page.m_bOneDwg, 0);
                       Line("check 1027");
                       EXPECT_EQ(Greyed(m_page), "");
                       Line("uncheck 1027");
                       Line("ok");
                   }),
              ID_OK);
    EXPECT_EQ(ReadPageNumber(g_settingFramesPerRow), 9);
    EXPECT_EQ(ReadPageNumber(g_settingOneFile), 0);
}

TEST_F(OptPage, RefusesANumberOfFramesOutOfRange) {
    EXPECT_EQ(Play(m_sheet,
                   [&] {
                       for (const char* pNumber : {"0", "100001", "-1", "x"}) {
                           Line(std::string("set 1058 ") + pNumber);
                           Line("ok");
                           EXPECT_TRUE(m_sheet.ContinueModal()) << pNumber;
                       }
                       Line("set 1058 100000");
                       Line("ok");
                   }),
              ID_OK);
    EXPECT_EQ(m_arBoxes.size(), 4U);
    EXPECT_EQ(ReadPageNumber(g_settingFramesPerRow), 100000);
}

TEST_F(OptPage, LetsNoSizeBeChosenInModeTwo) {
    m_page.m_nMode = 2;
    Play(m_sheet, [&] {
        EXPECT_FALSE(m_page.m_comboSize.IsWindowEnabled());
        EXPECT_EQ(Size(), "A4");
    });
}

TEST_F(OptPage, IsMadeByItsName) {
    const std::unique_ptr<CWnd> pMade(CRuntimeClass::CreateObject("COptPage"));
    EXPECT_NE(dynamic_cast<COptPage*>(pMade.get()), nullptr);
}
