#include "host/desktop/dialogs/selection_change.h"

#include <gtest/gtest.h>

#include "tests/host/console/test_dialog.h"
#include "tests/platform/mfc/dialog_script.h"

using namespace TestDialog;

namespace {

class SelectionChange : public testing::Test {
protected:
    void Play(const std::function<void()>& user) {
        const CDialogScript script([&](CModalWindow&) { user(); });
        m_dialog.DoModal();
    }
    void Change(const std::vector<int>& arRows) { ChangeSelection(*m_dialog.GetDlgItem(SEVERAL), arRows); }
    std::string Selected() const { return m_dialog.Selected(SEVERAL); }

    CTestDialog m_dialog;
};

} // namespace

TEST_F(SelectionChange, TellsEachEntryTakenInItsOrder) {
    Play([&] {
        Change({0, 2, 3});
        EXPECT_EQ(Selected(), "[1-1][all][试样]");
        EXPECT_EQ(m_dialog.m_strLog, " 11:1 11:1 11:1");
    });
}

TEST_F(SelectionChange, TellsOnlyWhatChangesWhereSomeStay) {
    Play([&] {
        Change({0, 1, 2});
        m_dialog.m_strLog.clear();
        Change({1, 2, 3});
        EXPECT_EQ(Selected(), "[*1-2][all][试样]");
        EXPECT_EQ(m_dialog.m_strLog, " 11:1 11:1"); // one given up, one taken
        Change({1, 2, 3});
        EXPECT_EQ(m_dialog.m_strLog, " 11:1 11:1");
    });
}

TEST_F(SelectionChange, ANewEntryAloneEndsTheOthersAtOnce) {
    Play([&] {
        Change({0, 1, 2});
        m_dialog.m_strLog.clear();
        Change({4});
        EXPECT_EQ(Selected(), "[twin]");
        EXPECT_EQ(m_dialog.m_strLog, " 11:1");
    });
}

TEST_F(SelectionChange, GivesUpEveryEntry) {
    Play([&] {
        Change({0, 1});
        m_dialog.m_strLog.clear();
        Change({});
        EXPECT_EQ(Selected(), "");
        EXPECT_EQ(m_dialog.m_strLog, " 11:1 11:1");
    });
}

TEST_F(SelectionChange, EndsWhereAHandlerTookTheEntriesAway) {
    struct CShrinking : CTestDialog {
        void OnCommand(UINT nId, int nCode) override {
            CTestDialog::OnCommand(nId, nCode);
            State(SEVERAL).m_arEntries.resize(2);
        }
    } dialog;
    const CDialogScript script([&](CModalWindow&) {
        ChangeSelection(*dialog.GetDlgItem(SEVERAL), {1, 3, 4});
        EXPECT_EQ(dialog.Selected(SEVERAL), "[*1-2]");
    });
    dialog.DoModal();
    EXPECT_EQ(dialog.m_strLog, " 11:1");
}
