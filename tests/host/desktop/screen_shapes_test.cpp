#include "host/desktop/screen_shapes.h"

#include "tests/host/desktop/desktop_user.h"

#include <gtest/gtest.h>

namespace {

class ScreenShapes : public CWindowedTest {
protected:
    /// A text of the default font, laid out as painters do, each glyph an em behind the one before.
    CTextRun Run(const std::u32string& strText, double dEm) {
        CFontChain& chain = m_fonts.Chain({});
        CTextRun run;
        run.m_dEm = dEm;
        for (const char32_t c : strText)
            run.m_arGlyphs.push_back({chain.Glyph(c), dEm * static_cast<double>(run.m_arGlyphs.size())});
        run.m_dWidth = dEm * static_cast<double>(strText.size());
        return run;
    }
    CFonts m_fonts{{}};
    CGlyphOutlines m_outlines;
    CShapeRecorder m_recorder{m_outlines};
};

QPainterPath Line(const QPointF& from, const QPointF& to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

} // namespace

TEST_F(ScreenShapes, AreKeptInTheOrderPaintedWithTheirBoxes) {
    m_recorder.StrokePath(Line({0.0, 0.0}, {10.0, 5.0}), {QColor(Qt::red), 0.5, {}});
    QPainterPath box;
    box.addRect(2.0, 3.0, 4.0, 5.0);
    m_recorder.FillPath(box, QColor(Qt::blue));
    const std::vector<CScreenShape> arShapes = m_recorder.Take();
    ASSERT_EQ(arShapes.size(), 2U);
    EXPECT_EQ(std::get<CScreenLine>(arShapes[0].m_what).m_stroke.m_color, QColor(Qt::red));
    EXPECT_EQ(arShapes[0].m_box, QRectF(0.0, 0.0, 10.0, 5.0));
    EXPECT_EQ(std::get<CScreenFill>(arShapes[1].m_what).m_color, QColor(Qt::blue));
    EXPECT_EQ(arShapes[1].m_box, QRectF(2.0, 3.0, 4.0, 5.0));
}

TEST_F(ScreenShapes, FillsGoByTheWindingRuleSoThatPathsOverEachOtherHaveNoHoles) {
    QPainterPath path;
    path.addRect(0.0, 0.0, 10.0, 10.0);
    path.addRect(2.0, 2.0, 4.0, 4.0);
    m_recorder.FillPath(path, QColor(Qt::blue));
    const std::vector<CScreenShape> arShapes = m_recorder.Take();
    EXPECT_TRUE(std::get<CScreenFill>(arShapes[0].m_what).m_path.contains(QPointF(4.0, 4.0)));
}

TEST_F(ScreenShapes, ATextHasTheOutlinesThatShowAndABoxAroundAllOfThem) {
    m_recorder.DrawText(Run(U"A A", 10.0));
    const std::vector<CScreenShape> arShapes = m_recorder.Take();
    const auto& text = std::get<CScreenText>(arShapes[0].m_what);
    ASSERT_EQ(text.m_arGlyphs.size(), 2U) << "a blank shows nothing";
    EXPECT_EQ(text.m_arGlyphs[0].m_pOutline, text.m_arGlyphs[1].m_pOutline) << "made once";
    EXPECT_EQ(text.m_dHeight, 10.0);
    EXPECT_EQ(text.m_base.x2(), 30.0);
    for (const CScreenText::CPlaced& glyph : text.m_arGlyphs)
        EXPECT_TRUE(arShapes[0].m_box.contains(
            text.m_toPicture.mapRect(glyph.m_pOutline->controlPointRect().translated(glyph.m_pt))));
    EXPECT_NEAR(arShapes[0].m_box.width(), 30.0, 0.01);
}

TEST_F(ScreenShapes, ATurnedTextLiesWhereItsRunPutsIt) {
    CTextRun run = Run(U"AAAA", 10.0);
    run.m_toPage = QTransform().translate(100.0, 50.0).rotate(-90.0); // upwards
    m_recorder.DrawText(run);
    const CScreenShape shape = m_recorder.Take()[0];
    EXPECT_NEAR(shape.m_box.bottom(), 50.0, 0.01);
    EXPECT_NEAR(shape.m_box.height(), 40.0, 0.5);
    EXPECT_LT(shape.m_box.left(), 95.0);
    EXPECT_LT(shape.m_box.right(), 105.0);
}
