#include "drawing/chart_text.h"

#include "commands/session_flags.h"
#include "platform/acad/db_text.h"
#include "platform/acad/display_recorder.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

TEST(MeasureTextWidth, IsTheAdvanceWidthTimesSevenTenths) {
    const CTestDrawing drawing;
    EXPECT_DOUBLE_EQ(MeasureTextWidth("abc", AcDbObjectId::kNull, 2.5), 3 * 0.8 * 2.5 * 0.7);
}

TEST(MeasureTextWidth, OfNothingIsZero) {
    const CTestDrawing drawing;
    EXPECT_EQ(MeasureTextWidth("", AcDbObjectId::kNull, 2.5), 0.0);
}

TEST(MeasureTextWidth, IsThatOfTheNaturalWidthWhateverTheStyleSays) {
    CTestDrawing drawing;
    auto* const pRecord = new AcDbTextStyleTableRecord;
    pRecord->setName(L"narrow");
    pRecord->setXScale(0.5);
    AcDbObjectId idNarrow;
    CDbOpen<AcDbTextStyleTable>(drawing.Database().textStyleTableId(), AcDb::kForWrite)
        ->add(idNarrow, pRecord);
    pRecord->close();
    EXPECT_EQ(MeasureTextWidth("abc", idNarrow, 2.5), MeasureTextWidth("abc", AcDbObjectId::kNull, 2.5));
}

TEST(MeasureTextWidth, IsZeroWhileTheHostIsQuitting) {
    const CTestDrawing drawing;
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    g_bQuitting = 1;
    EXPECT_EQ(MeasureTextWidth("abc", AcDbObjectId::kNull, 2.5), 0.0);
    g_bQuitting = 0;
}

TEST(DrawChartText, SendsOneTextAlongItsDirection) {
    const CTestDrawing drawing;
    const AcDbText entity;
    CDisplayRecorder recorder(entity);
    AcGiTextStyle style;
    style.setTextSize(3.8);
    style.setTrackingPercent(80.0);
    DrawChartText(&recorder, {1, 2, 0}, "主应力差", 1, style);
    DrawChartText(&recorder, {1, 2, 0}, "x", 0, style);
    const CDisplayList list = recorder.Take();
    ASSERT_EQ(list.size(), 2U);
    const auto& vertical = std::get<CTextPrimitive>(list[0].m_shape);
    EXPECT_EQ(vertical.m_strText, "主应力差");
    EXPECT_EQ(vertical.m_vecDirection.y, 1.0);
    EXPECT_EQ(vertical.m_vecNormal.z, 1.0);
    EXPECT_EQ(vertical.m_nLength, -1);
    EXPECT_EQ(vertical.m_dHeight, 3.8);
    EXPECT_EQ(vertical.m_dTracking, 80.0);
    EXPECT_EQ(list[0].m_nMarker, 1);
    EXPECT_EQ(std::get<CTextPrimitive>(list[1].m_shape).m_vecDirection.x, 1.0);
}

TEST(ExplodeChartText, MakesOneTextAlongItsDirection) {
    const CTestDrawing drawing;
    AcGiTextStyle style;
    style.setTextSize(3.8);
    AcDbVoidPtrArray entitySet;
    ExplodeChartText(entitySet, {1, 2, 0}, "主应力差", 1, style, AcDbObjectId::kNull);
    ExplodeChartText(entitySet, {1, 2, 0}, "", 0, style, AcDbObjectId::kNull);
    const CEntities entities = TakeOver(entitySet);
    const auto texts = Parts<AcDbText>(entities);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_STREQ(texts[0]->textString(), L"主应力差");
    EXPECT_EQ(texts[0]->rotation(), 1.5707963); // not π/2 to full precision
    EXPECT_EQ(texts[0]->height(), 3.8);
    EXPECT_TRUE(texts[0]->position() == AcGePoint3d(1, 2, 0));
    EXPECT_EQ(texts[1]->rotation(), 0.0);
    EXPECT_STREQ(texts[1]->textString(), L"");
}
