#include "ui/gen_page.h"

#include <sys/stat.h>

#include <filesystem>

#include "platform/ado/sqlite_provider.h"
#include "tests/platform/windows/waited_file.h"
#include "tests/ui/selection_sheet_fixture.h"

namespace {

class GenPage : public CSelectionSheetTest {};

} // namespace

TEST_F(GenPage, AsksForNoHelpButton) {
    EXPECT_EQ(m_dialog.m_pageGen.m_psp.dwFlags & PSP_HASHELP, 0U);
    EXPECT_EQ(m_dialog.m_pageGen.m_psp.pResource->m_strCaption, "选择取样");
}

TEST_F(GenPage, ListsBoreholesAndTheSamplesOfTheFirstInNaturalOrder) {
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

TEST_F(GenPage, ChoosingABoreholeListsItsSamplesWithTheirMarks) {
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

TEST_F(GenPage, ABoreholeWhoseReadingsAreGoneLeavesTheSampleListAsItWas) {
    AddSample("1", "1-1");
    AddSample("2", "2-1");
    Play([&] {
        Execute("DELETE FROM z_c_SanZhouCSXM WHERE ZKBH='2'");
        RunDialogLine(m_dialog, "select 1010 2");
        EXPECT_EQ(Entries(m_dialog.m_pageGen.m_listQY), " 1-1");
    });
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_SanZhouCSXM当前工程没有数据!");
}

TEST_F(GenPage, ReadingsThatCannotBeOpenedAnyMoreLeaveTheSampleListAsItWas) {
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

TEST_F(GenPage, TakesTheFrameTemplateFromTheConfiguration) {
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

TEST_F(GenPage, EditingTheTemplateStartsTheConfigurationProgramAndCloses) {
    AddSample("1", "1-1");
    const std::string program = m_root.Write(
        "TervoConfig.exe", "#!/bin/sh\ncd \"${0%/*}\"\nprintf '[%s]' \"$@\" > part\nmv part arguments\n");
    ASSERT_EQ(chmod(program.c_str(), 0755), 0);
    EXPECT_EQ(Run({"select 1011 1-1", "click 1556"}), 1556);
    EXPECT_EQ(WaitedFile(m_root, "arguments"), ToUtf8("[/s][成果图-室内试验]"));
    EXPECT_EQ(Joined(m_dialog.m_saSelQY), "");
    EXPECT_EQ(Marks("SYQXG11"), "(none)");
}

TEST_F(GenPage, EditingTheTemplateWithoutTheProgramOnlyCloses) {
    AddSample("1", "1-1");
    EXPECT_EQ(Run({"check 1063", "click 1556"}), 1556);
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(m_strPrinted, "");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(GenPage, ClearingTheMarksOfAllSamplesLeavesTheBoreholesOwn) {
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

TEST_F(GenPage, ClearingSomeMarksTakesTheBoreholesAwayAndKeepsItSelected) {
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

TEST_F(GenPage, ClearingMarksNeedsABorehole) {
    AddSample("1", "1-1");
    SetMarks("SYQXG11", "1-1");
    Run({"select 1010 none", "select 1011 1-1", "click 1062"});
    EXPECT_EQ(Boxes(), "[请先选择钻孔,再删除!]");
    EXPECT_EQ(Marks("SYQXG11"), "1-1");
}

TEST_F(GenPage, DrawingAllGreysTheListsAndTheirButton) {
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

TEST_F(GenPage, CollectsTheSamplesOfAllBoreholesAndSelectsTheLastOne) {
    AddSample("1", "1-1");
    AddSample("2", "2-1", "'不固结不排水剪'");
    AddSample("2", "2-2");
    SetMarks("SYQXG12", "2-2");
    CGenPage& page = m_dialog.m_pageGen;
    Play([&] {
        for (int i = 0; i < 2; ++i) { // as often as it is confirmed
            page.m_bAll = 1;
            page.CollectAll();
            ASSERT_EQ(page.m_arAll.GetSize(), 1);
            ASSERT_EQ(page.m_arAll[0].m_arQY.GetSize(), 3);
            EXPECT_STREQ(page.m_arAll[0].m_arQY[1].m_strSYFF, "不固结不排水剪");
            EXPECT_STREQ(page.m_arAll[0].m_arQY[2].m_strQYBH, "2-2");
            ASSERT_EQ(page.m_arByZK.GetSize(), 2);
            EXPECT_STREQ(page.m_arByZK[1].m_strZKBH, "2");
            EXPECT_EQ(Joined(page.m_arByZK[1].m_saQY), "[2-1][2-2]");
            EXPECT_EQ(Entries(page.m_listZK), " 1>2");
            EXPECT_EQ(Entries(page.m_listQY), ">2-1 *2-2");
        }
    });
}
