#include "platform/mfc/dialog.h"

#include <gtest/gtest.h>

#include "platform/mfc/data_exchange.h"
#include "platform/mfc/list_box.h"
#include "platform/mfc/resources.h"
#include "tests/platform/mfc/dialog_script.h"

namespace {

constexpr UINT DIALOG_LIST = 100, DIALOG_CHECK = 101, DIALOG_EDIT = 102, DIALOG_BUTTON = 103;

const CModuleResources& DialogResources() {
    static const CModuleResources resources{{{7,
                                              "ASK",
                                              "caption",
                                              100,
                                              80,
                                              {{DIALOG_LIST, CControlKind::List, "", {}, 0},
                                               {DIALOG_CHECK, CControlKind::Check, "c", {}, 0},
                                               {DIALOG_EDIT, CControlKind::Edit, "", {}, CONTROL_DISABLED},
                                               {DIALOG_BUTTON, CControlKind::Button, "b", {}, CONTROL_HIDDEN},
                                               {ID_OK, CControlKind::Button, "ok", {}, CONTROL_DEFAULT},
                                               {ID_CANCEL, CControlKind::Button, "cancel", {}, 0}}}}};
    return resources;
}

class CAskDialog : public CDialog {
public:
    using CDialog::CDialog;
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_list.AddString("entry");
        return TRUE;
    }
    void OnButton() { ++m_nClicks; }

    CListBox m_list;
    int m_bCheck = 1;
    CString m_strEdit = "text";
    int m_nClicks = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        DDX_Control(pDX, DIALOG_LIST, m_list);
        DDX_Check(pDX, DIALOG_CHECK, m_bCheck);
        DDX_Text(pDX, DIALOG_EDIT, m_strEdit);
    }
    std::span<const CMessageEntry> GetMessageMap() const override {
        static const CMessageEntry map[] = {{DIALOG_BUTTON, BN_CLICKED, &CAskDialog::OnButton}};
        return map;
    }
};

} // namespace

TEST(Dialog, RunsWithTheTemplateOfTheResourcesInForce) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    CString caption;
    bool bShown = false;
    const CDialogScript script([&](CModalWindow& window) {
        bShown = true;
        EXPECT_EQ(&window, &dialog);
        EXPECT_EQ(window.GetNumber(), 7U);
        window.GetWindowText(caption);
        EXPECT_EQ(window.GetItems().size(), 6U);
        EXPECT_FALSE(window.GetDlgItem(DIALOG_EDIT)->IsWindowEnabled());
        EXPECT_FALSE(window.GetDlgItem(DIALOG_BUTTON)->IsWindowVisible());
        EXPECT_EQ(window.GetDlgItem(999), nullptr);
        window.OnCommand(ID_OK, BN_CLICKED);
    });
    EXPECT_EQ(dialog.DoModal(), static_cast<int>(ID_OK));
    EXPECT_TRUE(bShown);
    EXPECT_STREQ(caption, "caption");
}

TEST(Dialog, IsFoundByName) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog("ASK");
    const CDialogScript script([](CModalWindow& window) { window.OnCommand(ID_CANCEL, BN_CLICKED); });
    EXPECT_EQ(dialog.DoModal(), static_cast<int>(ID_CANCEL));
}

TEST(Dialog, GivesMinusOneWithoutItsResource) {
    const CDialogScript script([](CModalWindow&) { FAIL() << "shown"; });
    CAskDialog inForce(7);
    EXPECT_EQ(inForce.DoModal(), -1); // no resources in force
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog other(8);
    EXPECT_EQ(other.DoModal(), -1);
}

TEST(Dialog, GivesMinusOneWhenNothingShowsDialogs) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    EXPECT_EQ(dialog.DoModal(), -1);
}

TEST(Dialog, TakesATemplateInMemory) {
    CDialogTemplate block = DialogResources().m_arDialogs[0];
    block.m_nId = 70;
    CAskDialog dialog;
    EXPECT_EQ(dialog.InitModalIndirect(nullptr), FALSE);
    EXPECT_EQ(dialog.InitModalIndirect(&block), TRUE);
    const CDialogScript script([](CModalWindow& window) { EXPECT_EQ(window.GetNumber(), 70U); });
    EXPECT_EQ(dialog.DoModal(), static_cast<int>(ID_CANCEL)); // left open by the presenter
}

TEST(Dialog, ExchangesValuesBothWays) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    const CDialogScript script([&](CModalWindow& window) {
        EXPECT_EQ(window.GetDlgItem(DIALOG_LIST), &dialog.m_list);
        EXPECT_EQ(dialog.m_list.GetCount(), 1);
        EXPECT_EQ(window.GetDlgItem(DIALOG_CHECK)->GetControl()->m_nCheck, 1);
        CString text;
        window.GetDlgItem(DIALOG_EDIT)->GetWindowText(text);
        EXPECT_STREQ(text, "text");
        window.GetDlgItem(DIALOG_CHECK)->GetControl()->m_nCheck = 0;
        window.GetDlgItem(DIALOG_EDIT)->SetWindowText("new");
        EXPECT_EQ(dialog.m_bCheck, 1); // until the values are taken
        window.OnCommand(ID_OK, BN_CLICKED);
    });
    dialog.DoModal();
    EXPECT_EQ(dialog.m_bCheck, 0);
    EXPECT_STREQ(dialog.m_strEdit, "new");
}

TEST(Dialog, CancelTakesNoValues) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    const CDialogScript script([&](CModalWindow& window) {
        window.GetDlgItem(DIALOG_EDIT)->SetWindowText("new");
        window.OnCommand(ID_CANCEL, BN_CLICKED);
    });
    dialog.DoModal();
    EXPECT_STREQ(dialog.m_strEdit, "text");
}

TEST(Dialog, ControlsAreGoneAfterwardsAndTheDialogCanRunAgain) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    int nEntries = 0;
    const CDialogScript script([&](CModalWindow&) { nEntries += dialog.m_list.GetCount(); });
    dialog.DoModal();
    EXPECT_EQ(dialog.m_list.GetCount(), 0);
    EXPECT_EQ(dialog.GetDlgItem(DIALOG_LIST), nullptr);
    EXPECT_EQ(dialog.UpdateData(TRUE), FALSE);
    dialog.DoModal();
    EXPECT_EQ(nEntries, 2);
}

TEST(Dialog, HandsANotificationToTheHandlerOfItsMessageMap) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    const CDialogScript script([&](CModalWindow& window) {
        window.OnCommand(DIALOG_BUTTON, BN_CLICKED);
        window.OnCommand(DIALOG_BUTTON, BN_CLICKED + 1);
        window.OnCommand(DIALOG_CHECK, BN_CLICKED);
    });
    dialog.DoModal();
    EXPECT_EQ(dialog.m_nClicks, 1);
}

TEST(Dialog, EndDialogGivesItsNumber) {
    const CTemporaryResourceOverride resources(&DialogResources());
    CAskDialog dialog(7);
    const CDialogScript script([](CModalWindow& window) {
        EXPECT_NE(window.ContinueModal(), FALSE);
        window.EndDialog(1556);
        EXPECT_EQ(window.ContinueModal(), FALSE);
    });
    EXPECT_EQ(dialog.DoModal(), 1556);
}
