#include "commands/brcf_command.h"

#include "commands/document_session.h"
#include "platform/acad/db_line.h"
#include "platform/mfc/resources.h"
#include "tests/commands/chart_command_fixture.h"

#include <algorithm>
#include <limits>

namespace {
constexpr const char* g_pStored = "\n三轴剪切数据存储成功!\n";
constexpr const char* g_pGivenUp = "\n放弃存储三轴剪切数据!";
constexpr const char* g_pFailed = "\n三轴剪切数据存储失败!";

using CValues = std::vector<double>;

class BrcfCommandTest : public CChartCommandTest {
protected:
    void Run(const std::vector<std::string>& lines) { CChartCommandTest::Run(&BrcfCommand, lines); }
    CValues Adopted() const {
        return Ask([](const CBRENChart& chart) {
            return CValues{chart.m_dAdoptPhi, chart.m_dAdoptC, chart.m_dAdoptPhiEff, chart.m_dAdoptCEff};
        });
    }
    /// The shown line of a control.
    std::string Shown(UINT nId) const {
        const std::string strStart = std::to_string(nId) + " ";
        const auto line = std::find_if(m_arShown.begin(), m_arShown.end(),
                                       [&](const std::string& shown) { return shown.starts_with(strStart); });
        return line == m_arShown.end() ? "" : *line;
    }
    /// The ends of the envelope line, then those of the effective one.
    CValues Lines() const {
        return Ask([](const CBRENChart& chart) {
            return CValues{chart.m_ptEnvStart.x,  chart.m_ptEnvStart.y,    chart.m_ptEnvEnd.x,
                           chart.m_ptEnvEnd.y,    chart.m_ptEnvStartEff.x, chart.m_ptEnvStartEff.y,
                           chart.m_ptEnvEndEff.x, chart.m_ptEnvEndEff.y};
        });
    }
};
} // namespace

TEST_F(BrcfCommandTest, OffersTheTotalValuesOfAnUnconsolidatedTestUncut) {
    AddChart(g_pMethodUU);
    Change([](CBRENChart& chart) { chart.m_dCalcPhi = 25.678; });
    Run({"show", "ok"});
    EXPECT_EQ(m_arShown.front(), "dialog 14 \"选择采用值入库\"");
    EXPECT_EQ(Shown(1049), "1049 edit disabled \"\" \"不固结不排水剪\"");
    EXPECT_EQ(Shown(1044), "1044 edit disabled \"\" \"25.68\"");
    EXPECT_EQ(Shown(1041), "1041 edit disabled \"\" \"14.44\"");
    EXPECT_EQ(Shown(1045), "1045 edit enabled \"\" \"16.67\"");
    EXPECT_EQ(Shown(1053), "1053 edit disabled \"\" \"0\"");
    EXPECT_EQ(m_drawing.m_strPrompt, "\n请选择三轴剪切试样曲线:");
    EXPECT_EQ(m_drawing.m_strPrinted, g_pStored);
    EXPECT_EQ(Stored(), "16.67|15.56||||||");
}

TEST_F(BrcfCommandTest, OffersBothSetsOfAConsolidatedUndrainedTestCut) {
    AddChart(g_pMethodCU);
    Change([](CBRENChart& chart) {
        chart.m_dCalcPhi = 25.678;
        chart.m_dCalcCEff = -1.239;
    });
    Run({"show", "ok"});
    EXPECT_EQ(Shown(1044), "1044 edit disabled \"\" \"25.67\"");
    EXPECT_EQ(Shown(1051), "1051 edit disabled \"\" \"-1.22\""); // cut to -1.23, and rounded up by the dialog
    EXPECT_EQ(Shown(1045), "1045 edit enabled \"\" \"16.66\"");
    EXPECT_EQ(Shown(1054), "1054 edit enabled \"\" \"25.55\"");
    EXPECT_EQ(Stored(), "||16.66|15.55|26.66|25.55||");
}

TEST_F(BrcfCommandTest, OffersThePlainValuesOfADrainedTestAsEffectiveOnes) {
    AddChart(g_pMethodCD);
    Run({"show", "set 1053 7", "set 1054 8", "ok"});
    EXPECT_EQ(Shown(1052), "1052 edit disabled \"\" \"11.11\"");
    EXPECT_EQ(Shown(1047), "1047 edit disabled \"\" \"14.44\"");
    EXPECT_EQ(Shown(1043), "1043 edit disabled \"\" \"0\"");
    EXPECT_EQ(Shown(1045), "1045 edit disabled \"\" \"0\"");
    EXPECT_EQ(Adopted()[0], 8.0);
    EXPECT_EQ(Adopted()[1], 7.0);
    EXPECT_DOUBLE_EQ(Adopted()[2], 25.555); // as it was
    EXPECT_EQ(Stored(), "||||||7|8");
}

TEST_F(BrcfCommandTest, TakesAnUnknownMethodForADrainedTestWhichStoresNoValue) {
    AddChart("其他");
    Run({"show", "set 1053 7", "ok"});
    EXPECT_EQ(Shown(1052), "1052 edit disabled \"\" \"11.11\"");
    EXPECT_EQ(Adopted()[1], 7.0);
    EXPECT_EQ(Stored(), "|||||||");
    EXPECT_EQ(m_drawing.m_strPrinted, g_pStored);
}

TEST_F(BrcfCommandTest, AdoptsTheChosenValuesAndRefitsBothLines) {
    AddChart(g_pMethodCU);
    Run({"check 1060", "ok"});
    EXPECT_EQ(Adopted(), (CValues{13.33, 14.44, 23.33, 24.44}));
    EXPECT_EQ(Stored(), "||14.44|13.33|24.44|23.33||");
    const CValues lines = Ask([](const CBRENChart& chart) {
        AcGePoint3d ptStart, ptEnd, ptStartEff, ptEndEff;
        chart.FitEnvelopeLine(ptStart, ptEnd, 13.33 * 3.1415926 / 180.0, 14.44);
        chart.FitEnvelopeLine(ptStartEff, ptEndEff, 23.33 * 3.1415926 / 180.0, 24.44);
        return CValues{ptStart.x,    ptStart.y,    ptEnd.x,    ptEnd.y,
                       ptStartEff.x, ptStartEff.y, ptEndEff.x, ptEndEff.y};
    });
    EXPECT_EQ(Lines(), lines);
    EXPECT_EQ(lines[1], 20.0 + 14.44 / 50.0 * 10.0);
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_EQ(m_drawing.m_arCommands, std::vector<std::string>{"regen"});
}

TEST_F(BrcfCommandTest, LeavesTheEffectiveLineOfOtherMethods) {
    AddChart(g_pMethodUU);
    Run({"check 1059", "ok"});
    EXPECT_EQ(Adopted()[0], 11.11);
    EXPECT_EQ(Lines()[1], 20.0 + 12.22 / 50.0 * 10.0);
    EXPECT_EQ(Lines()[4], 0.0);
    EXPECT_EQ(Lines()[7], 0.0);
}

TEST_F(BrcfCommandTest, StoresAlsoWhenTheDialogIsCancelled) {
    AddChart(g_pMethodCU);
    Change([](CBRENChart& chart) { chart.m_dAdoptC = -1.239; });
    Run({"set 1046 1", "cancel"});
    EXPECT_EQ(m_drawing.m_strPrinted, std::string(g_pGivenUp) + g_pStored);
    EXPECT_EQ(Stored(), "||-1.22|15.55|26.66|25.55||");
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_EQ(m_drawing.m_arCommands, std::vector<std::string>{"regen"});
}

TEST_F(BrcfCommandTest, ReleasesTheChart) {
    AddChart(g_pMethodUU);
    Run({"ok"});
    const CDbOpen<CBRENChart> pChart(m_idChart, AcDb::kForWrite);
    ASSERT_TRUE(pChart);
    EXPECT_FALSE(pChart->IsHighlighted());
}

TEST_F(BrcfCommandTest, EndsWithoutAPick) {
    AddChart(g_pMethodUU);
    m_drawing.m_arPicks.clear();
    Run({"ok"});
    EXPECT_EQ(m_drawing.m_strPrinted, "什么也没有选中.\n");
    EXPECT_EQ(m_nDialogs, 0);
    EXPECT_EQ(g_bChartDataChanged, 1);
}

TEST_F(BrcfCommandTest, EndsWhenAnotherEntityIsPicked) {
    AddChart(g_pMethodUU);
    AcDbObjectId idLine;
    AddToModelSpace(new AcDbLine({0, 0, 0}, {1, 0, 0}), idLine);
    m_drawing.m_arPicks = {idLine};
    Run({"ok"});
    EXPECT_EQ(m_drawing.m_strPrinted, "\n没有选中三轴剪切试样曲线!\n请选择三轴剪切试样曲线!");
    EXPECT_EQ(m_nDialogs, 0);
    EXPECT_EQ(g_bChartDataChanged, 1);
    EXPECT_FALSE(CDbOpen<AcDbEntity>(idLine)->IsHighlighted());
    EXPECT_TRUE(m_drawing.m_arCommands.empty());
}

TEST_F(BrcfCommandTest, EndsWhenTheProjectsNumberHasChanged) {
    AddChart(g_pMethodUU);
    m_project.Execute("update x_GongCheng set GCBH='GC-2'");
    const CValues before = Adopted();
    Run({"ok"});
    EXPECT_EQ(m_project.Boxes(), std::vector<std::string>{"该工程工程编号已被修改,数据无法入库!"});
    EXPECT_EQ(m_drawing.m_strPrinted, std::string("\n数据存储失败!") + g_pFailed);
    EXPECT_EQ(m_nDialogs, 0);
    EXPECT_EQ(Adopted(), before);
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_FALSE(CDbOpen<AcDbEntity>(m_idChart)->IsHighlighted());
}

TEST_F(BrcfCommandTest, KeepsWhatWasAdoptedInAChartWhoseRowIsGone) {
    AddChart(g_pMethodUU);
    m_project.Execute("delete from z_c_SanZhou");
    const CValues before = Lines();
    Run({"check 1059", "ok"});
    EXPECT_EQ(m_drawing.m_strPrinted, std::string("\n三轴剪切试验表中无对应项!") + g_pFailed);
    EXPECT_EQ(Adopted()[0], 11.11);
    EXPECT_EQ(Lines(), before);
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_TRUE(m_drawing.m_arCommands.empty());
    EXPECT_FALSE(CDbOpen<AcDbEntity>(m_idChart)->IsHighlighted());
}

TEST_F(BrcfCommandTest, CanBeConfirmedForAChartWithValuesThatAreNoNumbers) {
    AddChart(g_pMethodCU);
    Change([](CBRENChart& chart) {
        chart.m_dGraphPhi = chart.m_dGraphCEff = std::numeric_limits<double>::quiet_NaN();
        chart.m_dCalcPhi = std::numeric_limits<double>::infinity();
    });
    Run({"show", "ok"});
    EXPECT_EQ(Shown(1042), "1042 edit disabled \"\" \"-21474836.47\"");
    EXPECT_EQ(m_drawing.m_strPrinted, g_pStored);
    EXPECT_TRUE(m_project.Boxes().empty());
}

TEST_F(BrcfCommandTest, TakesBackTheResourcesThatAHostPutInForceForManyDocuments) {
    AddChart(g_pMethodUU);
    const HINSTANCE hBefore = AfxGetResourceHandle();
    Run({"ok"});
    EXPECT_EQ(AfxGetResourceHandle(), hBefore);
    const CModuleResources pushed{{}};
    for (const short nSdi : std::initializer_list<short>{0, 1}) {
        SetSdi(nSdi);
        acDocManager->pushResourceHandle(&pushed);
        Run({"ok"});
        AfxSetResourceHandle(&pushed);
        acDocManager->popResourceHandle(); // in single-document mode it is still there
        EXPECT_EQ(AfxGetResourceHandle(), nSdi == 0 ? &pushed : hBefore);
        AfxSetResourceHandle(hBefore);
    }
}
