#include "platform/mfc/property_sheet.h"

#include <gtest/gtest.h>

#include "platform/mfc/data_exchange.h"
#include "platform/mfc/resources.h"
#include "tests/platform/mfc/dialog_script.h"

namespace {

constexpr UINT EDIT = 100;

const CModuleResources& SheetResources() {
    static const CModuleResources resources{
        {{21, "", "first", 10, 10, {{EDIT, CControlKind::Edit, "", {}, 0}}},
         {22,
          "",
          "second",
          10,
          10,
          {{EDIT, CControlKind::Edit, "", {}, 0}, {101, CControlKind::Button, "", {}, 0}}}}};
    return resources;
}

class CTestPage : public CPropertyPage {
public:
    CTestPage(UINT nId, std::string* pLog)
        : CPropertyPage(nId)
        , m_pLog(pLog) {
        m_psp.dwFlags &= ~PSP_HASHELP;
    }
    BOOL OnInitDialog() override {
        *m_pLog += " init";
        return CPropertyPage::OnInitDialog();
    }
    void OnOK() override { *m_pLog += " ok"; }
    void OnCancel() override { *m_pLog += " cancel"; }
    BOOL OnKillActive() override { return m_bLeave && CPropertyPage::OnKillActive(); }

    CString m_strEdit;
    bool m_bLeave = true;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, EDIT, m_strEdit); }

private:
    std::string* m_pLog;
};

class PropertySheet : public testing::Test {
protected:
    PropertySheet() {
        m_sheet.AddPage(&m_first);
        m_sheet.AddPage(&m_second);
    }
    int Run(std::function<void()> play) {
        const CDialogScript script([&](CModalWindow&) { play(); });
        return m_sheet.DoModal();
    }

    CTemporaryResourceOverride m_resources{&SheetResources()};
    std::string m_strLog;
    CTestPage m_first{21, &m_strLog};
    CTestPage m_second{22, &m_strLog};
    CPropertySheet m_sheet{"sheet"};
};

} // namespace

TEST_F(PropertySheet, ShowsItsFirstPageAndItsOwnButtonsBehindThePagesControls) {
    Run([&] {
        EXPECT_EQ(m_sheet.GetActivePage(), &m_first);
        EXPECT_EQ(m_sheet.GetNumber(), 21U);
        std::vector<UINT> numbers;
        for (const CWnd* pItem : m_sheet.GetItems())
            numbers.push_back(pItem->GetDlgCtrlID());
        EXPECT_EQ(numbers, (std::vector<UINT>{EDIT, ID_OK, ID_CANCEL}));
        CString caption;
        m_sheet.GetWindowText(caption);
        EXPECT_STREQ(caption, "sheet");
        EXPECT_STREQ(m_sheet.GetPageCaption(m_second), "second");
    });
    EXPECT_EQ(m_strLog, " init"); // the second page was never made
}

TEST_F(PropertySheet, HasAHelpButtonWhenAPageAsksForOne) {
    m_second.m_psp.dwFlags |= PSP_HASHELP;
    Run([&] { EXPECT_NE(m_sheet.GetDlgItem(ID_HELP), nullptr); });
}

TEST_F(PropertySheet, MakesAPageWhenItIsShownFirstAndMovesValuesOnEachChange) {
    Run([&] {
        m_first.GetDlgItem(EDIT)->SetWindowText("typed");
        EXPECT_NE(m_sheet.SetActivePage(&m_second), FALSE);
        EXPECT_STREQ(m_first.m_strEdit, "typed");
        m_first.m_strEdit = "changed";
        EXPECT_NE(m_sheet.SetActivePage(&m_first), FALSE);
        CString text;
        m_first.GetDlgItem(EDIT)->GetWindowText(text);
        EXPECT_STREQ(text, "changed");
        EXPECT_EQ(m_strLog, " init init");
    });
}

TEST_F(PropertySheet, ShowingThePageShownDoesNothing) {
    Run([&] {
        m_first.GetDlgItem(EDIT)->SetWindowText("typed");
        EXPECT_NE(m_sheet.SetActivePage(&m_first), FALSE);
        EXPECT_STREQ(m_first.m_strEdit, "");
    });
}

TEST_F(PropertySheet, APageThatIsNotItsOwnCannotBeShown) {
    CTestPage stranger(21, &m_strLog);
    Run([&] {
        EXPECT_EQ(m_sheet.SetActivePage(&stranger), FALSE);
        EXPECT_EQ(m_sheet.GetActivePage(), &m_first);
    });
}

TEST_F(PropertySheet, APageThatRefusesToBeLeftKeepsPageAndSheet) {
    Run([&] {
        m_first.m_bLeave = false;
        EXPECT_EQ(m_sheet.SetActivePage(&m_second), FALSE);
        m_sheet.OnCommand(ID_OK, BN_CLICKED);
        EXPECT_NE(m_sheet.ContinueModal(), FALSE);
    });
}

TEST_F(PropertySheet, OkTakesTheValuesOfThePageShownAndConfirmsAllPagesMade) {
    EXPECT_EQ(Run([&] {
                  m_sheet.SetActivePage(&m_second);
                  m_second.GetDlgItem(EDIT)->SetWindowText("typed");
                  m_sheet.OnCommand(ID_OK, BN_CLICKED);
              }),
              static_cast<int>(ID_OK));
    EXPECT_STREQ(m_second.m_strEdit, "typed");
    EXPECT_EQ(m_strLog, " init init ok ok");
}

TEST_F(PropertySheet, CancelTellsThePagesMade) {
    EXPECT_EQ(Run([&] { m_sheet.OnCommand(ID_CANCEL, BN_CLICKED); }), static_cast<int>(ID_CANCEL));
    EXPECT_EQ(m_strLog, " init cancel");
}

TEST_F(PropertySheet, EndDialogOfAPageEndsTheSheet) {
    EXPECT_EQ(Run([&] {
                  m_first.EndDialog(1556);
                  EXPECT_EQ(m_first.ContinueModal(), FALSE);
              }),
              1556);
}

TEST_F(PropertySheet, GivesMinusOneWhenItsFirstPageHasNoResource) {
    CPropertySheet sheet("sheet");
    CTestPage page(99, &m_strLog);
    sheet.AddPage(&page);
    const CDialogScript script([](CModalWindow&) { FAIL() << "shown"; });
    EXPECT_EQ(sheet.DoModal(), -1);
}

TEST_F(PropertySheet, APageCanBringItsTemplateWithIt) {
    CDialogTemplate block = SheetResources().m_arDialogs[1];
    block.m_nId = 50;
    m_first.m_psp.dwFlags |= PSP_DLGINDIRECT;
    m_first.m_psp.pResource = &block;
    const CTemporaryResourceOverride none(nullptr);
    Run([&] {
        EXPECT_EQ(m_sheet.GetNumber(), 50U);
        EXPECT_EQ(m_sheet.SetActivePage(&m_second), FALSE); // it looks in the resources in force
    });
}
