#include "chart/chart_entity.h"
#include "platform/acad/display_recorder.h"
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
