#include "host/plot/painter.h"

#include "tests/host/plot/plot_fixture.h"

#include <limits>

class PaintDisplayListTest : public PlotTest {
protected:
    CFonts m_fonts{{}};
    CNotingCanvas m_canvas;
    CPaintContext m_context;

    PaintDisplayListTest() {
        m_context.m_dLeft = 100.0;
        m_context.m_dTop = 300.0;
        m_context.m_fnLinetype = [](const std::string& strName) {
            return strName == "Dashed2" ? std::vector<double>{0.25, -0.125} : std::vector<double>();
        };
        m_context.m_dLinetypeScale = 10.0;
    }
    void Paint(const CPrimitive& primitive) { PaintDisplayList({primitive}, m_context, m_fonts, m_canvas); }
    bool IsEmpty() const {
        return m_canvas.m_arStrokes.empty() && m_canvas.m_arFills.empty() && m_canvas.m_arTexts.empty();
    }
};

TEST_F(PaintDisplayListTest, CountsFromThePagesUpperLeftCornerDownwards) {
    Paint(Primitive(Line(110.0, 290.0, 130.0, 250.0)));
    ASSERT_EQ(m_canvas.m_arStrokes.size(), 1u);
    const auto& [path, stroke] = m_canvas.m_arStrokes.front();
    EXPECT_EQ(QPointF(path.elementAt(0)), QPointF(10, 10));
    EXPECT_EQ(QPointF(path.elementAt(1)), QPointF(30, 50));
    EXPECT_EQ(stroke.m_dWidth, THIN_LINE);
}

TEST_F(PaintDisplayListTest, TakesTheLayersColourForByLayer) {
    m_context.m_nLayerColor = 5;
    Paint(Primitive(Line(110, 290, 130, 250), 256));
    Paint(Primitive(Line(110, 290, 130, 250), 1));
    EXPECT_EQ(m_canvas.m_arStrokes[0].second.m_color, QColor(0, 0, 255));
    EXPECT_EQ(m_canvas.m_arStrokes[1].second.m_color, QColor(255, 0, 0));
}

TEST_F(PaintDisplayListTest, DashesByTheLineTypeTimesItsScale) {
    Paint(Primitive(HalfCircle(150, 200, 40), 2, "Dashed2"));
    ASSERT_EQ(m_canvas.m_arStrokes.size(), 1u);
    EXPECT_EQ(m_canvas.m_arStrokes[0].second.m_dashes.m_arLengths, (std::vector<double>{2.5, 1.25}));
}

TEST_F(PaintDisplayListTest, DrawsContinuousForTheNamesThatMeanIt) {
    m_context.m_fnLinetype = [](const std::string&) { return std::vector<double>{1.0, -1.0}; };
    for (const char* strName : {"", "ByLayer", "BYLAYER", "Continuous", "CONTINUOUS", "ByBlock"})
        Paint(Primitive(Line(110, 290, 130, 250), 7, strName));
    for (const auto& [path, stroke] : m_canvas.m_arStrokes)
        EXPECT_TRUE(stroke.m_dashes.m_arLengths.empty());
    EXPECT_EQ(m_canvas.m_arStrokes.size(), 6u);
}

TEST_F(PaintDisplayListTest, DrawsAHalfCircleUpwards) {
    Paint(Primitive(HalfCircle(150, 200, 40)));
    const QRectF box = m_canvas.m_arStrokes.at(0).first.boundingRect();
    EXPECT_NEAR(box.left(), 10.0, 0.01);
    EXPECT_NEAR(box.right(), 90.0, 0.01);
    EXPECT_NEAR(box.top(), 60.0, 0.01);
    EXPECT_NEAR(box.bottom(), 100.0, 0.01);
}

TEST_F(PaintDisplayListTest, DrawsAnArcOfRadiusZeroAsNothingMuch) {
    Paint(Primitive(HalfCircle(150, 200, 0)));
    for (const auto& [path, stroke] : m_canvas.m_arStrokes)
        EXPECT_EQ(path.boundingRect().width(), 0.0);
}

TEST_F(PaintDisplayListTest, DrawsASplineAsOneCurveThroughItsFitPoints) {
    CSplinePrimitive spline;
    for (const auto& [x, y] : {std::pair(110.0, 290.0), {120.0, 260.0}, {120.0, 260.0}, {150.0, 250.0}})
        spline.m_arFitPoints.emplace_back(x, y, 0.0);
    Paint(Primitive(spline, 3));
    ASSERT_EQ(m_canvas.m_arStrokes.size(), 1u);
    const QPainterPath& path = m_canvas.m_arStrokes[0].first;
    ASSERT_EQ(path.elementCount(), 7); // a start and two pieces: equal neighbours count once
    EXPECT_TRUE(path.elementAt(1).isCurveTo());
    const auto near = [](const QPointF& a, const QPointF& b) { return (a - b).manhattanLength() < 1e-9; };
    EXPECT_TRUE(near(path.elementAt(0), {10, 10}));
    EXPECT_TRUE(near(path.elementAt(3), {20, 40}));
    EXPECT_TRUE(near(path.elementAt(6), {50, 50}));
}

TEST_F(PaintDisplayListTest, DrawsNoSplineThatHasNoCurve) {
    CSplinePrimitive spline;
    Paint(Primitive(spline));
    spline.m_arFitPoints = {AcGePoint3d(110, 290, 0)};
    Paint(Primitive(spline));
    for (const double dBad :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e9}) {
        spline.m_arFitPoints = {AcGePoint3d(110, 290, 0), AcGePoint3d(120, dBad, 0),
                                AcGePoint3d(130, 290, 0)};
        Paint(Primitive(spline));
    }
    EXPECT_TRUE(IsEmpty());
}

TEST_F(PaintDisplayListTest, KeepsTheBulgesSideThoughYIsTurned) {
    Paint(Primitive(CPlinePrimitive{{Vertex(110, 290, 1.0), Vertex(130, 290)}, false}));
    const QRectF box = m_canvas.m_arStrokes.at(0).first.boundingRect();
    EXPECT_NEAR(box.top(), 10.0, 1e-6);    // counter-clockwise from left to right runs below the chord,
    EXPECT_NEAR(box.bottom(), 20.0, 1e-2); // which is further down the page
}

TEST_F(PaintDisplayListTest, FillsWidePolylines) {
    Paint(Primitive(Dot(120, 280), 1));
    ASSERT_EQ(m_canvas.m_arFills.size(), 1u);
    EXPECT_TRUE(m_canvas.m_arStrokes.empty());
    EXPECT_EQ(m_canvas.m_arFills[0].second, QColor(255, 0, 0));
    EXPECT_TRUE(m_canvas.m_arFills[0].first.contains(QPointF(20, 20)));
}

TEST_F(PaintDisplayListTest, GivesATextWithItsColour) {
    Paint(Primitive(Text("轴向应变ε", 110, 290, 2.5, false), 1));
    ASSERT_EQ(m_canvas.m_arTexts.size(), 1u);
    EXPECT_EQ(m_canvas.m_arTexts[0].m_strText, u"轴向应变ε");
    EXPECT_EQ(m_canvas.m_arTexts[0].m_color, QColor(255, 0, 0));
    EXPECT_EQ(m_canvas.m_arTexts[0].m_toPage.map(QPointF()).x(), 10.0);
}

TEST_F(PaintDisplayListTest, LeavesOutWhatIsNotFinite) {
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    const double dInf = std::numeric_limits<double>::infinity();
    for (const double dBad : {dNan, dInf, -dInf, 1e300}) {
        Paint(Primitive(Line(dBad, 290, 130, 250)));
        Paint(Primitive(CPlinePrimitive{{Vertex(110, dBad, 0, 1, 1), Vertex(130, 250)}, false}));
        Paint(Primitive(HalfCircle(dBad, 290, 10)));
        Paint(Primitive(HalfCircle(110, 290, dBad)));
        Paint(Primitive(Text("A", dBad, 290, 2.5, false)));
        Paint(Primitive(Text("A", 110, 290, dBad, false)));
        EXPECT_TRUE(IsEmpty()) << dBad;
    }
    CArcPrimitive arc = HalfCircle(110, 290, 10);
    arc.m_dSweep = dNan;
    Paint(Primitive(arc));
    arc = HalfCircle(110, 290, 10);
    arc.m_vecStart = AcGeVector3d(dNan, 0, 0);
    Paint(Primitive(arc));
    EXPECT_TRUE(IsEmpty());
}

TEST_F(PaintDisplayListTest, GoesOnBehindAPointThatIsNoNumber) {
    CPolylinePrimitive polyline;
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    for (const double x : {110.0, 120.0, dNan, 130.0, 140.0})
        polyline.m_arPoints.emplace_back(x, 290.0, 0.0);
    Paint(Primitive(polyline));
    EXPECT_DOUBLE_EQ(m_canvas.m_arStrokes.at(0).first.length(), 20.0);
}
