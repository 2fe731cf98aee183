#include "chart/chart_entity.h"

#include "platform/acad/display_recorder.h"
#include "tests/chart/placed_chart.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class ChartGrips : public testing::Test {
protected:
    ChartGrips() {
        g_bChartDataChanged = 0;
        m_chart.m_strSYFF = g_pMethodUU;
        PlacePoints(m_chart);
    }
    ~ChartGrips() override { g_bChartDataChanged = 0; }

    std::vector<CXyz> Grips() const {
        AcGePoint3dArray grips;
        AcDbIntArray osnapModes, geomIds;
        EXPECT_EQ(m_chart.getGripPoints(grips, osnapModes, geomIds), Acad::eOk);
        EXPECT_TRUE(osnapModes.isEmpty() && geomIds.isEmpty());
        std::vector<CXyz> points;
        for (const AcGePoint3d& grip : grips)
            points.push_back(Xyz(grip));
        return points;
    }
    /// Which of the nine points, the base first, grips moved so far; each by how often.
    std::vector<int> Moved(std::initializer_list<int> grips) {
        const AcGeVector3d offset(10.0, 20.0, 30.0);
        AcDbIntArray indices;
        for (const int nIndex : grips)
            indices.append(nIndex);
        EXPECT_EQ(m_chart.moveGripPointsAt(indices, offset), Acad::eOk);
        return TimesMoved(m_chart, offset);
    }

    CBRENChart m_chart;
};

using CMoved = std::vector<int>;
} // namespace

TEST_F(ChartGrips, StandAtThePanelsTheFeetOfTheTablesAndTheEndsOfTheLine) {
    EXPECT_EQ(Grips(), (std::vector<CXyz>{{2.0, 200.0, 0.5},
                                          {3.0, 300.0, 0.5},
                                          {4.0, 348.0, 0.5},
                                          {5.0, 452.0, 0.5},
                                          {6.0, 600.0, 0.5},
                                          {7.0, 700.0, 0.5}}));
    m_chart.m_strSYFF = g_pMethodCD;
    EXPECT_EQ(Grips().size(), 6U);
}

TEST_F(ChartGrips, StandAtTheEffectiveLineTooWhereThereIsOne) {
    m_chart.m_strSYFF = g_pMethodCU;
    EXPECT_EQ(Grips(), (std::vector<CXyz>{{2.0, 200.0, 0.5},
                                          {3.0, 300.0, 0.5},
                                          {4.0, 314.0, 0.5},
                                          {5.0, 436.0, 0.5},
                                          {6.0, 600.0, 0.5},
                                          {7.0, 700.0, 0.5},
                                          {8.0, 800.0, 0.5},
                                          {9.0, 900.0, 0.5}}));
}

TEST_F(ChartGrips, AreAppendedToWhatTheListHolds) {
    AcGePoint3dArray grips;
    grips.append(AcGePoint3d(-1.0, -2.0, -3.0));
    AcDbIntArray osnapModes, geomIds;
    m_chart.getGripPoints(grips, osnapModes, geomIds);
    ASSERT_EQ(grips.length(), 7);
    EXPECT_EQ(Xyz(grips[0]), (CXyz{-1.0, -2.0, -3.0}));
    EXPECT_EQ(Xyz(grips[3]), (CXyz{4.0, 348.0, 0.5}));
    EXPECT_EQ(Xyz(grips[4]), (CXyz{5.0, 452.0, 0.5}));
}

TEST_F(ChartGrips, OfPanelsAndTablesMoveTheirAnchor) {
    EXPECT_EQ(Moved({0}), (CMoved{0, 1, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Moved({2}), (CMoved{0, 1, 0, 1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Moved({3}), (CMoved{0, 1, 0, 1, 1, 0, 0, 0, 0}));
    EXPECT_EQ(g_bChartDataChanged, 0);
}

TEST_F(ChartGrips, OfTheMohrPanelTakeAllLineEndsAlongWhateverTheMethod) {
    EXPECT_EQ(Moved({1}), (CMoved{0, 0, 1, 0, 0, 1, 1, 1, 1}));
    m_chart.m_strSYFF = g_pMethodCU;
    EXPECT_EQ(Moved({1}), (CMoved{0, 0, 2, 0, 0, 2, 2, 2, 2}));
    EXPECT_EQ(g_bChartDataChanged, 0) << "the line lies in the panel as before";
}

TEST_F(ChartGrips, OfTheLineMoveOneEndAndNoteTheChange) {
    EXPECT_EQ(Moved({4}), (CMoved{0, 0, 0, 0, 0, 1, 0, 0, 0}));
    EXPECT_EQ(g_bChartDataChanged, 1);
    g_bChartDataChanged = 0;
    EXPECT_EQ(Moved({5}), (CMoved{0, 0, 0, 0, 0, 1, 1, 0, 0}));
    EXPECT_EQ(g_bChartDataChanged, 1);
}

TEST_F(ChartGrips, OfTheEffectiveLineMoveOneEndAndNoteTheChange) {
    m_chart.m_strSYFF = g_pMethodCU;
    EXPECT_EQ(Moved({6}), (CMoved{0, 0, 0, 0, 0, 0, 0, 1, 0}));
    EXPECT_EQ(g_bChartDataChanged, 1);
    g_bChartDataChanged = 0;
    EXPECT_EQ(Moved({7}), (CMoved{0, 0, 0, 0, 0, 0, 0, 1, 1}));
    EXPECT_EQ(g_bChartDataChanged, 1);
}

TEST_F(ChartGrips, ThatTheChartDoesNotHaveArePassedOver) {
    EXPECT_EQ(Moved({6, 7, 8, -1}), CMoved(9));
    EXPECT_EQ(Moved({-1, 0, 99}), (CMoved{0, 1, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(g_bChartDataChanged, 0);
}

TEST_F(ChartGrips, MoveInTheOrderOfTheListSoThatTheMohrPanelAndItsLineAddUp) {
    EXPECT_EQ(Moved({1, 4}), (CMoved{0, 0, 1, 0, 0, 2, 1, 1, 1}));
    EXPECT_EQ(Moved({0, 0}), (CMoved{0, 2, 1, 0, 0, 2, 1, 1, 1}));
}

TEST_F(ChartGrips, OfALineThatIsNotShownCanBeMoved) {
    const CTestDrawing drawing;
    m_chart.m_bNoEnvelope = 1;
    EXPECT_EQ(Grips().size(), 6U);
    EXPECT_EQ(Moved({4, 5}), (CMoved{0, 0, 0, 0, 0, 1, 1, 0, 0}));
    EXPECT_EQ(g_bChartDataChanged, 1);
    EXPECT_TRUE(DrawEntity(m_chart, true).empty());
}

TEST_F(ChartGrips, ChangeTheGraphicalValuesWithTheNextDrawingThatIsNoDrag) {
    const CTestDrawing drawing;
    m_chart.m_nMohrRows = 4;
    m_chart.m_dMohrStepX = m_chart.m_dMohrStepY = 25.0;
    m_chart.m_ptMohrOrigin.set(0.0, 0.0, 0.0);
    m_chart.m_ptEnvStart.set(0.0, 10.0, 0.0);
    m_chart.m_ptEnvEnd.set(50.0, 10.0, 0.0);
    DrawEntity(m_chart);
    EXPECT_EQ(m_chart.m_dGraphC, 25.0);
    EXPECT_EQ(m_chart.m_dGraphPhi, 0.0);
    AcDbIntArray indices;
    indices.append(5);
    m_chart.moveGripPointsAt(indices, {0.0, 50.0, 0.0});
    DrawEntity(m_chart, true);
    EXPECT_EQ(m_chart.m_dGraphPhi, 0.0);
    DrawEntity(m_chart);
    EXPECT_NEAR(m_chart.m_dGraphPhi, 45.0, 1e-5);
    EXPECT_EQ(m_chart.m_dGraphC, 25.0);
    EXPECT_EQ(m_chart.m_dCalcPhi, 0.0);
    EXPECT_EQ(m_chart.m_dAdoptPhi, 0.0);
}

TEST_F(ChartGrips, MayNotMoveWhileTheChartIsOpenForReadingOnly) {
    CBRENChart::rxInit();
    CTestDrawing drawing;
    AcDbObjectId id;
    {
        auto* const pChart = new CBRENChart;
        const CDbOpen<AcDbBlockTableRecord> pSpace(drawing.Database().ModelSpaceId(), AcDb::kForWrite);
        pSpace->appendAcDbEntity(id, pChart);
        pChart->close();
    }
    {
        const CDbOpen<CBRENChart> pChart(id);
        EXPECT_DEATH(pChart->moveGripPointsAt(AcDbIntArray(), {1.0, 0.0, 0.0}), "open for writing");
    }
    CBRENChart::rxExit();
}
