#include "ui/bren_dlg.h"

#include "tests/ui/selection_sheet_fixture.h"

namespace {

constexpr const char* READING = "\n读取z_c_QuYang表数据...\n读取z_g_TuCengSet表数据...";

class BrenDialog : public CSelectionSheetTest {
protected:
    // Samples S-001, S-002, ... of borehole 1, in its layer; gives their numbers joined with "@".
    std::string AddSamples(int count) {
        std::string numbers;
        Execute("BEGIN");
        for (int i = 1; i <= count; ++i) {
            const std::string number = "S-" + std::to_string(1000 + i).substr(1);
            AddSample("1", number);
            numbers += (i > 1 ? "@" : "") + number;
        }
        AddLayer("1");
        Execute("COMMIT");
        return numbers;
    }
};

} // namespace

TEST_F(BrenDialog, AProjectWithoutReadingsOpensEmptyAndOkClosesItWithoutData) {
    EXPECT_EQ(Run({"ok"}), 1);
    EXPECT_EQ(m_dialog.m_bHasData, 0);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_SanZhouCSXM当前工程没有数据!");
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialog, ReadingsThatCannotBeOpenedAreReportedAndTheSheetStillOpens) {
    Execute("DROP TABLE z_c_SanZhouCSXM");
    EXPECT_EQ(Run({"ok"}), 1);
    EXPECT_EQ(m_dialog.m_bHasData, 0);
    EXPECT_EQ(Boxes(), "[数据库z_c_SanZhouCSXM打开错误!]");
}

TEST_F(BrenDialog, ConfirmingGathersTheSelectedSamples) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddSample("1", "1-3", "'不固结不排水剪'", "3,0.2,30,0,20,30");
    AddLayer("1");
    SetMarks("SYQXG11", "1-3");
    EXPECT_EQ(Run({"select 1011 1-1 1-3", "ok"}), 1);
    EXPECT_STREQ(m_dialog.m_strZKBH, "1");
    EXPECT_STREQ(m_dialog.m_strGCBH, "G1");
    EXPECT_STREQ(m_dialog.m_strGCMC, "工程一");
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "[1-1][1-3]");
    EXPECT_EQ(Joined(m_dialog.m_saSelSYFF), "[固结不排水剪][不固结不排水剪]");
    EXPECT_EQ(Joined(m_dialog.m_saDepth), "[2.50][3.00]");
    EXPECT_EQ(Joined(m_dialog.m_saWater), "[25.50][30.00]");
    EXPECT_EQ(Joined(m_dialog.m_saIP), "[20.00][10.00]");
    EXPECT_EQ(Joined(m_dialog.m_saIL), "[0.25][1.00]");
    EXPECT_EQ(Joined(m_dialog.m_saLayer), "[粉质黏土][粉质黏土]");
    EXPECT_TRUE(m_dialog.m_bHasData && m_dialog.m_bQuYangOk && m_dialog.m_bTuCengOk && m_dialog.m_bSamplesOk);
    EXPECT_EQ(m_strPrinted, std::string(READING) + ALL_READ);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(BrenDialog, TheAnnotationIsCopiedWhenConfirmedAndNotBefore) {
    AddSample("1", "1-1");
    EXPECT_EQ(m_dialog.m_tDate, CTime());
    EXPECT_EQ(Run({"cancel"}), 2);
    EXPECT_EQ(m_dialog.m_tDate, CTime());
    EXPECT_EQ(m_dialog.m_bDate, 0);
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_tDate, m_dialog.m_pageZS.m_tDate);
    EXPECT_TRUE(m_dialog.m_bDate && m_dialog.m_bChecker && m_dialog.m_bTester && m_dialog.m_bUnit);
    EXPECT_STREQ(m_dialog.m_strUnit, "");
}

TEST_F(BrenDialog, LeavesEveryOtherCommandToTheBase) {
    AddSample("1", "1-1");
    Play([&] {
        RunDialogLine(m_dialog, "select 1011 1-1");
        EXPECT_FALSE(m_dialog.OnCmdMsg(ID_OK, BN_CLICKED + 1, nullptr, nullptr));
        EXPECT_FALSE(m_dialog.OnCmdMsg(ID_HELP, BN_CLICKED, nullptr, nullptr));
        EXPECT_TRUE(m_dialog.ContinueModal());
    });
    EXPECT_EQ(m_strPrinted, "");
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "");
}

TEST_F(BrenDialog, CancelGathersAndMarksNothing) {
    AddSample("1", "1-1");
    EXPECT_EQ(Run({"select 1011 1-1", "cancel"}), 2);
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "");
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
    EXPECT_EQ(m_strPrinted, "");
}

TEST_F(BrenDialog, WithoutASelectedSampleItStays) {
    AddSample("1", "1-1");
    AddLayer("1");
    EXPECT_EQ(Run({"ok", "ok", "select 1011 1-1", "ok"}), 1);
    EXPECT_EQ(Boxes(), "[至少选取一项取样编号!][至少选取一项取样编号!]");
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "[1-1]");
}

TEST_F(BrenDialog, SamplesWithoutAMethodAreRefusedByNameWithoutTheirMark) {
    AddSample("1", "1-1", "NULL");
    AddSample("1", "1-2");
    AddSample("1", "1-3", "''");
    SetMarks("SYQXG11", "1-1");
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 2); // left open
    EXPECT_EQ(Boxes(), "[试样【1-1】、【1-3】中没有试验方法，不能生成三轴剪切试验曲线!]");
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "");
    EXPECT_EQ(m_strPrinted, READING);
    EXPECT_EQ(Marks("SYQXG11"), "1-1");
}

TEST_F(BrenDialog, ASampleWithoutAMethodBlocksOnlyItself) {
    AddSample("1", "1-1", "NULL");
    AddSample("1", "1-2");
    AddLayer("1");
    EXPECT_EQ(Run({"select 1011 1-2", "ok"}), 1);
    EXPECT_EQ(Joined(m_dialog.m_saSelSYFF), "[固结不排水剪]");
}

TEST_F(BrenDialog, AMissingMethodRowClosesTheSheetAsInvalid) {
    AddSample("1", "1-1");
    AddReading("1", "1-2");
    EXPECT_EQ(Run({"select 1011 1-1", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bSamplesOk, 0);
    EXPECT_EQ(m_dialog.m_pageGen.m_saSYFF.GetSize(), 2); // parallel to the samples all the same
    // once before the page is shown, once when it fills its list
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_SanZhou数据SYFF不全!\n数据库z_c_SanZhou数据SYFF不全!");
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "");
}

TEST_F(BrenDialog, AMethodTableThatCannotBeOpenedClosesTheSheetAsInvalid) {
    AddSample("1", "1-1");
    Execute("DROP TABLE z_c_SanZhou");
    EXPECT_EQ(Run({"select 1011 1-1", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bSamplesOk, 0);
    EXPECT_EQ(Boxes(), "[数据库z_c_SanZhou打开错误!][数据库z_c_SanZhou打开错误!]");
}

TEST_F(BrenDialog, Of101SelectedSamples100AreTaken) {
    AddSamples(101);
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_saSelQY.GetSize(), 100);
    EXPECT_STREQ(m_dialog.m_saSelQY[99], "S-100");
}

TEST_F(BrenDialog, Of150SelectedSamples100AreTakenAndAllAreMarked) {
    const std::string marks = AddSamples(150);
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_saSelQY.GetSize(), 100);
    EXPECT_EQ(m_dialog.m_saSelSYFF.GetSize(), 100);
    EXPECT_EQ(m_dialog.m_saLayer.GetSize(), 100);
    EXPECT_EQ(marks.size(), 150U * 6 - 1);
    EXPECT_EQ(Marks("SYQXG11"), marks); // those too that were not taken
    EXPECT_EQ(Marks("SYQXG1"), "1");

    CBRENDlg again("again");
    again.m_nGCSY = GCSY;
    const CDialogScript script([&](CModalWindow&) {
        const auto& entries = again.m_pageGen.m_listQY.GetControl()->m_arEntries;
        ASSERT_EQ(entries.size(), 150U);
        EXPECT_EQ(entries[85].m_strText, "*S-086");
        EXPECT_EQ(entries[86].m_strText, "S-087"); // its text ends beyond byte 519
    });
    again.DoModal();
    EXPECT_EQ(Marks("SYQXG11"), marks.substr(0, 86 * 6 - 1));
}

TEST_F(BrenDialog, ASampleWithoutAMethodBeyondTheHundredthIsNotRefused) {
    AddSamples(101);
    Execute("UPDATE z_c_SanZhou SET SYFF=NULL WHERE QYBH='S-101'");
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(BrenDialog, ConfirmedSamplesGetTheirMarks) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    EXPECT_EQ(Run({"select 1011 1-2", "ok"}), 1);
    EXPECT_EQ(Marks("SYQXG11"), "1-2");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialog, SelectingAllUnmarkedSamplesMarksTheBorehole) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddSample("2", "2-1");
    SetMarks("SYQXG11", "1-1");
    EXPECT_EQ(Run({"select 1011 1-2", "ok"}), 1);
    EXPECT_EQ(Marks("SYQXG11"), "1-1@1-2");
    EXPECT_EQ(Marks("SYQXG1"), "1");
    CBRENDlg again("again");
    again.m_nGCSY = GCSY;
    const CDialogScript script([&](CModalWindow&) { EXPECT_EQ(Entries(again.m_pageGen.m_listZK), ">*1 2"); });
    again.DoModal();
}

TEST_F(BrenDialog, ASampleThatIsNotInTheRegisterEndsTheConfirmation) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddLayer("1");
    Execute("DELETE FROM z_c_QuYang WHERE QYBH='1-2'");
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 0);
    EXPECT_EQ(m_strPrinted, std::string(READING) + "\n数据库z_c_QuYang数据不全!");
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
}

TEST_F(BrenDialog, ARegisterThatCannotBeOpenedEndsTheConfirmation) {
    AddSample("1", "1-1");
    AddLayer("1");
    Execute("DROP TABLE z_c_QuYang");
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 0);
    EXPECT_EQ(Boxes(), "[数据库z_c_QuYang打开有错误!]");
    EXPECT_EQ(m_strPrinted, READING);
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
}

TEST_F(BrenDialog, LayersThatCannotBeOpenedAreToldOfEachSampleAndStopNothing) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    Execute("DROP TABLE z_g_TuCeng");
    SetMarks("SYQXG11", "1-2");
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 1);
    EXPECT_EQ(m_dialog.m_bTuCengOk, 0);
    EXPECT_EQ(Joined(m_dialog.m_saLayer), "[ ][ ]");
    EXPECT_EQ(m_strPrinted, std::string(READING) + "\n数据库z_g_TuCengSet表取样编号1-1数据TCMC不全!" +
                                "\n数据库z_g_TuCengSet表取样编号1-2数据TCMC不全!" +
                                "\n读取z_c_QuYang表数据成功!\n读取z_g_TuCengSet表数据失败!");
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(Marks("SYQXG11"), "1-2@1-1");
}

TEST_F(BrenDialog, ARegisterFaultThatIsNoEndIsTold) {
    AddSample("1", "1-1", "'固结不排水剪'", "NULL,0.5,25,0,20,40");
    EXPECT_EQ(Run({"select 1011 all", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 0);
    EXPECT_EQ(m_dialog.m_bTuCengOk, 0);
    EXPECT_EQ(m_strPrinted, std::string(READING) + "\n数据库z_c_QuYang数据QYSD不全!" +
                                "\n数据库z_c_QuYang取样编号1-1数据QYSD不全!" +
                                "\n数据库z_g_TuCengSet表中无相应土层名称!" + "\n读取z_c_QuYang表数据失败!" +
                                "\n读取z_g_TuCengSet表数据失败!");
    EXPECT_EQ(Marks("SYQXG11"), "1-1");
}

TEST_F(BrenDialog, NumbersWithAQuoteAreFound) {
    AddSample("Z''1", "1''-1");
    AddLayer("Z''1");
    EXPECT_EQ(Run({"select 1011 1'-1", "ok"}), 1);
    EXPECT_STREQ(m_dialog.m_strZKBH, "Z'1");
    EXPECT_EQ(Joined(m_dialog.m_saSelSYFF), "[固结不排水剪]");
    EXPECT_EQ(Joined(m_dialog.m_saLayer), "[粉质黏土]");
}
