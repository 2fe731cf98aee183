#include "chart/chart_entity.h"
#include "drawing/styles.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/db_text.h"
#include "platform/acad/memory_filer.h"
#include "tests/support/drawing.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {
void Prepare(CBRENChart& chart) {
    chart.m_strSYFF = g_pMethodUU;
    chart.m_nMohrRows = 4;
    chart.m_dMohrStepX = chart.m_dMohrStepY = 25.0;
    chart.m_ptMohrOrigin.set(0.0, 0.0, 0.0);
    chart.m_ptEnvStart.set(0.0, 10.0, 0.0);
    chart.m_ptEnvEnd.set(50.0, 30.0, 0.0);
}
} // namespace

TEST(WorldDraw, ShowsOnlyTheEnvelopeDuringADragAndReadsNothing) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart);
    const CDisplayList list = DrawEntity(chart, true);
    EXPECT_EQ(list.size(), 1U);
    EXPECT_EQ(Shapes<CPlinePrimitive>(list).size(), 1U);
    EXPECT_EQ(chart.m_dGraphC, 0.0);
}

TEST(WorldDraw, ReadsTheGraphicalValuesOffTheLine) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart);
    DrawEntity(chart);
    EXPECT_EQ(chart.m_dGraphC, 25.0);
    EXPECT_GT(chart.m_dGraphPhi, 21.0);
    EXPECT_EQ(chart.m_dCalcC, 0.0);
    EXPECT_EQ(chart.m_dAdoptC, 0.0);
}

TEST(WorldDraw, TitlesBothPanels) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart);
    std::vector<std::string> texts;
    for (const CTextPrimitive& text : Shapes<CTextPrimitive>(DrawEntity(chart)))
        texts.push_back(text.m_strText);
    for (const char* pTitle : {"轴向应变ε (%)", "主应力差σ-σ (kPa)", "σ (kPa)", "τ (kPa)"})
        EXPECT_EQ(std::count(texts.begin(), texts.end(), pTitle), 1) << pTitle;
}

TEST(WorldDraw, GivesTheSamePictureEachTime) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart);
    const CDisplayList first = DrawEntity(chart);
    const CDisplayList second = DrawEntity(chart);
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); i++) {
        EXPECT_EQ(first[i].m_nColor, second[i].m_nColor);
        EXPECT_EQ(first[i].m_strLinetype, second[i].m_strLinetype);
        EXPECT_EQ(first[i].m_shape.index(), second[i].m_shape.index());
    }
}

namespace {
/// A chart that shows one of everything.
void PrepareWhole(CBRENChart& chart) {
    Prepare(chart);
    chart.setColorIndex(3);
    CDoubleList strains, stresses;
    for (int i = 0; i < 3; i++) {
        strains.append(0.01 * i);
        stresses.append(20.0 * i);
    }
    chart.m_arStrainSeries.Add(strains);
    chart.m_arStressSeries.Add(stresses);
    chart.m_arSigma3.append(50.0);
    chart.m_arDeviator.append(50.0);
    for (int i = 0; i < 6; i++)
        chart.m_arTotal.append(10.0 * i);
    chart.m_ptMohrOrigin.set(0.0, -100.0, 0.0);
    chart.m_ptTableOrigin.set(200.0, 0.0, 0.0);
    chart.m_ptSummaryOrigin.set(200.0, -100.0, 0.0);
}

/// The kind of each part, equal neighbours once.
std::string Kinds(const CEntities& entities) {
    std::string strKinds;
    for (const auto& pEntity : entities) {
        const char chKind = AcDbSpline::cast(pEntity.get())     ? 'S'
                            : AcDbArc::cast(pEntity.get())      ? 'A'
                            : AcDbPolyline::cast(pEntity.get()) ? 'P'
                            : AcDbText::cast(pEntity.get())     ? 'T'
                                                                : '?';
        if (strKinds.empty() || strKinds.back() != chKind) strKinds += chKind;
    }
    return strKinds;
}
} // namespace

TEST(Explode, GivesCurvesCirclesEnvelopeAxesAndTablesInThisOrder) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareWhole(chart);
    const CEntities entities = Exploded(chart);
    // Curve, dots, circle, then envelope and the first panel; its texts, the second panel, its texts; the
    // stress table with its two fractions; the summary table.
    EXPECT_EQ(Kinds(entities), "SPAPTPTPTPTPTPT");
    const auto* const pEnvelope = AcDbPolyline::cast(entities.at(1 + 3 + 1).get());
    ASSERT_NE(pEnvelope, nullptr);
    EXPECT_EQ(pEnvelope->Vertices()[1].m_pt.x, 50.0);
    EXPECT_EQ(pEnvelope->Vertices()[1].m_pt.y, 30.0);
    EXPECT_EQ(Parts<AcDbText>(entities).size(), Shapes<CTextPrimitive>(DrawEntity(chart)).size() - 5)
        << "all but the summary values, which a drawing lists";
    for (const auto& pEntity : entities)
        EXPECT_EQ(pEntity->database(), nullptr) << "the caller's";
}

TEST(Explode, GivesAsManyPartsAsTheDrawnChartShows) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareWhole(chart);
    const CDisplayList list = DrawEntity(chart);
    const CEntities entities = Exploded(chart);
    EXPECT_EQ(Parts<AcDbText>(entities).size(), Shapes<CTextPrimitive>(list).size());
    EXPECT_EQ(Parts<AcDbPolyline>(entities).size(), Shapes<CPlinePrimitive>(list).size());
    EXPECT_EQ(entities.size(), list.size());
}

TEST(Explode, ChangesNothingInTheChart) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareWhole(chart);
    const CDbRecord before = RecordOf(chart, AcDb::kFileFiler);
    Exploded(chart);
    EXPECT_EQ(RecordOf(chart, AcDb::kFileFiler), before);
    EXPECT_EQ(chart.m_dGraphC, 0.0) << "the line is not read";
}

TEST(Explode, SetsTheTextsInTheChartsTextStyle) {
    CTestDrawing drawing;
    CBRENChart chart;
    PrepareWhole(chart);
    CreateTextStyleFromIni(g_pSheetTextStyle, chart.m_idTextStyle, &drawing.Database());
    const CEntities entities = Exploded(chart);
    for (const AcDbText* pText : Parts<AcDbText>(entities)) {
        EXPECT_EQ(pText->textStyle(), chart.m_idTextStyle);
        EXPECT_EQ(pText->widthFactor(), 1.0);
    }
}

TEST(Explode, OfANewChartGivesFramesAndTables) {
    const CTestDrawing drawing;
    const CBRENChart chart;
    EXPECT_EQ(Kinds(Exploded(chart)), "PTPTPTPTPTPT");
}

TEST(WorldDraw, OfAReloadedChartShowsTheLineWhoseFlagIsNotFiled) {
    const CTestDrawing drawing;
    CBRENChart chart;
    Prepare(chart);
    chart.m_bNoEnvelope = 1;
    const std::size_t nWithout = DrawEntity(chart).size();
    const CDbRecord record = RecordOf(chart, AcDb::kCopyFiler);
    CRecordReader reader(AcDb::kCopyFiler, record);
    CBRENChart loaded;
    ASSERT_EQ(loaded.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(DrawEntity(loaded).size(), nWithout + 1 + 2) << "the line, and c and φ in the table";
}

TEST(WorldDraw, ShowsACircleTwiceWhoseListsWereReadOverTheChart) {
    const CTestDrawing drawing;
    CBRENChart chart;
    PrepareWhole(chart);
    const CDbRecord record = RecordOf(chart, AcDb::kCopyFiler);
    const auto texts = Shapes<CTextPrimitive>(DrawEntity(chart)).size();
    CRecordReader reader(AcDb::kCopyFiler, record);
    ASSERT_EQ(chart.dwgIn(&reader), Acad::eOk);
    const CDisplayList list = DrawEntity(chart);
    EXPECT_EQ(Shapes<CArcPrimitive>(list).size(), 2U);
    EXPECT_EQ(Shapes<CTextPrimitive>(list).size(), texts) << "the tables read other lists";
}
