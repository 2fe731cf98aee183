// The list of stored chart drawings on the screen, beside the same dialog answered by a script.

#include <filesystem>

#include "commands/document_session.h"
#include "tests/host/desktop/dialogs/module_dialogs.h"
#include "ui/br_open_dlg.h"

namespace {

class OpenDialogOnScreen : public CModuleDialogTest {
protected:
    OpenDialogOnScreen() {
        AddReading("ZK1", "1-1");
        AddReading("ZK10", "1-1");
        const std::string strFolder = "Output/G1/" + ToUtf8("室内曲线") + "/";
        std::filesystem::create_directories(m_root.Path(strFolder));
        for (const char* pTitle : {"BRZK1-1", "BRZK1-3~5", "BRZK1-6", "BRZK10-1", "BR全部-全部试样"})
            m_root.Write(strFolder + ToUtf8(pTitle) + ".dwg", "");
    }
    ~OpenDialogOnScreen() override { SetSdi(0); }

    void ExpectSame(const std::vector<std::string>& lines, const std::function<void()>& user) {
        CBROpenDlg scripted;
        EXPECT_EQ(ByHand(m_dialog, user), Script(scripted, lines));
        EXPECT_STREQ(m_dialog.m_strOpenResult, scripted.m_strOpenResult);
        EXPECT_STREQ(m_dialog.m_strOpenZK, scripted.m_strOpenZK);
    }

    CBROpenDlg m_dialog;
};

} // namespace

TEST_F(OpenDialogOnScreen, GivesTheDrawingsChosenByTheMouse) {
    ExpectSame({"select 1056 试样ZK1-1 试样ZK1-6"}, [] {
        CUserHand::ClickEntry(IDC_OPEN_CHART_LIST, 0);
        CUserHand::ClickEntry(IDC_OPEN_CHART_LIST, 2, Qt::ControlModifier);
    });
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BRZK1-1|BRZK1-6");
}

TEST_F(OpenDialogOnScreen, GivesTheDrawingsChosenByTheKeyboardAlone) {
    ExpectSame({"select 1055 ZK10", "select 1056 试样ZK10-1"}, [] {
        CUserHand::Key(Qt::Key_T, Qt::AltModifier);
        EXPECT_EQ(CUserHand::Focused(), IDC_OPEN_CHART_LIST);
        CUserHand::Key(Qt::Key_Z, Qt::AltModifier);
        EXPECT_EQ(CUserHand::Focused(), IDC_OPEN_ZK_LIST);
        CUserHand::Key(Qt::Key_Down);
        CUserHand::Key(Qt::Key_Tab);
        CUserHand::Key(Qt::Key_Space);
    });
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BRZK10-1");
}

TEST_F(OpenDialogOnScreen, ShowsTheDrawingOfAllSamplesUnderItsOwnEntry) {
    ExpectSame({"select 1055 全部", "select 1056 试样全部-全部试样"}, [] {
        CUserHand::Key(Qt::Key_End);
        CUserHand::ClickEntry(IDC_OPEN_CHART_LIST, 0);
    });
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BR全部-全部试样");
}

TEST_F(OpenDialogOnScreen, OpensADrawingAtADoubleClick) {
    EXPECT_EQ(WorkIn(m_dialog, [] { CUserHand::DoubleClickEntry(IDC_OPEN_CHART_LIST, 1); }), ID_OK);
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BRZK1-3~5");
}

TEST_F(OpenDialogOnScreen, KeepsOneDrawingSelectedInSingleDocumentMode) {
    SetSdi(1);
    ExpectSame({"select 1056 试样ZK1-1 试样ZK1-6"}, [&] {
        CUserHand::ClickEntry(IDC_OPEN_CHART_LIST, 0);
        CUserHand::ClickEntry(IDC_OPEN_CHART_LIST, 2, Qt::ControlModifier);
        EXPECT_EQ(DifferencesOnScreen(m_dialog), "");
    });
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BRZK1-6");
    ExpectSame({"select 1056 all"}, [] {
        CUserHand::TabTo(IDC_OPEN_CHART_LIST);
        CUserHand::Key(Qt::Key_A, Qt::ControlModifier);
    });
}

TEST_F(OpenDialogOnScreen, StaysWithItsMessageWhereNoDrawingIsListed) {
    std::filesystem::remove_all(m_root.Path("Output"));
    WorkIn(m_dialog, [&] {
        CUserHand::Key(Qt::Key_Return);
        EXPECT_EQ(Boxes(), "[请选择试样,然后确认!]");
        EXPECT_TRUE(CUserHand::Window().isVisible());
    });
}
