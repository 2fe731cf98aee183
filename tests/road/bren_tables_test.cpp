// BREN on tables that lack rows or values.

#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

namespace {
const std::string g_strNoMethodRow = Utf8(u8"\n数据库z_c_SanZhou数据SYFF不全!");
const std::string g_strNoLayer = Utf8(u8"\n数据库z_g_TuCengSet表中无相应土层名称!");
const std::string g_strLayersFailed = Utf8(u8"\n读取z_g_TuCengSet表数据失败!\n");
const std::string g_strFewCircles = Utf8(u8"摩尔圆个数少于2个,无法图解切线。");
const CSamples g_arTwoSamples{{"1", "1-1"}, {"1", "1-2"}};

/// One run of BREN for samples of borehole 1, with a dump.
CRun Generate(const CBrenProject& project, const std::string& strSamples = "1-1") {
    return project.Run("BREN\n" + Selection("1", strSamples) + "0,0\n" + project.Dump());
}

/// The same where BREN ends with its dialog, so that no point is asked for.
CRun Confirm(const CBrenProject& project) {
    CRun run = project.Run("BREN\n" + Selection("1", "1-1") + project.Dump());
    EXPECT_EQ(Classes(project.Entities()), "");
    return run;
}
} // namespace

TEST(BrenTables, AMissingMethodRowEndsTheCommandWithoutAMark) {
    const CBrenProject project(g_arTwoSamples);
    project.Sql("DELETE FROM z_c_SanZhou WHERE QYBH = '1-2'");
    // once before the page is shown, once when it lists the borehole, once when it is chosen again
    EXPECT_EQ(Confirm(project).m_strOut, g_strNoMethodRow + g_strNoMethodRow + g_strNoMethodRow + "\n");
    EXPECT_EQ(project.Marks("SYQXGC11"), "(none)");
}

TEST(BrenTables, AMethodTableThatIsGoneEndsTheCommand) {
    const CBrenProject project(g_arOneSample);
    project.Sql("DROP TABLE z_c_SanZhou");
    const std::string strBox = Utf8(u8"[Tervo] 数据库z_c_SanZhou打开错误!\n");
    EXPECT_EQ(Confirm(project).m_strOut, strBox + strBox + strBox);
    EXPECT_EQ(project.Marks("SYQXGC11"), "(none)");
}

TEST(BrenTables, AMissingMethodRowAmongAllSamplesStopsAtThatSampleAlone) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2"}, {"1", "1-3"}});
    project.Sql("DELETE FROM z_c_SanZhou WHERE QYBH = '1-2'");
    const CRun run = project.Run("BREN\ncheck 1063\nok\n0,0\n" + project.Dump());
    EXPECT_TRUE(run.m_strOut.ends_with(g_strSampleRead + g_strLayerRead + g_strFaultyData)) << run.m_strOut;
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text BlockReference");
    EXPECT_EQ(project.Sql("SELECT QYBH, UUC IS NULL FROM z_c_SanZhou"), "1-1|0\n1-3|1\n");
}

TEST(BrenTables, WithoutReadingsTheDialogIsEmptyAndEndsTheCommand) {
    const CBrenProject project(g_arOneSample);
    project.Sql("DELETE FROM z_c_SanZhouCSXM");
    const CRun run = project.Run("BREN\nok\n" + project.Dump());
    EXPECT_EQ(run.m_strOut, Utf8(u8"\n数据库z_c_SanZhouCSXM当前工程没有数据!\n"));
    EXPECT_EQ(Classes(project.Entities()), "");
}

TEST(BrenTables, ASampleThatIsNotInTheRegisterEndsTheCommandWithoutAMark) {
    const CBrenProject project(g_arOneSample);
    project.Sql("DELETE FROM z_c_QuYang");
    EXPECT_EQ(Confirm(project).m_strOut, g_strReading + Utf8(u8"\n数据库z_c_QuYang数据不全!\n"));
    EXPECT_EQ(project.Marks("SYQXGC11"), "(none)");
}

TEST(BrenTables, ARegisterThatIsGoneEndsTheCommandWithoutAMark) {
    const CBrenProject project(g_arOneSample);
    project.Sql("DROP TABLE z_c_QuYang");
    EXPECT_EQ(Confirm(project).m_strOut, g_strReading + Utf8(u8"\n[Tervo] 数据库z_c_QuYang打开有错误!\n"));
    EXPECT_EQ(project.Marks("SYQXGC11"), "(none)");
}

TEST(BrenTables, WithoutALayerTheChartIsDrawnWithABlankForItsSoil) {
    const CBrenProject project(g_arOneSample);
    project.Sql("DELETE FROM z_g_TuCeng");
    EXPECT_EQ(Generate(project).m_strOut, g_strReading + g_strNoLayer + g_strSampleRead + g_strLayersFailed);
    EXPECT_EQ(project.Charts().at(0)["m_strSoilName"], " ");
}

TEST(BrenTables, ALayerTableThatIsGoneDoesNotStopTheCommand) {
    const CBrenProject project(g_arOneSample);
    project.Sql("DROP TABLE z_g_TuCeng");
    EXPECT_EQ(Generate(project).m_strOut, g_strReading +
                                              Utf8(u8"\n数据库z_g_TuCengSet表取样编号1-1数据TCMC不全!") +
                                              g_strSampleRead + g_strLayersFailed);
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text");
}

TEST(BrenTables, ARowThatIsGoneAtTheStoreLeavesTheChartAndALine) {
    const CBrenProject project(g_arTwoSamples);
    CTvcadSession session(project.m_program);
    session.Say("BREN\n" + Selection("1", "1-1 1-2"));
    session.AwaitPrompt(g_strPointPrompt);
    project.Sql("DELETE FROM z_c_SanZhou WHERE QYBH = '1-1'");
    session.Say("0,0\n" + project.Dump());
    const CRun run = session.End();
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find(Utf8(u8"0,0\n\n三轴剪切试验表中无对应项!\nCommand: ")), std::string::npos)
        << run.m_strOut;
    EXPECT_EQ(project.Charts().size(), 2U);
    EXPECT_EQ(project.Sql("SELECT QYBH, UUC IS NULL FROM z_c_SanZhou"), "1-2|0\n");
}

TEST(BrenTables, ATableThatIsGoneAtTheStoreLeavesTheChartAndABox) {
    const CBrenProject project(g_arOneSample);
    CTvcadSession session(project.m_program);
    session.Say("BREN\n" + Selection("1", "1-1"));
    session.AwaitPrompt(g_strPointPrompt);
    project.Sql("DROP TABLE z_c_SanZhou");
    session.Say("0,0\n" + project.Dump());
    const CRun run = session.End();
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find(Utf8(u8"0,0\n[Tervo] 不能打开三轴剪切试验表!请检查!\nCommand: ")),
              std::string::npos)
        << run.m_strOut;
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text");
}

TEST(BrenTables, AStoreThatTheDatabaseRefusesLeavesTheChartAndTheOldValues) {
    const CBrenProject project(g_arTwoSamples);
    project.Sql("UPDATE z_c_SanZhou SET UUC = 5");
    project.Sql("CREATE TRIGGER refuses BEFORE UPDATE ON z_c_SanZhou WHEN new.QYBH = '1-1' BEGIN "
                "SELECT RAISE(ABORT, 'not now'); END");
    EXPECT_EQ(Generate(project, "1-1 1-2").m_strOut,
              g_strAllRead + "z_c_SanZhou 1 1-1: not now, row not stored\n");
    EXPECT_EQ(project.Charts().size(), 2U);
    EXPECT_EQ(project.Sql("SELECT QYBH, UUC = 5 FROM z_c_SanZhou"), "1-1|1\n1-2|0\n");
}

TEST(BrenTables, ASampleWithoutAMethodIsRefusedByNameAndTheDialogStays) {
    const CBrenProject project(g_arTwoSamples);
    project.Sql("UPDATE z_c_SanZhou SET SYFF = NULL WHERE QYBH = '1-1'");
    const CRun run =
        project.Run("BREN\n" + Selection("1", "1-1 1-2") + "select 1011 1-2\nok\n0,0\n" + project.Dump());
    EXPECT_EQ(run.m_strOut, g_strReading +
                                Utf8(u8"\n[Tervo] 试样【1-1】中没有试验方法，不能生成三轴剪切试验曲线!\n") +
                                g_strAllRead);
    EXPECT_EQ(project.Charts().size(), 1U);
    EXPECT_EQ(project.Marks("SYQXGC11"), "1-2");
}

TEST(BrenTables, AnUnknownMethodStopsTheCommandWithTheBoxAlone) {
    const CBrenProject project(CSamples{CTestSample{"1", "1-1", "xyz"}});
    EXPECT_EQ(Generate(project).m_strOut, g_strAllRead + g_strFaultyData);
    EXPECT_EQ(Classes(project.Entities()), "BlockReference");
    EXPECT_TRUE(project.Results().at(0)["SYRQ"].is_null());
}

TEST(BrenTables, ASampleWithoutADepthEndsTheCommandThoughItIsMarked) {
    const CBrenProject project(g_arOneSample);
    project.Sql("UPDATE z_c_QuYang SET QYSD = NULL");
    EXPECT_EQ(Confirm(project).m_strOut,
              g_strReading +
                  Utf8(u8"\n数据库z_c_QuYang数据QYSD不全!\n数据库z_c_QuYang取样编号1-1数据QYSD不全!"
                       u8"\n读取z_c_QuYang表数据失败!") +
                  g_strLayerRead);
    EXPECT_EQ(project.Marks("SYQXGC11"), "1-1");
    EXPECT_TRUE(project.Results().at(0)["SYRQ"].is_null());
}

TEST(BrenTables, ASampleWithoutAThicknessIsDrawnFromItsLayerAllTheSame) {
    const CBrenProject project(g_arOneSample);
    project.Sql("UPDATE z_c_QuYang SET QYHD = NULL");
    EXPECT_EQ(Generate(project).m_strOut, g_strReading +
                                              Utf8(u8"\n数据库z_c_QuYang取样编号1-1数据QYHD不全!") +
                                              g_strSampleRead + g_strLayersFailed);
    EXPECT_EQ(project.Charts().at(0)["m_strSoilName"], Utf8(u8"粘土"));
}

TEST(BrenTables, IndicesThatCannotBeHadStayEmptyInTheChart) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2"}, {"1", "1-3"}, {"1", "1-4"}});
    project.Sql("UPDATE z_c_QuYang SET QYHSL = NULL WHERE QYBH = '1-2'");
    project.Sql("UPDATE z_c_QuYang SET QYYX = NULL WHERE QYBH = '1-3'");
    project.Sql("UPDATE z_c_QuYang SET QYSY = NULL WHERE QYBH = '1-4'");
    EXPECT_EQ(Generate(project, "all").m_strOut, g_strAllRead);
    CJson texts = CJson::array();
    for (const CJson& chart : project.Charts())
        texts.push_back({chart["m_strWater"], chart["m_strLiquidity"], chart["m_strPlasticity"]});
    EXPECT_EQ(texts,
              CJson({{"24.00", "0.75", "16.00"}, {"", "", "16.00"}, {"24.00", "", ""}, {"24.00", "", ""}}));
}

TEST(BrenTables, AFaultyReadingStopsTheCommandAtItsSample) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2"}, {"1", "1-3"}});
    project.Sql("UPDATE z_c_SanZhouCSXM SET CLHDS = -1 WHERE QYBH = '1-2'");
    EXPECT_EQ(Generate(project, "all").m_strOut,
              g_strAllRead + Utf8(u8"\n原始数据不正确导致出现不正常负值!\n") + g_strFaultyData);
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text BlockReference");
    EXPECT_EQ(project.Sql("SELECT QYBH, UUC IS NULL FROM z_c_SanZhou"), "1-1|0\n1-2|1\n1-3|1\n");
}

TEST(BrenTables, AReadingWithoutAValueCountsAsZero) {
    const CBrenProject project(g_arOneSample);
    project.Sql("UPDATE z_c_SanZhouCSXM SET ZXBX = NULL");
    EXPECT_EQ(Generate(project).m_strOut, g_strAllRead);
    EXPECT_EQ(project.Charts().at(0)["m_arStrainSeries"], CJson({{0.0}, {0.0}}));
}

TEST(BrenTables, ASampleOfOneCircleStoresZeros) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2", g_strCU}, {"1", "1-3", g_strCD}});
    project.Sql("DELETE FROM z_c_SanZhouCSXM WHERE SJBH = 2");
    EXPECT_EQ(Generate(project, "1-1 1-2 1-3").m_strOut,
              g_strAllRead + g_strFewCircles + g_strFewCircles + g_strFewCircles + "\n");
    EXPECT_EQ(project.Sql("SELECT UUC, UUF, CUC, CUF, CUCE, CUFE, CDC, CDF FROM z_c_SanZhou ORDER BY QYBH"),
              "0|0|-|-|-|-|-|-\n-|-|0|0|0|0|-|-\n-|-|-|-|-|-|0|0\n");
    EXPECT_FALSE(project.Results().at(0)["SYRQ"].is_null());
    for (const CJson& chart : project.Charts()) {
        EXPECT_EQ(chart["m_bNoEnvelope"], 1);
        EXPECT_EQ(chart["m_ptEnvStart"][1], chart["m_ptMohrOrigin"][1]) << "the line lies on the axis";
        EXPECT_EQ(chart["m_ptEnvEnd"][1], chart["m_ptMohrOrigin"][1]);
    }
}

TEST(BrenTables, ASampleWithoutAFailureRowStoresZerosToo) {
    const CBrenProject project(g_arOneSample);
    project.Sql("UPDATE z_c_SanZhouCSXM SET JLLX = 0");
    EXPECT_EQ(Generate(project).m_strOut, g_strAllRead + g_strFewCircles + "\n");
    EXPECT_EQ(project.Sql("SELECT UUC, UUF FROM z_c_SanZhou"), "0|0\n");
    const CJson chart = project.Charts().at(0);
    EXPECT_EQ(chart["m_arSigma3"], CJson::array());
    EXPECT_EQ(chart["m_arStrainSeries"].size(), 2U);
}
