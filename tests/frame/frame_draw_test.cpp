#include "frame/frame_entity.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/memory_filer.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
void Fill(CBRENFrame& frame) {
    frame.m_ptBase.set(10.0, 300.0, 0.0);
    frame.m_bRQ = 1;
    frame.m_nYear = 2024;
}
} // namespace

TEST(FrameDrawing, ShowsRectangleRulesAndTexts) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    const CDisplayList list = DrawEntity(frame);
    const auto lines = Shapes<CPlinePrimitive>(list);
    ASSERT_EQ(lines.size(), 2U + 6U);
    EXPECT_EQ(lines[0].m_arVertices.size(), 5U);
    EXPECT_EQ(lines[0].m_arVertices[0].m_dStartWidth, 0.5);
    EXPECT_EQ(lines[1].m_arVertices[0].m_dStartWidth, -1.0);
    const auto texts = Shapes<CTextPrimitive>(list);
    EXPECT_EQ(texts.size(), 1U + 15U + 7U);
    EXPECT_EQ(texts[0].m_strText, "三轴剪切试验成果图表");
    EXPECT_EQ(texts[0].m_dHeight, 2.5);
    EXPECT_EQ(texts[0].m_ptPosition.y, 300.0 + 10.0 - 5.0 - 4.0) << "placed as if it were 8 high";
    for (const CTextPrimitive& text : texts)
        EXPECT_EQ(text.m_strFont, "仿宋_GB2312");
}

TEST(FrameDrawing, ShowsNothingWhileItIsDragged) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    EXPECT_TRUE(DrawEntity(frame, true).empty());
}

TEST(FrameDrawing, OfAFileHasBareLines) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    CDisplayRecorder recorder(frame);
    frame.saveAs(&recorder, AcDb::kR14Save);
    const CDisplayList list = recorder.Take();
    EXPECT_TRUE(Shapes<CPlinePrimitive>(list).empty());
    EXPECT_EQ(Shapes<CPolylinePrimitive>(list).size(), 2U + 6U);
}

TEST(FrameDrawing, ExplodesIntoPolylinesAndTexts) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    const auto entities = Exploded(frame);
    ASSERT_EQ(entities.size(), 2U + 6U + 16U + 9U) << "months and days of 0 too";
    const auto* const pBorder = AcDbPolyline::cast(entities[0].get());
    ASSERT_NE(pBorder, nullptr);
    EXPECT_EQ(pBorder->numVerts(), 5U);
    EXPECT_EQ(pBorder->Vertices()[4].m_pt.y, 300.25);
    EXPECT_EQ(pBorder->Vertices()[4].m_dEndWidth, 0.5);
    const auto* const pHeading = AcDbText::cast(entities[2].get());
    ASSERT_NE(pHeading, nullptr);
    EXPECT_STREQ(pHeading->textString(), L"三轴剪切试验成果图表");
    EXPECT_EQ(pHeading->height(), 2.5);
    EXPECT_EQ(pHeading->widthFactor(), 0.7);
    for (const auto& pEntity : entities)
        EXPECT_EQ(pEntity->database(), nullptr) << "the caller's";
}

TEST(FrameDrawing, OfTheStandardWithAStripIsThreeRowsOfTextsInBothForms) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    frame.m_nGCBZ = 2;
    const CDisplayList list = DrawEntity(frame);
    EXPECT_EQ(Shapes<CTextPrimitive>(list).size(), 15U);
    EXPECT_EQ(list.size(), 15U);
    const CEntities entities = Exploded(frame);
    EXPECT_EQ(Parts<AcDbText>(entities).size(), 15U);
    EXPECT_EQ(entities.size(), 15U);
    EXPECT_TRUE(Parts<AcDbText>(entities)[0]->position() == AcGePoint3d(10.0 + 32.0, 300.0 - 5.7, 0.0));
}

TEST(FrameDrawing, OfADateOfZeroHasItsNumbersInTheExplodedFormOnly) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    frame.m_nYear = 0;
    for (const CTextPrimitive& text : Shapes<CTextPrimitive>(DrawEntity(frame)))
        EXPECT_NE(text.m_strText, "0");
    const CEntities entities = Exploded(frame);
    const auto texts = Parts<AcDbText>(entities);
    EXPECT_EQ(std::count_if(texts.begin(), texts.end(),
                            [](const AcDbText* pText) { return pText->textString() == std::wstring(L"0"); }),
              3);
}

TEST(FrameDrawing, HasRulesOfDefaultWidthInBothForms) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    const auto lines = Shapes<CPlinePrimitive>(DrawEntity(frame));
    const CEntities entities = Exploded(frame);
    const auto parts = Parts<AcDbPolyline>(entities);
    ASSERT_EQ(parts.size(), lines.size());
    for (std::size_t i = 1; i < parts.size(); i++) { // behind the border
        ASSERT_EQ(lines[i].m_arVertices.size(), 2U);
        ASSERT_EQ(parts[i]->numVerts(), 2U);
        for (std::size_t v = 0; v < 2; v++) {
            EXPECT_EQ(parts[i]->Vertices()[v].m_pt.x, lines[i].m_arVertices[v].m_pt.x);
            EXPECT_EQ(parts[i]->Vertices()[v].m_pt.y, lines[i].m_arVertices[v].m_pt.y);
            EXPECT_EQ(parts[i]->Vertices()[v].m_dStartWidth, -1.0);
            EXPECT_EQ(lines[i].m_arVertices[v].m_dStartWidth, -1.0);
        }
    }
}

TEST(FrameDrawing, ChangesNothingInTheFrame) {
    const CTestDrawing drawing;
    CBRENFrame frame;
    Fill(frame);
    const CDbRecord before = RecordOf(frame, AcDb::kFileFiler);
    DrawEntity(frame);
    Exploded(frame);
    EXPECT_EQ(RecordOf(frame, AcDb::kFileFiler), before);
}
