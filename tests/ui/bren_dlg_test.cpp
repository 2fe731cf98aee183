#include "ui/bren_dlg.h"

#include <sys/stat.h>

#include <filesystem>

#include "host/console/dialog_lines.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/platform/mfc/dialog_script.h"
#include "tests/platform/windows/waited_file.h"
#include "tests/ui/project_fixture.h"

namespace {

constexpr const char* ALL_READ = "\n读取z_c_QuYang表数据成功!\n读取z_g_TuCengSet表数据成功!\n";
constexpr const char* READING = "\n读取z_c_QuYang表数据...\n读取z_g_TuCengSet表数据...";

std::string Joined(const CStringArray& texts) {
    std::string joined;
    for (const CString& text : texts)
        joined += "[" + std::string(text) + "]";
    return joined;
}

class BrenDialog : public CProjectFixture {
protected:
    BrenDialog() { m_dialog.m_nGCSY = GCSY; }

    // Runs the sheet with the lines of a script and gives its result; one left open counts as cancelled.
    int Run(const std::vector<std::string>& lines) {
        return Play([&] {
            for (const std::string& line : lines)
                RunDialogLine(m_dialog, ToUtf8(line));
        });
    }
    int Play(std::function<void()> user) {
        const CDialogScript script([&](CModalWindow&) { user(); });
        return m_dialog.DoModal();
    }
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
    // The entries of a list, `>` before a selected one, a blank before any other.
    static std::string Entries(const CListBox& list) {
        std::string entries;
        for (const CListEntry& entry : list.GetControl()->m_arEntries)
            entries += (entry.m_bSelected ? ">" : " ") + std::string(entry.m_strText);
        return entries;
    }

    CBRENDlg m_dialog{"生成三轴剪切试验成果图"};
};

} // namespace

TEST_F(BrenDialog, ListsBoreholesAndTheSamplesOfTheFirstInNaturalOrder) {
    for (const char* zk : {"A1", "10", "9"})
        for (const char* qy : {"9-10", "9-2"})
            AddSample(zk, qy);
    Execute("INSERT INTO z_c_SanZhouCSXM SELECT 8,'8','other project',1,1,1,1,1,1,1,1,1,1,1,1,1");
    Play([&] {
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listZK), ">9 10 A1");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 9-2 9-10");
        EXPECT_STREQ(m_dialog.m_pageGen.m_strZKBH, "9");
        EXPECT_EQ(Joined(m_dialog.m_pageGen.m_saCurQY), "[9-2][9-10]");
        EXPECT_EQ(Joined(m_dialog.m_pageGen.m_saSYFF), "[固结不排水剪][固结不排水剪]");
        EXPECT_EQ(m_dialog.GetActivePage(), &m_dialog.m_pageGen);
        EXPECT_EQ(m_dialog.GetIcon(TRUE), 1006U);
        EXPECT_EQ(m_dialog.GetIcon(FALSE), 1006U);
    });
    EXPECT_EQ(Boxes(), "");
}

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

TEST_F(BrenDialog, ChoosingABoreholeListsItsSamplesWithTheirMarks) {
    AddSample("1", "1-1");
    AddSample("2", "2-1");
    AddSample("2", "2-2", "'不固结不排水剪'");
    SetMarks("SYQXG1", "2");
    SetMarks("SYQXG12", "2-2");
    Play([&] {
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listZK), ">1 *2");
        RunDialogLine(m_dialog, "select 1010 2");
        EXPECT_STREQ(m_dialog.m_pageGen.m_strZKBH, "2");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 2-1 *2-2");
        EXPECT_EQ(Joined(m_dialog.m_pageGen.m_saSYFF), "[固结不排水剪][不固结不排水剪]");
    });
}

TEST_F(BrenDialog, ABoreholeWhoseReadingsAreGoneLeavesTheSampleListAsItWas) {
    AddSample("1", "1-1");
    AddSample("2", "2-1");
    Play([&] {
        Execute("DELETE FROM z_c_SanZhouCSXM WHERE ZKBH='2'");
        RunDialogLine(m_dialog, "select 1010 2");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 1-1");
    });
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_SanZhouCSXM当前工程没有数据!");
}

TEST_F(BrenDialog, ReadingsThatCannotBeOpenedAnyMoreLeaveTheSampleListAsItWas) {
    AddSample("1", "1-1");
    AddSample("2", "2-1");
    Play([&] {
        Execute("DROP TABLE z_c_SanZhouCSXM");
        RunDialogLine(m_dialog, "select 1010 2");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 1-1");
        EXPECT_EQ(Joined(m_dialog.m_pageGen.m_saSYFF), "[固结不排水剪]");
    });
    EXPECT_EQ(Boxes(), "[数据库z_c_SanZhouCSXM打开错误!]");
    EXPECT_EQ(m_strPrinted, "");
}

TEST_F(BrenDialog, TakesTheFrameTemplateFromTheConfiguration) {
    std::filesystem::create_directory(m_root.Path("Data"));
    const auto pConfig = CreateSqliteDatabase(m_root.Path("Data/config.db"));
    pConfig->Execute("create table g_TervoTempletConfig(FileName text, Path text, GCBZ integer, Fun text, "
                     "Type text)");
    Run({"cancel"});
    EXPECT_STREQ(m_dialog.m_pageGen.m_strFrameFile, "");
    EXPECT_STREQ(m_dialog.m_pageGen.m_strFramePath, "");
    pConfig->Execute("insert into g_TervoTempletConfig values"
                     "('BREN-A4.dwg','\\Templates',-1,'三轴剪试验曲线','图框')");
    Run({"cancel"});
    EXPECT_STREQ(m_dialog.m_pageGen.m_strFrameFile, "BREN-A4.dwg");
    EXPECT_EQ(m_dialog.m_pageGen.m_strFramePath, CString(m_root.Path() + "\\Templates\\"));
    EXPECT_EQ(Boxes(), "");
}

TEST_F(BrenDialog, EditingTheTemplateStartsTheConfigurationProgramAndCloses) {
    AddSample("1", "1-1");
    const std::string program = m_root.Write(
        "TervoConfig.exe", "#!/bin/sh\ncd \"${0%/*}\"\nprintf '[%s]' \"$@\" > part\nmv part arguments\n");
    ASSERT_EQ(chmod(program.c_str(), 0755), 0);
    EXPECT_EQ(Run({"select 1011 1-1", "click 1556"}), 1556);
    EXPECT_EQ(WaitedFile(m_root, "arguments"), ToUtf8("[/s][成果图-室内试验]"));
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "");
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
}

TEST_F(BrenDialog, EditingTheTemplateWithoutTheProgramOnlyCloses) {
    AddSample("1", "1-1");
    EXPECT_EQ(Run({"check 1063", "click 1556"}), 1556);
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(m_strPrinted, "");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
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

TEST_F(BrenDialog, ClearingTheMarksOfAllSamplesLeavesTheBoreholesOwn) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    SetMarks("SYQXG1", "1");
    SetMarks("SYQXG11", "1-1@1-2");
    Play([&] {
        RunDialogLine(m_dialog, "select 1010 1");
        RunDialogLine(m_dialog, "select 1011 1-1 1-2");
        RunDialogLine(m_dialog, "click 1062");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 1-1 1-2");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listZK), ">*1");
    });
    EXPECT_EQ(Marks("SYQXG11"), "");
    EXPECT_EQ(Marks("SYQXG1"), "1");
}

TEST_F(BrenDialog, ClearingSomeMarksTakesTheBoreholesAwayAndKeepsItSelected) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    SetMarks("SYQXG1", "1");
    SetMarks("SYQXG11", "1-1@1-2");
    Play([&] {
        RunDialogLine(m_dialog, "select 1011 1-1");
        RunDialogLine(m_dialog, "click 1062");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 1-1 *1-2");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listZK), ">1");
    });
    EXPECT_EQ(Marks("SYQXG11"), "1-2");
    EXPECT_EQ(Marks("SYQXG1"), "");
}

TEST_F(BrenDialog, ClearingMarksNeedsABorehole) {
    AddSample("1", "1-1");
    SetMarks("SYQXG11", "1-1");
    Run({"select 1010 none", "select 1011 1-1", "click 1062"});
    EXPECT_EQ(Boxes(), "[请先选择钻孔,再删除!]");
    EXPECT_EQ(Marks("SYQXG11"), "1-1");
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

TEST_F(BrenDialog, DrawingAllGreysTheListsAndTheirButton) {
    AddSample("1", "1-1");
    Play([&] {
        for (const int bAll : {1, 0}) {
            RunDialogLine(m_dialog, bAll ? "check 1063" : "uncheck 1063");
            EXPECT_EQ(m_dialog.m_pageGen.m_bAll, bAll);
            for (const UINT nId : {1010, 1011, 1062})
                EXPECT_EQ(m_dialog.m_pageGen.GetDlgItem(nId)->IsWindowEnabled(), !bAll) << nId;
        }
    });
}

TEST_F(BrenDialog, DrawingAllGathersEverySampleOfEveryBorehole) {
    AddSample("1", "1-1");
    AddSample("1", "1-2", "'不固结不排水剪'");
    AddSample("2", "2-1", "NULL", "5,0.5,NULL,0,20,40");
    AddLayer("1", "黏土");
    AddLayer("2", "砂");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    ASSERT_EQ(m_dialog.m_pageGen.m_arAll.GetSize(), 1);
    std::string samples;
    for (const QYPropty& sample : m_dialog.m_pageGen.m_arAll[0].m_arQY)
        samples += std::string(sample.m_strZKBH) + "," + sample.m_strQYBH.GetString() + "," +
                   sample.m_strSYFF.GetString() + "," + sample.m_strDepth.GetString() + "," +
                   sample.m_strWater.GetString() + "," + sample.m_strIL.GetString() + "," +
                   sample.m_strIP.GetString() + "," + sample.m_strLayer.GetString() + "\n";
    EXPECT_EQ(samples, "1,1-1,固结不排水剪,2.50,25.50,0.25,20.00,黏土\n"
                       "1,1-2,不固结不排水剪,2.50,25.50,0.25,20.00,黏土\n"
                       "2,2-1,,5.00,,,20.00,砂\n");
    EXPECT_EQ(Joined(m_dialog.m_saDepth), "[2.50][2.50][5.00]");
    EXPECT_EQ(Joined(m_dialog.m_saLayer), "[黏土][黏土][砂]");
    EXPECT_STREQ(m_dialog.m_strZKBH, "");
    EXPECT_STREQ(m_dialog.m_strGCBH, "G1");
    EXPECT_EQ(m_strPrinted, ALL_READ);
    ASSERT_EQ(m_dialog.m_pageGen.m_arByZK.GetSize(), 2);
    EXPECT_EQ(Joined(m_dialog.m_pageGen.m_arByZK[0].m_saQY), "[1-1][1-2]");
}

TEST_F(BrenDialog, DrawingAllMarksEverything) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddSample("2", "2-1");
    SetMarks("SYQXG11", "1-2");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(Marks("SYQXG11"), "1-1@1-2");
    EXPECT_EQ(Marks("SYQXG12"), "2-1");
    EXPECT_EQ(Marks("SYQXG1"), "1@2@BR全部-全部试样");
}

TEST_F(BrenDialog, DrawingAllOfAProjectWithoutReadingsStays) {
    EXPECT_EQ(Run({"check 1063", "ok"}), 2);
    EXPECT_EQ(Boxes(), "[没有可用的取样编号!]");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialog, DrawingAllPrintsNoSampleNumberInItsMessages) {
    AddSample("1", "1-1", "'固结不排水剪'", "2,NULL,25,0,20,40");
    AddLayer("1");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang取样编号数据QYHD不全!\n读取z_c_QuYang表数据成功!"
                            "\n读取z_g_TuCengSet表数据失败!");
    EXPECT_EQ(m_dialog.m_bQuYangOk, 1);
    EXPECT_EQ(m_dialog.m_bTuCengOk, 0);
}

TEST_F(BrenDialog, DrawingAllPrintsNoSampleNumberForADepthOrALayerThatIsMissing) {
    AddSample("1", "1-1", "'固结不排水剪'", "NULL,0.5,25,0,20,40");
    Execute("DROP TABLE z_g_TuCeng");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang数据QYSD不全!\n数据库z_c_QuYang取样编号数据QYSD不全!"
                            "\n数据库z_g_TuCengSet表取样编号数据TCMC不全!\n读取z_c_QuYang表数据失败!"
                            "\n读取z_g_TuCengSet表数据失败!");
    EXPECT_EQ(Marks("SYQXG1"), "1@BR全部-全部试样");
}

TEST_F(BrenDialog, DrawingAllEndsAtASampleThatIsNotInTheRegisterWithoutMarks) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddLayer("1");
    Execute("DELETE FROM z_c_QuYang WHERE QYBH='1-2'");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 0);
    EXPECT_EQ(m_dialog.m_saDepth.GetSize(), 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang数据不全!");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialog, DrawingAllEndsWhereTheRegisterCannotBeOpened) {
    AddSample("1", "1-1");
    Execute("DROP TABLE z_c_QuYang");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 0);
    EXPECT_EQ(Boxes(), "[数据库z_c_QuYang打开有错误!]");
    EXPECT_EQ(m_strPrinted, "");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialog, DrawingAllGoesOverAMethodThatCannotBeRead) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddLayer("1");
    Execute("DELETE FROM z_c_SanZhou WHERE QYBH='1-1'");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bSamplesOk, 1);
    ASSERT_EQ(m_dialog.m_pageGen.m_arAll[0].m_arQY.GetSize(), 2);
    EXPECT_STREQ(m_dialog.m_pageGen.m_arAll[0].m_arQY[0].m_strSYFF, "");
    EXPECT_STREQ(m_dialog.m_pageGen.m_arAll[0].m_arQY[1].m_strSYFF, "固结不排水剪");
}

TEST_F(BrenDialog, NumbersWithAQuoteAreFound) {
    AddSample("Z''1", "1''-1");
    AddLayer("Z''1");
    EXPECT_EQ(Run({"select 1011 1'-1", "ok"}), 1);
    EXPECT_STREQ(m_dialog.m_strZKBH, "Z'1");
    EXPECT_EQ(Joined(m_dialog.m_saSelSYFF), "[固结不排水剪]");
    EXPECT_EQ(Joined(m_dialog.m_saLayer), "[粉质黏土]");
}
