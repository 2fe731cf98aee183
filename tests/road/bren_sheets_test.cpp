// The sheets that BREN draws, with what it leaves in the table and the marks.

#include "tests/road/bren_project.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace {
const CMeasuredSamples g_arMeasured{
    {"10", "1-1", "mafra-ciu"}, {"A1", "1-1", "smith-exc4.4"}, {"9", "1-1", "smith-ex3.4"}};
const std::string g_strNoStrip = Utf8(u8"\n缺图框文件gltka3.dwg!");

/// What one member of the entities of a class says, those of blocks that are sheets among the references.
CJson Each(const CJson& entities, const std::string& strClass, const std::string& strMember) {
    CJson members = CJson::array();
    for (const CJson& entity : entities)
        if (entity["class"] == strClass && entity.value("block", "BRMB") == "BRMB")
            members.push_back(entity[strMember]);
    return members;
}

CJson SheetPoints(const CJson& entities) {
    return Each(entities, "AcDbBlockReference", "position");
}

CJson ChartPoints(const CBrenProject& project) {
    CJson points = CJson::array();
    for (const CJson& chart : project.Charts())
        points.push_back(chart["m_ptBase"]);
    return points;
}

std::string Label(const std::string& strSample) {
    return Utf8(u8"试样编号：") + strSample;
}

/// Samples 1-1, 1-2, ... of borehole 1.
CSamples Numbered(int nSamples) {
    CSamples samples;
    for (int i = 1; i <= nSamples; i++)
        samples.push_back({"1", "1-" + std::to_string(i)});
    return samples;
}
} // namespace

TEST(BrenSheets, OfAllSamplesStandInOneRowInTableOrderFromOnePoint) {
    const CBrenProject project(g_arMeasured);
    const CRun run = project.Run("BREN\ncheck 1063\nok\n5,7\n" + project.Dump());
    EXPECT_EQ(run.m_strOut, g_strSampleRead + g_strLayerRead);
    const CJson entities = project.Entities();
    EXPECT_EQ(Classes(entities), "BlockReference CBRENChart Text Text BlockReference CBRENChart Text Text "
                                 "BlockReference CBRENChart Text Text");
    EXPECT_EQ(SheetPoints(entities), CJson({{5.0, 7.0, 0.0}, {225.0, 7.0, 0.0}, {445.0, 7.0, 0.0}}));
    EXPECT_EQ(ChartPoints(project), CJson({{30.0, 269.0, 0.0}, {250.0, 269.0, 0.0}, {470.0, 269.0, 0.0}}));
    EXPECT_EQ(Each(entities, "AcDbText", "text"),
              CJson({Label("9-1-1"), g_strUU, Label("10-1-1"), g_strCU, Label("A1-1-1"), g_strCD}));
    EXPECT_EQ(Each(entities, "AcDbText", "position"), CJson({{33.0, 258.0, 0.0},
                                                             {169.5, 258.0, 0.0},
                                                             {253.0, 258.0, 0.0},
                                                             {389.5, 258.0, 0.0},
                                                             {473.0, 258.0, 0.0},
                                                             {609.5, 258.0, 0.0}}));
    for (const CJson& height : Each(entities, "AcDbText", "height"))
        EXPECT_EQ(height, 2.5);
}

TEST(BrenSheets, OfAllSamplesLeaveTheirValuesAndMarks) {
    const CBrenProject project(g_arMeasured);
    project.Run("BREN\ncheck 1063\nok\n0,0\n");
    const CJson results = project.Results();
    EXPECT_EQ(results[0]["UUC"], 83.97); // published, as is the drained sample's
    EXPECT_EQ(results[0]["UUF"], 7.87);
    for (const char* pColumn : {"CUC", "CUF", "CUCE", "CUFE"})
        EXPECT_TRUE(results[1][pColumn].is_number()) << pColumn;
    EXPECT_EQ(results[2]["CDC"], 11.03);
    EXPECT_EQ(results[2]["CDF"], 17.35);
    EXPECT_EQ(project.Marks("SYQXGC1"), Utf8(u8"9@10@A1@BR全部-全部试样"));
    for (const char* pZKBH : {"9", "10", "A1"})
        EXPECT_EQ(project.Marks(std::string("SYQXGC1") + pZKBH), "1-1");
    const CRun run = project.Run("BREN\nshow\nselect 1010 *A1\nshow\ncancel\n");
    EXPECT_NE(run.m_strOut.find("  > \"*9\"\n    \"*10\"\n    \"*A1\"\n"), std::string::npos) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("    \"*9\"\n    \"*10\"\n  > \"*A1\"\n"), std::string::npos) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("\n    \"*1-1\"\n"), std::string::npos) << run.m_strOut;
}

TEST(BrenSheets, OfStandardTwoTakeTwoChartsEachAndTheRestStaysEmpty) {
    const CBrenProject project(CMeasuredSamples{{"1", "1-1", "smith-ex3.4"},
                                                {"1", "1-2", "smith-exc4.4"},
                                                {"1", "1-3", "mafra-ciu"}},
                               2);
    const CRun run = project.Run("BREN\n" + Selection("1", "all") + "0,0\n" + project.Dump());
    EXPECT_EQ(run.m_strOut.find(g_strAllRead), 0U) << run.m_strOut;
    EXPECT_EQ(SheetPoints(project.Entities()),
              CJson({{0.0, 0.0, 0.0}, {220.0, 0.0, 0.0}, {440.0, 0.0, 0.0}}));
    EXPECT_EQ(ChartPoints(project), CJson({{13.0, 267.0, 0.0}, {233.0, 267.0, 0.0}, {233.0, 267.0, 0.0}}));
    const CJson texts = Each(project.Entities(), "AcDbText", "text");
    const CJson positions = Each(project.Entities(), "AcDbText", "position");
    ASSERT_EQ(texts.size(), 21U); // label and method, then the strip's unit, tester, checker, date and title
    const std::vector<std::string> arLabels{Label("1-1-2"), Label("1-1-3"), ""};
    const std::vector<std::string> arMethods{g_strCD, g_strCU, ""};
    for (std::size_t i = 0; i < 3; i++) {
        const double x = 220.0 * static_cast<double>(i);
        EXPECT_EQ(texts[7 * i], arLabels[i]);
        EXPECT_EQ(positions[7 * i], CJson({x + 28.0, 251.0, 0.0}));
        EXPECT_EQ(texts[7 * i + 1], arMethods[i]);
        EXPECT_EQ(positions[7 * i + 1], CJson({x + 164.5, 251.0, 0.0}));
        EXPECT_EQ(texts[7 * i + 6], Utf8(u8"三轴剪切试验成果图"));
        EXPECT_EQ(positions[7 * i + 6], CJson({x + 120.0, 13.0, 0.0}));
    }
    for (const CJson& row : project.Results())
        EXPECT_FALSE(row["SYRQ"].is_null());
}

TEST(BrenSheets, OfStandardTwoSayThatTheStripsDrawingIsMissing) {
    const CBrenProject project(g_arOneSample, 2);
    std::filesystem::remove(project.m_program.Root() + "/Support/Block/gltka3.dwg");
    const CRun run = project.Run("BREN\n" + Selection("1", "1-1") + "0,0\n" + project.Dump());
    EXPECT_EQ(run.m_strOut, g_strAllRead + g_strNoStrip + "\n");
    EXPECT_EQ(ChartPoints(project), CJson({{13.0, 267.0, 0.0}}));
    EXPECT_EQ(Each(project.Entities(), "AcDbText", "position").back(), CJson({120.0, 13.0, 0.0}));
}

TEST(BrenSheets, OfASecondRunStandBesideTheFirstAndItsValuesReplaceThoseAdopted) {
    const CBrenProject project(Numbered(2));
    CTvcadSession session(project.m_program);
    session.Say("BREN\n" + Selection("1", "all") + "0,0\nBREN\n");
    session.AwaitPrompt(g_strPointPrompt);
    session.AwaitPrompt("Command: BREN\n");
    const std::string strComputed = project.Sql("SELECT UUC, UUF FROM z_c_SanZhou");
    project.Sql("UPDATE z_c_SanZhou SET UUC = 99, UUF = 98, SYRQ = 'earlier'");
    session.Say("show\n" + Selection("1", "*1-1") + "0,300\n" + project.Dump());
    const CRun run = session.End();
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find("  > \"*1\"\n"), std::string::npos) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("    \"*1-1\"\n    \"*1-2\"\n"), std::string::npos) << run.m_strOut;
    EXPECT_EQ(ChartPoints(project), CJson({{25.0, 262.0, 0.0}, {245.0, 262.0, 0.0}, {25.0, 562.0, 0.0}}));
    EXPECT_EQ(project.Sql("SELECT UUC, UUF FROM z_c_SanZhou"),
              strComputed.substr(0, strComputed.find('\n') + 1) + "99|98\n");
    EXPECT_EQ(project.Sql("SELECT QYBH FROM z_c_SanZhou WHERE SYRQ = 'earlier'"), "1-2\n");
}

TEST(BrenSheets, OfAnotherMethodClearTheValuesOfTheFormerOne) {
    const CBrenProject project(g_arOneSample);
    const std::string strGenerate = "BREN\n" + Selection("1", "1-1") + "0,0\n";
    project.Run(strGenerate);
    CJson row = project.Results().at(0);
    EXPECT_TRUE(row["UUC"].is_number() && row["UUF"].is_number());
    project.Sql("UPDATE z_c_SanZhou SET SYFF = '" + g_strCU + "'");
    project.Run(strGenerate);
    row = project.Results().at(0);
    EXPECT_TRUE(row["UUC"].is_null() && row["UUF"].is_null());
    EXPECT_TRUE(row["CUC"].is_number() && row["CUFE"].is_number());
}

TEST(BrenSheets, OfAHundredAndFiftySelectedSamplesAreAHundredWhileAllAreMarked) {
    const CBrenProject project(Numbered(150));
    project.Run("BREN\n" + Selection("1", "all") + "0,0\n" + project.Dump());
    const CJson charts = project.Charts();
    ASSERT_EQ(charts.size(), 100U);
    for (std::size_t i = 0; i < charts.size(); i++)
        EXPECT_EQ(charts[i]["m_strQYBH"], "1-" + std::to_string(i + 1));
    EXPECT_EQ(SheetPoints(project.Entities()).back(), CJson({99 * 220.0, 0.0, 0.0}));
    EXPECT_EQ(project.Sql("SELECT count(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL"), "100\n");
    std::string strAll;
    for (const CTestSample& sample : Numbered(150))
        strAll += (strAll.empty() ? "" : "@") + sample.m_strQYBH;
    EXPECT_EQ(project.Marks("SYQXGC11"), strAll);
    EXPECT_EQ(project.Marks("SYQXGC1"), "1");

    // The next dialog reads 519 bytes of them; the rest is lost with that.
    const CRun run = project.Run("BREN\nshow\ncancel\n");
    const std::string strRead = strAll.substr(0, strAll.rfind('@', 518)); // what is cut off is "1-1" again
    EXPECT_EQ(project.Marks("SYQXGC11"), strRead);
    std::istringstream marks(strRead);
    std::string strSample;
    std::size_t nMarked = 0;
    for (; std::getline(marks, strSample, '@'); nMarked++)
        EXPECT_NE(run.m_strOut.find("    \"*" + strSample + "\"\n"), std::string::npos) << strSample;
    EXPECT_LT(nMarked, 150U);
    EXPECT_NE(run.m_strOut.find("    \"1-" + std::to_string(nMarked + 1) + "\"\n"), std::string::npos);
}

TEST(BrenSheets, OfAllSamplesKnowNoLimit) {
    const CBrenProject project(Numbered(150));
    project.Run("BREN\ncheck 1063\nok\n0,0\n" + project.Dump());
    EXPECT_EQ(project.Charts().size(), 150U);
    EXPECT_EQ(project.Sql("SELECT count(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL"), "150\n");
}
