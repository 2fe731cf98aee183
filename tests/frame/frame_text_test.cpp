#include "frame/frame_text.h"

#include "drawing/styles.h"
#include "frame/frame_entity.h"
#include "platform/acad/db_text.h"
#include "platform/acad/display_recorder.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <memory>

namespace {
class FrameText : public testing::Test {
protected:
    CTestDrawing m_drawing;
    AcGiTextStyle m_style;
    CFrameStyles m_styles{AddStyle(L"texts"), AddStyle(L"banner")};
    /// 40 wide, 10 high, for a text of two bytes measured at height 5: 0.8 · 2 · 5 · 0.7 = 5.6 wide.
    const CTextCell m_cell{{100.0, 200.0, 7.0}, 40.0, 10.0, 5.0, "土"};
    const AcGePoint3d m_ptExpected{100.0 + (40.0 - 5.6) / 2.0, 200.0 - 5.0 - 2.5, 7.0};

    FrameText() {
        SetupChartTextStyle(m_style);
        g_ChartTextStyle.setTextSize(3.0);
    }
    AcDbObjectId AddStyle(const ACHAR* name) {
        const CDbOpen<AcDbTextStyleTable> pTable(m_drawing.Database().textStyleTableId(), AcDb::kForWrite);
        auto* const pRecord = new AcDbTextStyleTableRecord;
        pRecord->setName(name);
        AcDbObjectId id;
        pTable->add(id, pRecord);
        pRecord->close();
        return id;
    }
    std::unique_ptr<AcDbText> ExplodedCell() {
        AcDbVoidPtrArray entities;
        ExplodeFrameCell(entities, m_cell, m_style, m_styles);
        EXPECT_EQ(entities.length(), 1);
        return std::unique_ptr<AcDbText>(AcDbText::cast(static_cast<AcDbEntity*>(entities[0])));
    }
};
} // namespace

TEST_F(FrameText, IsDrawnInTheSharedStyle) {
    SetupChartTextStyle(g_ChartTextStyle);
    g_ChartTextStyle.setTextSize(3.8);
    const CBRENFrame frame;
    CDisplayRecorder recorder(frame);
    DrawFrameText(&recorder, {1.0, 2.0, 3.0}, "试验");
    const auto texts = Shapes<CTextPrimitive>(recorder.Take());
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].m_strText, "试验");
    EXPECT_EQ(texts[0].m_dHeight, 3.8);
    EXPECT_EQ(texts[0].m_strFont, "仿宋_GB2312");
    EXPECT_TRUE(texts[0].m_ptPosition == AcGePoint3d(1.0, 2.0, 3.0));
    EXPECT_TRUE(texts[0].m_vecDirection == AcGeVector3d::kXAxis);
}

TEST_F(FrameText, ExplodesInTheTextStyleAndNarrow) {
    AcDbVoidPtrArray entities;
    ExplodeFrameText(entities, {1.0, 2.0, 3.0}, "试验", m_styles);
    ASSERT_EQ(entities.length(), 1);
    const std::unique_ptr<AcDbText> pText(AcDbText::cast(static_cast<AcDbEntity*>(entities[0])));
    EXPECT_STREQ(pText->textString(), L"试验");
    EXPECT_EQ(pText->height(), 3.0);
    EXPECT_EQ(pText->rotation(), 0.0);
    EXPECT_EQ(pText->widthFactor(), 0.7);
    EXPECT_EQ(pText->textStyle(), m_styles.m_idText);
}

TEST_F(FrameText, IsCentredInACellByItsHeightThereWhateverItsSize) {
    const CBRENFrame frame;
    CDisplayRecorder recorder(frame);
    DrawFrameCell(&recorder, m_cell, m_style, m_styles);
    const auto texts = Shapes<CTextPrimitive>(recorder.Take());
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(texts[0].m_ptPosition == m_ptExpected);
    EXPECT_EQ(texts[0].m_dHeight, 2.5);
    const auto pText = ExplodedCell();
    EXPECT_TRUE(pText->position() == m_ptExpected);
    EXPECT_EQ(pText->height(), 2.5);
    EXPECT_EQ(pText->widthFactor(), 0.7);
}

TEST_F(FrameText, OfAnExplodedCellHasTheStyleThatTheBigFontTells) {
    EXPECT_TRUE(ExplodedCell()->textStyle().isNull());
    m_style.setBigFontFileName(L"hztxt.shx");
    EXPECT_EQ(ExplodedCell()->textStyle(), m_styles.m_idText);
    m_style.setBigFontFileName(L"st64f.shx");
    EXPECT_EQ(ExplodedCell()->textStyle(), m_styles.m_idBanner);
    m_style.setBigFontFileName(L"other.shx");
    EXPECT_TRUE(ExplodedCell()->textStyle().isNull());
}
