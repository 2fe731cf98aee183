// The selection sheet when all samples of the project are drawn.

#include "tests/ui/selection_sheet_fixture.h"

namespace {

class BrenDialogForAll : public CSelectionSheetTest {};

} // namespace

TEST_F(BrenDialogForAll, DrawingAllGathersEverySampleOfEveryBorehole) {
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

TEST_F(BrenDialogForAll, DrawingAllMarksEverything) {
    AddSample("1", "1-1");
    AddSample("1", "1-2");
    AddSample("2", "2-1");
    SetMarks("SYQXG11", "1-2");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(Marks("SYQXG11"), "1-1@1-2");
    EXPECT_EQ(Marks("SYQXG12"), "2-1");
    EXPECT_EQ(Marks("SYQXG1"), "1@2@BR全部-全部试样");
}

TEST_F(BrenDialogForAll, DrawingAllOfAProjectWithoutReadingsStays) {
    EXPECT_EQ(Run({"check 1063", "ok"}), 2);
    EXPECT_EQ(Boxes(), "[没有可用的取样编号!]");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialogForAll, DrawingAllPrintsNoSampleNumberInItsMessages) {
    AddSample("1", "1-1", "'固结不排水剪'", "2,NULL,25,0,20,40");
    AddLayer("1");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang取样编号数据QYHD不全!\n读取z_c_QuYang表数据成功!"
                            "\n读取z_g_TuCengSet表数据失败!");
    EXPECT_EQ(m_dialog.m_bQuYangOk, 1);
    EXPECT_EQ(m_dialog.m_bTuCengOk, 0);
}

TEST_F(BrenDialogForAll, DrawingAllPrintsNoSampleNumberForADepthOrALayerThatIsMissing) {
    AddSample("1", "1-1", "'固结不排水剪'", "NULL,0.5,25,0,20,40");
    Execute("DROP TABLE z_g_TuCeng");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_strPrinted, "\n数据库z_c_QuYang数据QYSD不全!\n数据库z_c_QuYang取样编号数据QYSD不全!"
                            "\n数据库z_g_TuCengSet表取样编号数据TCMC不全!\n读取z_c_QuYang表数据失败!"
                            "\n读取z_g_TuCengSet表数据失败!");
    EXPECT_EQ(Marks("SYQXG1"), "1@BR全部-全部试样");
}

TEST_F(BrenDialogForAll, DrawingAllEndsAtASampleThatIsNotInTheRegisterWithoutMarks) {
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

TEST_F(BrenDialogForAll, DrawingAllEndsWhereTheRegisterCannotBeOpened) {
    AddSample("1", "1-1");
    Execute("DROP TABLE z_c_QuYang");
    EXPECT_EQ(Run({"check 1063", "ok"}), 1);
    EXPECT_EQ(m_dialog.m_bQuYangOk, 0);
    EXPECT_EQ(Boxes(), "[数据库z_c_QuYang打开有错误!]");
    EXPECT_EQ(m_strPrinted, "");
    EXPECT_EQ(Marks("SYQXG1"), "(none)");
}

TEST_F(BrenDialogForAll, DrawingAllGoesOverAMethodThatCannotBeRead) {
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
