// The strength values adopted from a chart, and the question whether a dragged line is to be stored, in real
// runs.

#include "tests/road/bren_project.h"

#include <gtest/gtest.h>

namespace {
const std::string g_strStored = Utf8(u8"三轴剪切数据存储成功!");
const std::string g_strQuestion = Utf8(u8"[Tervo] 三轴剪切图中有关数据已改变,是否入库?\n");

/// A project with one sample, and its chart in a drawing.
class AdoptionRoad : public testing::Test {
protected:
    explicit AdoptionRoad(const char* pSet = "smith-exc4.4")
        : m_project(CMeasuredSamples{{"1", "1-1", pSet}}) {}

    /// The lines that draw the chart; then comes what makes its handle known to this object.
    std::string Drawn() const { return "BREN\n" + Selection("1", "1-1") + "0,0\n"; }
    /// Draws the chart, saves the drawing, and keeps the chart's handle.
    void Draw() {
        m_project.Run(Drawn() + m_project.Dump() + "SAVEAS " + Drawing() + "\n");
        for (const CJson& entity : m_project.Entities())
            if (entity["class"] == "CBRENChart") m_strChart = "#" + entity["handle"].get<std::string>();
        ASSERT_NE(m_strChart, "");
    }
    /// What a run on the drawing prints.
    std::string Run(const std::string& strScript) const {
        return m_project.Run("OPEN " + Drawing() + "\n" + strScript + m_project.Dump()).m_strOut;
    }
    std::string Drawing() const { return m_project.m_program.Folder().Path("sheet.dwg"); }
    /// The line that drags the far end of the envelope line up.
    std::string Dragged() const { return "GRIP " + m_strChart + " 5 @0,5\n"; }
    CJson Chart() const { return m_project.Charts().at(0); }
    CJson Row() const { return m_project.Results().at(0); }

    CBrenProject m_project;
    std::string m_strChart; ///< how a script picks it
};

class AdoptionRoadUndrained : public AdoptionRoad {
protected:
    AdoptionRoadUndrained()
        : AdoptionRoad("mafra-ciu") {}
};

double Cut(const CJson& value) {
    return static_cast<int>(value.get<double>() * 100.0) / 100.0;
}
} // namespace

TEST_F(AdoptionRoad, StoresTheGraphicalValuesOfADraggedLine) {
    Draw();
    Run(Dragged());
    const CJson dragged = Chart();
    const std::string strOut = Run(Dragged() + "REGEN\nBRCF\n" + m_strChart + "\nshow\ncheck 1060\nok\n");
    EXPECT_NE(strOut.find(Utf8(u8"dialog 14 \"选择采用值入库\"")), std::string::npos) << strOut;
    EXPECT_TRUE(strOut.ends_with("\n" + g_strStored + "\n")) << strOut;
    EXPECT_EQ(strOut.find(g_strQuestion), std::string::npos) << strOut;
    EXPECT_EQ(Row()["CDC"], Cut(dragged["m_dGraphC"]));
    EXPECT_EQ(Row()["CDF"], Cut(dragged["m_dGraphPhi"]));
    EXPECT_NE(Row()["CDF"], 17.35) << "what was computed";
    EXPECT_EQ(Chart()["m_dAdoptPhi"], Row()["CDF"]);
    EXPECT_EQ(Chart()["m_dCalcPhi"], dragged["m_dCalcPhi"]);
    EXPECT_NEAR(Chart()["m_dGraphPhi"].get<double>(), Row()["CDF"].get<double>(), 1e-4) << "refitted, drawn";
    EXPECT_NEAR(Chart()["m_dGraphC"].get<double>(), Row()["CDC"].get<double>(), 1e-4);
}

TEST_F(AdoptionRoad, AsksBeforeAWatchedCommandAndStoresOnYes) {
    Draw();
    const std::string strOut = Run(Dragged() + "LINE 0,0 1,1\nNEW\nyes\n" + m_strChart +
                                   "\ncheck 1060\nok\nOPEN " + Drawing() + "\n");
    const std::size_t nAsked = strOut.find(g_strQuestion);
    ASSERT_NE(nAsked, std::string::npos) << strOut;
    EXPECT_NE(strOut.find(g_strStored, nAsked), std::string::npos) << strOut;
    EXPECT_EQ(strOut.find(g_strQuestion, nAsked + 1), std::string::npos) << "asked once: " << strOut;
    EXPECT_NE(Row()["CDF"], 17.35);
}

TEST_F(AdoptionRoad, AsksOnceWhenTheAnswerIsNo) {
    Draw();
    const std::string strOut = Run(Dragged() + "NEW\nno\nNEW\nACTIVATE 2\n");
    const std::size_t nAsked = strOut.find(g_strQuestion);
    ASSERT_NE(nAsked, std::string::npos) << strOut;
    EXPECT_EQ(strOut.find(g_strQuestion, nAsked + 1), std::string::npos) << strOut;
    EXPECT_EQ(Row()["CDF"], 17.35);
    EXPECT_GT(Chart()["m_dGraphPhi"].get<double>(), 17.4) << "the change stays in the drawing";
}

TEST_F(AdoptionRoad, AsksAgainWhenNoChartWasPicked) {
    Draw();
    const std::string strOut = Run(Dragged() + "NEW\nyes\n\nNEW\nno\n");
    const std::size_t nAsked = strOut.find(g_strQuestion);
    ASSERT_NE(nAsked, std::string::npos) << strOut;
    EXPECT_NE(strOut.find(Utf8(u8"什么也没有选中.\n"), nAsked), std::string::npos) << strOut;
    EXPECT_NE(strOut.find(g_strQuestion, nAsked + 1), std::string::npos) << strOut;
}

TEST_F(AdoptionRoad, AsksBeforeANewGenerationWhoseStoreForgetsTheChange) {
    Draw();
    const std::string strOut = Run(Dragged() + "BREN\nyes\n\n" + Selection("1", "1-1") + "300,0\nNEW\n");
    const std::size_t nAsked = strOut.find(g_strQuestion);
    ASSERT_NE(nAsked, std::string::npos) << strOut;
    EXPECT_EQ(strOut.find(g_strQuestion, nAsked + 1), std::string::npos) << strOut;
    EXPECT_EQ(Row()["CDF"], 17.35);
}

TEST_F(AdoptionRoad, AsksBeforeTheHostAsksWhetherToSave) {
    Draw();
    const std::string strOut =
        m_project.m_program
            .Shell("printf '%s' 'OPEN " + Drawing() + "\n" + Dragged() +
                   "QUIT\nno\ncancel\nQUIT\nno\n' | " TERVO_BIN "/tvcad --root \"$ROOT\" -s -")
            .m_strOut;
    const std::string strSave = "Save changes to " + Drawing() + "? ";
    EXPECT_TRUE(strOut.ends_with("Command: QUIT\n" + g_strQuestion + "yes/no> no\n" + strSave +
                                 "cancel\nCommand: QUIT\n" + strSave + "no\n"))
        << strOut;
}

TEST_F(AdoptionRoad, LeavesTheWordsOfTheLineToTheCommand) {
    Draw();
    const std::string strOut = Run(Dragged() + "OPEN " + Drawing() + "\nno\nDOCUMENTS\n");
    EXPECT_EQ(strOut,
              g_strQuestion + "1   Drawing1\n2   " + Drawing() + " (changed)\n3 * " + Drawing() + "\n");
}

TEST_F(AdoptionRoad, RemembersTheChangeOfADrawingThatWasClosed) {
    Draw();
    const std::string strOut = Run(Dragged() + "CLOSE\nno\nCLOSE\nNEW\nyes\nNEW\nno\n");
    EXPECT_EQ(strOut, g_strQuestion + Utf8(u8"什么也没有选中.\n") + g_strQuestion);
}

TEST_F(AdoptionRoad, IsRefusedWhenTheProjectIsAnotherOneMeanwhile) {
    Draw();
    // What fails does not hold the command back, and is not asked for again.
    const std::string strScript = Dragged() + "NEW\nyes\n" + m_strChart + "\nNEW\nDOCUMENTS\nACTIVATE 2\n";
    const std::string strFailed = Utf8(u8"\n\n数据存储失败!\n三轴剪切数据存储失败!\n") +
                                  "1   Drawing1\n2   " + Drawing() +
                                  " (changed)\n3   Drawing3\n4 * Drawing4\n";
    const std::string strRow = "SELECT CDC, CDF, SYRQ FROM z_c_SanZhou", strBefore = m_project.Sql(strRow);
    Run("");
    const CJson before = Chart();
    for (const auto& [strChange, strBox] :
         {std::pair{"UPDATE x_GongCheng SET GCBH = 'GC2'",
                    Utf8(u8"[Tervo] 该工程工程编号已被修改,数据无法入库!")},
          std::pair{"DELETE FROM x_GongCheng", Utf8(u8"[Tervo] 打开工点信息数据表中不存在该工程!")},
          std::pair{"DROP TABLE x_GongCheng", Utf8(u8"[Tervo] 不能打开工点信息数据表,请检查数据!")}}) {
        m_project.Sql(strChange);
        EXPECT_EQ(Run(strScript), std::string(g_strQuestion).append(strBox).append(strFailed));
        EXPECT_EQ(Chart()["m_dAdoptPhi"], before["m_dAdoptPhi"]);
        EXPECT_EQ(m_project.Sql(strRow), strBefore);
    }
}

TEST_F(AdoptionRoad, StoresAlsoWhenItsDialogIsCancelled) {
    Draw();
    m_project.Sql("UPDATE z_c_SanZhou SET CDC = NULL, CDF = NULL");
    const std::string strOut = Run(Dragged() + "BRCF\n" + m_strChart + "\ncancel\n");
    EXPECT_EQ(strOut, Utf8(u8"\n放弃存储三轴剪切数据!\n三轴剪切数据存储成功!\n"));
    EXPECT_EQ(Row()["CDF"], 17.35);
    EXPECT_NEAR(Chart()["m_dGraphPhi"].get<double>(), 17.35, 1e-4) << "the dragged line goes back";
}

TEST_F(AdoptionRoad, DoesNotAskWhenOnlyAnAnchorWasMoved) {
    Draw();
    const std::string strOut = Run("GRIP " + m_strChart + " 0,1,2,3 @5,5\nNEW\n");
    EXPECT_EQ(strOut.find(g_strQuestion), std::string::npos) << strOut;
}

TEST_F(AdoptionRoad, IsUndoneInTheDrawingOnly) {
    Draw();
    Run("");
    const CJson before = Chart();
    const std::string strSet = "set 1053 40\nset 1054 30\n";
    Run("BRCF\n" + m_strChart + "\n" + strSet + "ok\nUNDO 1\n");
    EXPECT_EQ(Chart()["m_dAdoptPhi"], before["m_dAdoptPhi"]);
    EXPECT_EQ(Chart()["m_ptEnvEnd"], before["m_ptEnvEnd"]);
    EXPECT_EQ(Row()["CDC"], 40.0);
    EXPECT_EQ(Row()["CDF"], 30.0);
}

TEST_F(AdoptionRoadUndrained, StoresAllFourValuesAndRefitsBothLines) {
    Draw();
    const std::string strOut =
        Run("BRCF\n" + m_strChart + "\nset 1045 10.5\nset 1046 21.25\nset 1053 3.75\nset 1054 31\nok\n");
    EXPECT_TRUE(strOut.ends_with("\n" + g_strStored + "\n")) << strOut;
    EXPECT_EQ(Row()["CUC"], 10.5);
    EXPECT_EQ(Row()["CUF"], 21.25);
    EXPECT_EQ(Row()["CUCE"], 3.75);
    EXPECT_EQ(Row()["CUFE"], 31.0);
    EXPECT_NEAR(Chart()["m_dGraphPhi"].get<double>(), 21.25, 1e-4);
    EXPECT_NEAR(Chart()["m_dGraphCEff"].get<double>(), 3.75, 1e-4);
    EXPECT_NEAR(Chart()["m_dGraphPhiEff"].get<double>(), 31.0, 1e-4);
}
