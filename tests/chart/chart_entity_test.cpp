#include "chart/chart_entity.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/field_table.h"
#include "platform/acad/rx_registry.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>
#include <memory>

namespace {
class ChartClass : public testing::Test {
protected:
    ChartClass() { CBRENChart::rxInit(); }
    ~ChartClass() override { CBRENChart::rxExit(); }
};
} // namespace

TEST_F(ChartClass, IsRegisteredWithItsNamesAndNumbers) {
    const AcRxClass* pClass = CBRENChart::desc();
    ASSERT_NE(pClass, nullptr);
    EXPECT_STREQ(pClass->name(), L"CBRENChart");
    EXPECT_STREQ(pClass->dxfName(), L"CBRENCHART");
    EXPECT_STREQ(pClass->appName(), L"CBRENCHART");
    EXPECT_EQ(pClass->myParent(), AcDbEntity::desc());
    EXPECT_EQ(pClass->dwgVersion(), 31);
    EXPECT_EQ(pClass->maintenanceVersion(), 55);
    EXPECT_EQ(pClass->proxyFlags(), 255);
}

TEST_F(ChartClass, IsRegisteredOnce) {
    const AcRxClass* pClass = CBRENChart::desc();
    CBRENChart::rxInit();
    EXPECT_EQ(CBRENChart::desc(), pClass);
}

TEST_F(ChartClass, MakesDefaultObjects) {
    const std::unique_ptr<AcRxObject> pObject(CBRENChart::desc()->create());
    ASSERT_NE(pObject, nullptr);
    EXPECT_EQ(pObject->isA(), CBRENChart::desc());
    EXPECT_NE(CBRENChart::cast(pObject.get()), nullptr);
    EXPECT_TRUE(pObject->isKindOf(AcDbEntity::desc()));
}

TEST_F(ChartClass, IsGoneAfterItsRemoval) {
    CBRENChart::rxExit();
    auto* pDictionary = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
    EXPECT_EQ(pDictionary->at(L"CBRENChart"), nullptr);
    EXPECT_EQ(CBRENChart::desc(), nullptr);
}

TEST_F(ChartClass, ShowsItsFieldsThroughTheDescriptor) {
    EXPECT_NE(CBRENChart::desc()->queryX(CFieldTable::desc()), nullptr);
}

TEST(Chart, BeginsWithTheDefaultsOfANewSheet) {
    const CBRENChart chart;
    EXPECT_EQ(chart.m_nCurveRows, 8);
    EXPECT_EQ(chart.m_nCurveCols, 8);
    EXPECT_EQ(chart.m_dCurveStepY, 10.0);
    EXPECT_EQ(chart.m_dCurveStepX, 1.0);
    EXPECT_EQ(chart.m_nCurveCellW, 10);
    EXPECT_EQ(chart.m_nMohrCols, 10);
    EXPECT_EQ(chart.m_nMohrRows, 0);
    EXPECT_EQ(chart.m_dMohrStepX, 25.0);
    EXPECT_EQ(chart.m_dArrowHalfWidth, 0.5);
    EXPECT_EQ(chart.m_dTextHeight, 2.5);
    EXPECT_EQ(chart.m_bSingleSpecimen, 1);
    EXPECT_EQ(chart.m_bNoEnvelope, 0);
    EXPECT_TRUE(chart.m_idTextStyle.isNull());
    EXPECT_TRUE(chart.m_ptEnvEnd == AcGePoint3d::kOrigin);
}

TEST(Chart, KeepsItsColourIndexAndMarksTheChange) {
    CBRENChart chart;
    EXPECT_EQ(chart.setColorIndex(3, Adesk::kFalse), Acad::eOk);
    EXPECT_EQ(chart.m_nColor, 3);
    EXPECT_EQ(chart.colorIndex(), 3);
    EXPECT_EQ(chart.m_bColorChanging, 1);
}

TEST(Chart, ShowsItsPictureInAFileByBareLines) {
    CTestDrawing drawing;
    CBRENChart chart;
    CDisplayRecorder forFile(chart);
    chart.saveAs(&forFile, AcDb::kR14Save);
    const CDisplayList saved = forFile.Take();
    EXPECT_TRUE(Shapes<CPlinePrimitive>(saved).empty());
    const auto nLines = Shapes<CPolylinePrimitive>(saved).size();
    EXPECT_EQ(chart.m_nPolylineMode, 0);
    const CDisplayList shown = DrawEntity(chart);
    EXPECT_TRUE(Shapes<CPolylinePrimitive>(shown).empty());
    EXPECT_EQ(Shapes<CPlinePrimitive>(shown).size(), nLines);
}
