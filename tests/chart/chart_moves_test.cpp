#include "chart/chart_entity.h"

#include "frame/frame_entity.h"
#include "platform/acad/db_line.h"
#include "tests/chart/placed_chart.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {
using CMoved = std::vector<int>;

const AcGeVector3d g_vecOffset(10.0, 20.0, 30.0);

CMoved AfterTranslation(const char* pMethod) {
    CBRENChart chart;
    chart.m_strSYFF = pMethod;
    PlacePoints(chart);
    EXPECT_EQ(chart.transformBy(AcGeMatrix3d::translation(g_vecOffset)), Acad::eOk);
    return TimesMoved(chart, g_vecOffset);
}

/// A chart that watches a frame of the same drawing.
class ChartBehindFrame : public testing::Test {
protected:
    ChartBehindFrame() {
        CBRENChart::rxInit();
        CBRENFrame::rxInit();
        m_drawing.Database().UndoLog().BeginStep();
        m_pChart = new CBRENChart;
        PlacePoints(*m_pChart);
        m_idChart = Append(m_pChart);
        m_idFrame = Append(new CBRENFrame);
        Watch(m_idFrame);
    }
    ~ChartBehindFrame() override {
        CBRENFrame::rxExit();
        CBRENChart::rxExit();
    }
    AcDbObjectId Append(AcDbEntity* pEntity) {
        const CDbOpen<AcDbBlockTableRecord> pSpace(m_drawing.Database().ModelSpaceId(), AcDb::kForWrite);
        AcDbObjectId id;
        pSpace->appendAcDbEntity(id, pEntity);
        pEntity->close();
        return id;
    }
    void Watch(AcDbObjectId id) const {
        const CDbOpen<AcDbEntity> pEntity(id, AcDb::kForWrite);
        pEntity->addPersistentReactor(m_idChart);
    }
    /// A command of its own.
    void GripFrame(const AcGeVector3d& offset) {
        m_drawing.Database().UndoLog().BeginStep();
        AcDbIntArray indices;
        indices.append(0);
        const CDbOpen<CBRENFrame> pFrame(m_idFrame, AcDb::kForWrite);
        pFrame->moveGripPointsAt(indices, offset);
    }
    CMoved ChartMoved() const { return TimesMoved(*m_pChart, g_vecOffset); }

    CTestDrawing m_drawing;
    CBRENChart* m_pChart = nullptr; // looked at without opening it
    AcDbObjectId m_idChart, m_idFrame;
};

const CMoved g_arAllButBase = {0, 1, 1, 1, 1, 1, 1, 1, 1};
} // namespace

TEST(ChartMoves, ATranslationMovesAnchorsAndLineAndNeverTheBase) {
    EXPECT_EQ(AfterTranslation(g_pMethodCU), (CMoved{0, 1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST(ChartMoves, ATranslationLeavesTheEffectiveLineAloneWhereThereIsNone) {
    EXPECT_EQ(AfterTranslation(g_pMethodUU), (CMoved{0, 1, 1, 1, 1, 1, 1, 0, 0}));
    EXPECT_EQ(AfterTranslation(g_pMethodCD), (CMoved{0, 1, 1, 1, 1, 1, 1, 0, 0}));
}

TEST(ChartMoves, ATurnAMirrorAndAScaleAreRefused) {
    CBRENChart chart;
    PlacePoints(chart);
    for (const AcGeMatrix3d& matrix :
         {AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin),
          AcGeMatrix3d::rotation(std::numbers::pi, AcGeVector3d::kZAxis, {10.0, 20.0, 0.0}),
          AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis),
          AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin),
          AcGeMatrix3d::scaling(1.001, {1.0, 100.0, 0.5})}) {
        EXPECT_EQ(chart.transformBy(matrix), 2);
        EXPECT_EQ(TimesMoved(chart, g_vecOffset), CMoved(9));
    }
}

TEST(ChartMoves, AMirrorThatLeavesTheXAxisAloneIsCarriedOut) {
    CBRENChart chart;
    PlacePoints(chart);
    EXPECT_EQ(chart.transformBy(AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis)),
              Acad::eOk);
    EXPECT_EQ(Xyz(chart.m_ptCurveOrigin), (CXyz{2.0, -200.0, 0.5}));
}

TEST(ChartMoves, AWholeTurnIsCarriedOut) {
    CBRENChart chart;
    PlacePoints(chart);
    const AcGeMatrix3d turn =
        AcGeMatrix3d::rotation(2.0 * std::numbers::pi, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin);
    EXPECT_EQ(chart.transformBy(turn), Acad::eOk);
    AcGePoint3d ptExpected(2.0, 200.0, 0.5);
    ptExpected.transformBy(turn);
    EXPECT_EQ(Xyz(chart.m_ptCurveOrigin), Xyz(ptExpected));
    EXPECT_NE(Xyz(chart.m_ptCurveOrigin), (CXyz{2.0, 200.0, 0.5})) << "a turn by rounded angles";
}

TEST_F(ChartBehindFrame, FollowsTheFramesGripWithAllButItsBase) {
    GripFrame(g_vecOffset);
    EXPECT_EQ(ChartMoved(), g_arAllButBase) << "the effective ends too, though the chart has no such set";
    GripFrame(g_vecOffset);
    EXPECT_EQ(ChartMoved(), (CMoved{0, 2, 2, 2, 2, 2, 2, 2, 2}));
    EXPECT_FALSE(m_pChart->isWriteEnabled());
}

TEST_F(ChartBehindFrame, StaysWhereItIsForAZeroOffset) {
    GripFrame({0.0, 0.0, 0.0});
    EXPECT_EQ(ChartMoved(), CMoved(9));
}

TEST_F(ChartBehindFrame, TakesTheLastGripOffsetAgainWithEveryOtherChangeOfTheFrame) {
    const auto shift = [this] {
        const CDbOpen<CBRENFrame> pFrame(m_idFrame, AcDb::kForWrite);
        pFrame->transformBy(AcGeMatrix3d::translation({1.0, 0.0, 0.0}));
    };
    shift(); // nothing was moved by its grip yet
    EXPECT_EQ(ChartMoved(), CMoved(9));
    GripFrame(g_vecOffset);
    shift();
    EXPECT_EQ(ChartMoved(), (CMoved{0, 2, 2, 2, 2, 2, 2, 2, 2}));
}

TEST_F(ChartBehindFrame, IsNotMovedOnceMoreByAnUndoOrARedo) {
    GripFrame(g_vecOffset);
    EXPECT_EQ(m_drawing.Database().UndoLog().Undo(1), 1);
    EXPECT_EQ(ChartMoved(), CMoved(9));
    EXPECT_EQ(m_drawing.Database().UndoLog().Redo(1), 1);
    EXPECT_EQ(ChartMoved(), g_arAllButBase);
}

TEST_F(ChartBehindFrame, DropsExactlyOneNotificationAfterAChangeOfItsColour) {
    {
        const CDbOpen<CBRENChart> pChart(m_idChart, AcDb::kForWrite);
        pChart->setColorIndex(1);
    }
    GripFrame(g_vecOffset);
    EXPECT_EQ(ChartMoved(), CMoved(9)) << "a real move, and yet dropped";
    EXPECT_EQ(m_pChart->m_bColorChanging, 0);
    GripFrame(g_vecOffset);
    EXPECT_EQ(ChartMoved(), g_arAllButBase);
}

TEST_F(ChartBehindFrame, StaysBehindWhenSomebodyReadsIt) {
    const CDbOpen<CBRENChart> pReader(m_idChart);
    GripFrame(g_vecOffset);
    EXPECT_EQ(ChartMoved(), CMoved(9));
}

TEST_F(ChartBehindFrame, IsMovedByNothingButAFrame) {
    const AcDbObjectId idLine = Append(new AcDbLine(AcGePoint3d::kOrigin, {1.0, 0.0, 0.0}));
    Watch(idLine);
    {
        const CDbOpen<AcDbLine> pLine(idLine, AcDb::kForWrite);
        pLine->transformBy(AcGeMatrix3d::translation(g_vecOffset));
    }
    EXPECT_EQ(ChartMoved(), CMoved(9));
    EXPECT_FALSE(m_pChart->isWriteEnabled()) << "closed again";
}
