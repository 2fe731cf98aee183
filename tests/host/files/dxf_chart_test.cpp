// Charts as any other program's drawing.

#include "chart/chart_entity.h"
#include "drawing/styles.h"
#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"
#include "platform/acad/db_proxy.h"
#include "tests/host/files/drawing_contents.h"
#include "tests/host/files/dxf_audit.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

class DxfChart : public testing::Test {
protected:
    DxfChart() { CBRENChart::rxInit(); }
    ~DxfChart() override { CBRENChart::rxExit(); }
    /// Appends a chart with a Mohr panel and returns how many entities it explodes into.
    std::size_t AddChart();

    /// The box of what the chart draws for a file.
    AcDbExtents ShownByChart();

    CTestDrawing m_drawing;
};

AcDbExtents DxfChart::ShownByChart() {
    const CDbOpen<AcDbBlockTableRecord> space(m_drawing.Database().ModelSpaceId());
    const CDbOpen<AcDbEntity> chart(space->EntityIds()[0]);
    CDisplayRecorder recorder(*chart.Get());
    chart->saveAs(&recorder, AcDb::kR14Save);
    return ExtentsOf(recorder.Take());
}

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
    const CDxfFile file = WriteDxf(m_drawing.Database(), CDxfCustom::Exploded);
    EXPECT_EQ(file.m_losses, CDxfLosses());
    AcDbDatabase back;
    EXPECT_EQ(ReadDxf(file.m_strBytes, back), CDxfLosses());
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(back.ModelSpaceId())->EntityIds().size(), nParts);
}

TEST_F(DxfChart, PassesTheAuditOfAnotherProgramWithAllThatItExplodesInto) {
    const std::size_t nParts = AddChart();
    std::istringstream lines(
        Audit(WriteDxf(m_drawing.Database(), CDxfCustom::Exploded).m_strBytes).m_strFindings);
    std::size_t nFound = 0, nCount = 0;
    for (std::string strType; lines >> strType >> nCount;) {
        EXPECT_TRUE(strType == "TEXT" || strType == "LWPOLYLINE" || strType == "LINE" || strType == "ARC" ||
                    strType == "SPLINE")
            << strType;
        nFound += nCount;
    }
    EXPECT_EQ(nFound, nParts);
}

TEST_F(DxfChart, LeavesTheDrawingAsItWasWhenItIsExploded) {
    AddChart();
    AcDbDatabase& database = m_drawing.Database();
    database.SetModified(false);
    const double dLtscale = database.ltscale();
    const auto styles = LivingRecords(database.textStyleTableId());
    const auto linetypes = LivingRecords(database.linetypeTableId());
    const CDxfFile file = WriteDxf(database, CDxfCustom::Exploded);
    EXPECT_EQ(database.ltscale(), dLtscale);
    EXPECT_EQ(LivingRecords(database.textStyleTableId()), styles);
    EXPECT_EQ(LivingRecords(database.linetypeTableId()), linetypes);
    EXPECT_FALSE(database.IsModified());
    EXPECT_EQ(WriteDxf(database, CDxfCustom::Exploded).m_losses, file.m_losses);
}

TEST_F(DxfChart, ComesBackAsAProxyThatShowsTheSameAlsoWhereItsClassIsKnown) {
    AddChart();
    const CDxfFile file = WriteDxf(m_drawing.Database());
    EXPECT_EQ(file.m_losses, CDxfLosses());
    AcDbDatabase back;
    EXPECT_EQ(ReadDxf(file.m_strBytes, back), CDxfLosses());
    const auto proxies = Entities<AcDbProxyEntity>(back.ModelSpaceId());
    ASSERT_EQ(proxies.size(), 1U);
    EXPECT_EQ(std::wstring(proxies[0]->originalClassName()), L"CBRENChart");
    EXPECT_EQ(std::wstring(proxies[0]->originalDxfName()), CBRENChart::desc()->dxfName());
    EXPECT_EQ(std::wstring(proxies[0]->applicationDescription()), CBRENChart::desc()->appName());
    const AcDbExtents shown = ShownByChart();
    AcDbExtents box;
    ASSERT_EQ(proxies[0]->getGeomExtents(box), Acad::eOk);
    EXPECT_NEAR(box.minPoint().distanceTo(shown.minPoint()), 0.0, 0.01);
    EXPECT_NEAR(box.maxPoint().distanceTo(shown.maxPoint()), 0.0, 0.01);
}

TEST_F(DxfChart, ShowsAnotherProgramItsPicture) {
    AddChart();
    const CAudit audit = Audit(WriteDxf(m_drawing.Database()).m_strBytes);
    EXPECT_TRUE(audit.m_strFindings.starts_with("ACAD_PROXY_ENTITY 1\nshown ")) << audit.m_strFindings;
    EXPECT_NE(audit.m_strFindings.find("shown POLYLINE "), std::string::npos);
    EXPECT_NE(audit.m_strFindings.find("shown TEXT "), std::string::npos);
    ASSERT_EQ(audit.m_arBox.size(), 6U);
    const AcDbExtents shown = ShownByChart();
    EXPECT_GE(audit.m_arBox[0], shown.minPoint().x - 0.01);
    EXPECT_GE(audit.m_arBox[1], shown.minPoint().y - 0.01);
    EXPECT_LE(audit.m_arBox[3], shown.maxPoint().x + 0.01);
    EXPECT_LE(audit.m_arBox[4], shown.maxPoint().y + 0.01);
    EXPECT_GT(audit.m_arBox[3] - audit.m_arBox[0], 100.0);
}
