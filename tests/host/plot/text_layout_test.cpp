#include "host/plot/text_layout.h"

#include "tests/host/plot/plot_fixture.h"

#include <limits>

class LayOutTest : public PlotTest {
protected:
    CFonts m_fonts{{}};
};

TEST_F(LayOutTest, TrackingNarrowsThePaintedWidthOnly) {
    const double dMeasured = m_fonts.AdvanceWidth({CHART_FONT, ""}, "轴向应变ε (%)");
    const auto run = LayOut(Text("轴向应变ε (%)", 0, 0, 2.5, false), {}, m_fonts);
    ASSERT_TRUE(run);
    EXPECT_NEAR(run->m_dWidth, dMeasured * 2.5 * 0.8, 1e-9);
    ASSERT_EQ(run->m_arGlyphs.size(), 9u);
    EXPECT_NEAR(run->m_arGlyphs[1].m_dX, m_fonts.AdvanceWidth({CHART_FONT, ""}, "轴") * 2.5 * 0.8, 1e-9);
    EXPECT_EQ(run->m_strText, u"轴向应变ε (%)");
}

TEST_F(LayOutTest, GoesUpThePageWhenTheDirectionDoes) {
    const auto run = LayOut(Text("主应力差", 0, 0, 2.5, true), {50.0, 60.0}, m_fonts);
    ASSERT_TRUE(run);
    const QPointF origin = run->m_toPage.map(QPointF(0, 0));
    EXPECT_EQ(run->m_toPage.map(QPointF(10, 0)) - origin, QPointF(0, -10)); // along: up
    EXPECT_EQ(run->m_toPage.map(QPointF(0, -1)) - origin, QPointF(-1, 0));  // heads to the left
}

TEST_F(LayOutTest, StandsWithItsCapitalsOnThePosition) {
    const auto run = LayOut(Text("H", 0, 0, 2.5, false), {50.0, 60.0}, m_fonts);
    ASSERT_TRUE(run);
    const CGlyph& glyph = run->m_arGlyphs.front().m_glyph;
    const QRectF capital = glyph.m_pFont->pathForGlyph(glyph.m_nIndex).boundingRect();
    const double dScale = run->m_dEm / CFonts::PixelSize;
    EXPECT_NEAR(run->m_toPage.map(QPointF(0, capital.bottom() * dScale)).y(), 60.0, 1e-9);
    EXPECT_NEAR(run->m_toPage.map(QPointF(0, capital.top() * dScale)).y(), 57.5, 1e-9);
}

TEST_F(LayOutTest, WidthFactorStretchesAndObliquingSlants) {
    CTextPrimitive text = Text("A", 0, 0, 2.5, false);
    text.m_dXScale = 0.7;
    text.m_dOblique = std::atan(0.25);
    const auto run = LayOut(text, {}, m_fonts);
    ASSERT_TRUE(run);
    const QPointF origin = run->m_toPage.map(QPointF(0, 0));
    const QPointF along = run->m_toPage.map(QPointF(10, 0)) - origin;
    const QPointF up = run->m_toPage.map(QPointF(0, -4)) - origin;
    EXPECT_NEAR(along.x(), 7.0, 1e-12);
    EXPECT_NEAR(along.y(), 0.0, 1e-12);
    EXPECT_NEAR(up.x(), 1.0, 1e-12); // leans to the right
    EXPECT_NEAR(up.y(), -4.0, 1e-12);
}

TEST_F(LayOutTest, IsMirroredWhenSeenFromBehind) {
    CTextPrimitive text = Text("A", 0, 0, 2.5, false);
    text.m_vecNormal = AcGeVector3d(0, 0, -1);
    const auto run = LayOut(text, {}, m_fonts);
    ASSERT_TRUE(run);
    EXPECT_LT(run->m_toPage.determinant(), 0.0);
}

TEST_F(LayOutTest, TakesAsManyCharactersAsTheLengthSays) {
    CTextPrimitive text = Text("主应力差", 0, 0, 2.5, false);
    text.m_nLength = 2;
    EXPECT_EQ(LayOut(text, {}, m_fonts)->m_strText, u"主应");
    text.m_nLength = 99;
    EXPECT_EQ(LayOut(text, {}, m_fonts)->m_strText, u"主应力差");
    text.m_nLength = 0;
    EXPECT_FALSE(LayOut(text, {}, m_fonts));
}

TEST_F(LayOutTest, DropsControlCharacters) {
    EXPECT_EQ(LayOut(Text("a\x01\nb", 0, 0, 2.5, false), {}, m_fonts)->m_strText, u"ab");
    EXPECT_FALSE(LayOut(Text("\n", 0, 0, 2.5, false), {}, m_fonts));
}

TEST_F(LayOutTest, IsNoneForWhatCantBePainted) {
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    const double dInf = std::numeric_limits<double>::infinity();
    for (const double dBad : {dNan, dInf, -dInf, 0.0, -1.0}) {
        CTextPrimitive text = Text("A", 0, 0, dBad, false);
        EXPECT_FALSE(LayOut(text, {}, m_fonts)) << dBad;
        text = Text("A", 0, 0, 2.5, false);
        text.m_dXScale = dBad;
        EXPECT_FALSE(LayOut(text, {}, m_fonts)) << dBad;
        text.m_dXScale = 1.0;
        text.m_dTracking = dBad;
        EXPECT_FALSE(LayOut(text, {}, m_fonts)) << dBad;
    }
    CTextPrimitive text = Text("A", 0, 0, 2.5, false);
    text.m_vecDirection = AcGeVector3d(dNan, 0, 0);
    EXPECT_FALSE(LayOut(text, {}, m_fonts));
    text = Text("A", 0, 0, 2.5, false);
    text.m_dOblique = dInf;
    EXPECT_FALSE(LayOut(text, {}, m_fonts));
    EXPECT_FALSE(LayOut(Text("", 0, 0, 2.5, false), {}, m_fonts));
}
