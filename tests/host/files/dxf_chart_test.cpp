// Charts as any other program's drawing.

#include "chart/chart_entity.h"
#include "drawing/styles.h"
#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"
#include "tests/host/files/dxf_audit.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

class DxfChart : public testing::Test {
protected:
    DxfChart() { CBRENChart::rxInit(); }
    ~DxfChart() override { CBRENChart::rxExit(); }
    /// Appends a chart with a Mohr panel and returns how many entities it explodes into.
    std::size_t AddChart();

    CTestDrawing m_drawing;
};

std::size_t DxfChart::AddChart() {
    auto* const pChart = new CBRENChart;
    pChart->m_strSYFF = g_pMethodUU;
    pChart->m_nMohrRows = 4;
    pChart->m_dMohrStepX = pChart->m_dMohrStepY = 25.0;
    pChart->m_ptEnvStart.set(0.0, 10.0, 0.0);
    pChart->m_ptEnvEnd.set(50.0, 30.0, 0.0);
    const CDbOpen<AcDbBlockTableRecord> space(m_drawing.Database().ModelSpaceId(), AcDb::kForWrite);
    EXPECT_EQ(space->appendAcDbEntity(pChart), Acad::eOk);
    pChart->close();
    const CDbOpen<AcDbEntity> chart(pChart->objectId());
    return Exploded(*chart.Get()).size();
}

TEST_F(DxfChart, IsWrittenAsTheOrdinaryEntitiesThatItExplodesInto) {
    const std::size_t nParts = AddChart();
    ASSERT_GT(nParts, 20U);
    const CDxfFile file = WriteDxf(m_drawing.Database());
    EXPECT_EQ(file.m_losses, CDxfLosses());
    AcDbDatabase back;
    EXPECT_EQ(ReadDxf(file.m_strBytes, back), CDxfLosses());
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(back.ModelSpaceId())->EntityIds().size(), nParts);
}

TEST_F(DxfChart, PassesTheAuditOfAnotherProgramWithAllItsEntities) {
    const std::size_t nParts = AddChart();
    std::istringstream lines(Audit(WriteDxf(m_drawing.Database()).m_strBytes).m_strFindings);
    std::size_t nFound = 0, nCount = 0;
    for (std::string strType; lines >> strType >> nCount;) {
        EXPECT_TRUE(strType == "TEXT" || strType == "LWPOLYLINE" || strType == "LINE" || strType == "ARC" ||
                    strType == "SPLINE")
            << strType;
        nFound += nCount;
    }
    EXPECT_EQ(nFound, nParts);
}
