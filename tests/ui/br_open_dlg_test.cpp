#include "ui/br_open_dlg.h"

#include <filesystem>

#include "commands/document_session.h"
#include "platform/mfc/user_actions.h"
#include "tests/ui/dialog_fixture.h"

namespace {

constexpr const char* g_pNoChoice = "[请选择试样,然后确认!]";

class BROpenDlg : public CDialogTest {
protected:
    ~BROpenDlg() override { SetSdi(0); }

    /// Stored drawings of project G1, by their titles.
    void Store(const std::vector<const char*>& titles) const {
        const std::string strFolder = "Output/G1/" + ToUtf8("室内曲线") + "/";
        std::filesystem::create_directories(m_root.Path(strFolder));
        for (const char* pTitle : titles)
            m_root.Write(strFolder + ToUtf8(pTitle) + ".dwg", "");
    }
    std::string Charts() const { return Entries(m_dialog, 1056); }
    std::string Boreholes() const { return Entries(m_dialog, 1055); }
    void Line(const std::string& strLine) { RunDialogLine(m_dialog, ToUtf8(strLine)); }

    CBROpenDlg m_dialog;
};

} // namespace

TEST_F(BROpenDlg, ListsBoreholesInNaturalOrderAndTheChartsOfTheFirst) {
    for (const char* pZKBH : {"K10", "9", "10", "K10", "9"})
        AddReading(pZKBH, "1-1");
    Execute("INSERT INTO z_c_SanZhouCSXM SELECT 8,'8','other project',1,1,1,1,1,1,1,1,1,1,1,1,1");
    Store({"BR9-1", "BR9-2~3", "BR10-1", "XX9-1"});
    Play(m_dialog, [&] {
        EXPECT_EQ(Boreholes(), ">9 10 K10");
        EXPECT_EQ(Charts(), " 试样9-1 试样9-2和3");
        EXPECT_STREQ(m_dialog.m_strOpenZK, "9");
        EXPECT_STREQ(m_dialog.m_strOpenGCBH, "G1");
        EXPECT_EQ(m_dialog.m_nGCSY, 1);
        EXPECT_EQ(m_dialog.GetIcon(TRUE), 1006U);
        EXPECT_EQ(m_dialog.GetIcon(FALSE), 1006U);
    });
    EXPECT_EQ(Boxes(), "");
}

TEST_F(BROpenDlg, ListsTheChartsOfTheBoreholeChosen) {
    AddReading("ZK1", "1-1");
    AddReading("ZK10", "1-1");
    AddReading("ZK2", "1-1");
    Store({"BRZK1-3~5", "BRZK10-1", "BRXZK1-2"});
    Play(m_dialog, [&] {
        EXPECT_EQ(Charts(), " 试样ZK1-3和5");
        Line("select 1055 ZK10");
        EXPECT_EQ(Charts(), " 试样ZK10-1");
        EXPECT_STREQ(m_dialog.m_strOpenZK, "ZK10");
        Line("select 1055 ZK2");
        EXPECT_EQ(Charts(), "");
    });
}

TEST_F(BROpenDlg, ListsAChartUnderBothBoreholesThatItsHyphensMake) {
    AddReading("A", "1");
    AddReading("A-1", "2");
    Store({"BRA-1-2"});
    Play(m_dialog, [&] {
        EXPECT_EQ(Charts(), " 试样A-1-2");
        Line("select 1055 A-1");
        EXPECT_EQ(Charts(), " 试样A-1-2");
    });
}

TEST_F(BROpenDlg, HasAnEntryForTheDrawingOfAllSamplesWhereThereIsOne) {
    AddReading("1", "1-1");
    Play(m_dialog, [&] { EXPECT_EQ(Boreholes(), ">1"); });
    Store({"BR全部-全部试样", "BR1-1"});
    Play(m_dialog, [&] {
        EXPECT_EQ(Boreholes(), ">1 全部");
        EXPECT_EQ(Charts(), " 试样1-1");
        Line("select 1055 全部");
        EXPECT_EQ(Charts(), " 试样全部-全部试样");
        Line("dblclick 1056 试样全部-全部试样");
    });
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BR全部-全部试样");
}

TEST_F(BROpenDlg, GivesTheChosenTitles) {
    AddReading("1", "1-1");
    Store({"BR1-1", "BR1-2", "BR1-3"});
    EXPECT_EQ(Run(m_dialog, {"select 1056 试样1-3 试样1-1", "ok"}), ID_OK);
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BR1-1|BR1-3");
    EXPECT_STREQ(m_dialog.m_strOpenZK, "1");
    EXPECT_EQ(Run(m_dialog, {"dblclick 1056 试样1-2"}), ID_OK);
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BR1-2");
}

TEST_F(BROpenDlg, GivesNoneWhenNoneIsChosen) {
    AddReading("1", "1-1");
    Store({"BR1-1"});
    m_dialog.m_strOpenResult = "before";
    EXPECT_EQ(Run(m_dialog, {"ok"}), ID_OK);
    EXPECT_STREQ(m_dialog.m_strOpenResult, "");
}

TEST_F(BROpenDlg, StaysOpenWhenNoChartIsListed) {
    AddReading("1", "1-1");
    Play(m_dialog, [&] {
        Line("ok");
        EXPECT_TRUE(m_dialog.ContinueModal());
    });
    EXPECT_EQ(Boxes(), g_pNoChoice);
}

TEST_F(BROpenDlg, StaysEmptyForAProjectWithoutReadings) {
    Store({"BR全部-全部试样"});
    Play(m_dialog, [&] {
        EXPECT_EQ(Boreholes(), "");
        EXPECT_EQ(Charts(), "");
    });
    EXPECT_EQ(Boxes(), "");
}

TEST_F(BROpenDlg, StaysEmptyWhenTheReadingsCannotBeOpened) {
    Execute("DROP TABLE z_c_SanZhouCSXM");
    int nShown = 0;
    Play(m_dialog, [&] {
        nShown++;
        EXPECT_EQ(Boreholes(), "");
    });
    EXPECT_EQ(nShown, 1);
    EXPECT_EQ(Boxes(), "[不能打开三轴剪切试验项目表,请检查数据!]");
}

TEST_F(BROpenDlg, StaysEmptyWithoutAProject) {
    AddReading("1", "1-1");
    SetProject("GCSY", "-1");
    Play(m_dialog, [&] { EXPECT_EQ(Boreholes(), ""); });
    ASSERT_FALSE(m_arBoxes.empty());
    const std::string strFirst = m_arBoxes.front();
    m_arBoxes.clear();
    EXPECT_EQ(GetProjectIndex(), -1);
    EXPECT_EQ(Boxes(), "[" + strFirst + "]");
}

TEST_F(BROpenDlg, ShowsWhatTheCallerGives) {
    AddReading("1", "1-1");
    Store({"BR1-1"});
    m_dialog.m_bPreset = 1;
    m_dialog.m_strOpenZK = "K7";
    for (const char* pTitle : {"BRK7-1~2", "BRK7-3"})
        m_dialog.m_saOpenFiles.Add(pTitle);
    EXPECT_EQ(Play(m_dialog,
                   [&] {
                       EXPECT_EQ(Boreholes(), ">K7");
                       EXPECT_EQ(Charts(), " 试样K7-1和2 试样K7-3");
                       Line("select 1055 K7");
                       EXPECT_EQ(Charts(), " 试样K7-1和2 试样K7-3");
                       Line("select 1056 试样K7-3");
                       Line("ok");
                   }),
              ID_OK);
    EXPECT_STREQ(m_dialog.m_strOpenResult, "BRK7-3");
    EXPECT_STREQ(m_dialog.m_strOpenGCBH, "");
    EXPECT_STREQ(m_dialog.m_strOpenZK, "K7");
}

TEST_F(BROpenDlg, KeepsOneChartSelectedInSingleDocumentMode) {
    AddReading("1", "1-1");
    Store({"BR1-1", "BR1-2", "BR1-3"});
    SetSdi(1);
    Play(m_dialog, [&] {
        Line("select 1056 试样1-1");
        EXPECT_EQ(Charts(), ">试样1-1 试样1-2 试样1-3");
        Line("select 1056 试样1-1 试样1-3");
        EXPECT_EQ(Charts(), " 试样1-1 试样1-2>试样1-3");
        UserSelect(*m_dialog.GetDlgItem(1056), 1, true); // with the key that keeps the others
        EXPECT_EQ(Charts(), " 试样1-1>试样1-2 试样1-3");
        Line("select 1056 all");
        EXPECT_EQ(Charts(), " 试样1-1 试样1-2>试样1-3");
        Line("select 1056 none");
        EXPECT_EQ(Charts(), " 试样1-1 试样1-2 试样1-3");
    });
}
