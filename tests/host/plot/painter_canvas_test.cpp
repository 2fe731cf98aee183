#include "host/plot/painter_canvas.h"

#include "host/plot/painter.h"
#include "tests/host/plot/plot_fixture.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

/// A picture of 60 x 40 mm at 10 dots per millimetre; its lower left corner is the drawing's origin.
class PainterCanvasTest : public PlotTest {
protected:
    static constexpr int DOTS = 10;
    CFonts m_fonts{{}};
    QImage m_image{60 * DOTS, 40 * DOTS, QImage::Format_RGB32};

    void Paint(const CDisplayList& list) {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        painter.scale(DOTS, DOTS);
        CPainterCanvas canvas(painter);
        CPaintContext context;
        context.m_dTop = 40.0;
        context.m_fnLinetype = [](const std::string&) { return std::vector<double>{0.2, -0.1}; };
        context.m_dLinetypeScale = 10.0;
        PaintDisplayList(list, context, m_fonts, canvas);
    }
    QColor At(double x, double y) const {
        return m_image.pixelColor(static_cast<int>(x * DOTS), static_cast<int>((40.0 - y) * DOTS));
    }
    bool IsInk(double x, double y) const { return At(x, y).lightness() < 250; }
    /// The box of all that is not white, in drawing units.
    QRectF Ink() const {
        QRect box;
        for (int y = 0; y < m_image.height(); ++y)
            for (int x = 0; x < m_image.width(); ++x)
                if (m_image.pixelColor(x, y).lightness() < 160) box |= QRect(x, y, 1, 1);
        return {box.left() * 1.0 / DOTS, 40.0 - (box.bottom() + 1) * 1.0 / DOTS, box.width() * 1.0 / DOTS,
                box.height() * 1.0 / DOTS};
    }
};

TEST_F(PainterCanvasTest, PaintsALineInItsColourAtItsPlace) {
    Paint({Primitive(Line(10.05, 20.05, 50.05, 20.05), 1)});
    EXPECT_EQ(At(30.0, 20.05), QColor(255, 0, 0));
    EXPECT_FALSE(IsInk(30.0, 20.5));
    EXPECT_FALSE(IsInk(30.0, 19.6));
    EXPECT_FALSE(IsInk(9.8, 20.05));
    EXPECT_FALSE(IsInk(50.3, 20.05));
}

TEST_F(PainterCanvasTest, PaintsADotAsADiscOneMillimetreAcross) {
    Paint({Primitive(Dot(20.0, 20.0), 1)});
    for (const auto& [dx, dy] :
         {std::pair(0.0, 0.0), {0.35, 0.0}, {-0.4, 0.0}, {0.0, 0.35}, {0.0, -0.35}, {0.05, 0.05}})
        EXPECT_EQ(At(20.0 + dx, 20.0 + dy), QColor(255, 0, 0)) << dx << ' ' << dy;
    EXPECT_FALSE(IsInk(20.45, 20.45));
    EXPECT_NEAR(Ink().width(), 1.0, 0.11);
    EXPECT_NEAR(Ink().height(), 1.0, 0.11);
}

TEST_F(PainterCanvasTest, LeavesNoSeamInADot) {
    Paint({Primitive(Dot(20.033, 20.047), 7)});
    for (int n = -7; n <= 7; ++n)
        EXPECT_EQ(At(20.033 + n * 0.05, 20.047).lightness(), 0) << n;
}

TEST_F(PainterCanvasTest, PaintsAnArrowAsATriangle) {
    Paint({Primitive(CPlinePrimitive{{Vertex(20, 20, 0, 3.0, 0.0), Vertex(29, 20)}, false})});
    EXPECT_TRUE(IsInk(20.2, 21.3));
    EXPECT_TRUE(IsInk(20.2, 18.7));
    EXPECT_TRUE(IsInk(26.0, 20.35));
    EXPECT_FALSE(IsInk(26.0, 20.75));
    EXPECT_FALSE(IsInk(29.2, 20.0));
}

TEST_F(PainterCanvasTest, DashesTheLine) {
    Paint({Primitive(Line(10, 20, 40, 20), 1, "Dashed2")}); // strokes of 2 mm, gaps of 1
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(IsInk(11.0 + 3.0 * i, 20.0)) << i;
        EXPECT_FALSE(IsInk(12.5 + 3.0 * i, 20.0)) << i;
    }
}

TEST_F(PainterCanvasTest, DashesAnArcAlongItsLength) {
    Paint({Primitive(HalfCircle(30, 10, 20), 2, "Dashed2")});
    const auto on = [](double dLength) {
        return QPointF(30 + 20 * std::cos(dLength / 20), 10 + 20 * std::sin(dLength / 20));
    };
    for (int i = 0; i < 15; ++i) {
        const QPointF stroke = on(1.0 + 3.0 * i);
        const QPointF gap = on(2.5 + 3.0 * i);
        EXPECT_NE(At(stroke.x(), stroke.y()), QColor(Qt::white)) << i;
        EXPECT_EQ(At(gap.x(), gap.y()), QColor(Qt::white)) << i;
    }
}

TEST_F(PainterCanvasTest, PaintsATextAsWideAndAsHighAsItWasMeasured) {
    Paint({Primitive(Text("HHHHHHHH", 5, 10, 5.0, false))});
    const double dWidth = m_fonts.AdvanceWidth({CHART_FONT, ""}, "HHHHHHHH") * 5.0 * 0.8;
    const double dOne = m_fonts.AdvanceWidth({CHART_FONT, ""}, "H") * 5.0;
    EXPECT_NEAR(Ink().top(), 10.0, 0.11);
    EXPECT_NEAR(Ink().bottom(), 15.0, 0.11);
    EXPECT_NEAR(Ink().right(), 5.0 + dWidth + dOne * 0.2, 0.4); // the last letter is drawn whole
}

TEST_F(PainterCanvasTest, PaintsAVerticalTextUpwardsWithItsHeadsToTheLeft) {
    Paint({Primitive(Text("HHHHH", 30, 5, 5.0, true))});
    EXPECT_NEAR(Ink().left(), 25.0, 0.21);
    EXPECT_NEAR(Ink().right(), 30.0, 0.21);
    EXPECT_GE(Ink().top(), 5.0);
    EXPECT_NEAR(Ink().bottom(), 5.0 + m_fonts.AdvanceWidth({CHART_FONT, ""}, "H") * 5.0 * (4 * 0.8 + 1), 0.4);
}

TEST_F(PainterCanvasTest, PaintsChineseCharactersOfBothFonts) {
    Paint({Primitive(Text("轴", 5, 20, 5.0, false)), Primitive(Text("镕", 30, 20, 5.0, false))});
    int nFirst = 0;
    int nSecond = 0;
    for (int x = 0; x < 20 * DOTS; ++x)
        for (int y = 10 * DOTS; y < 25 * DOTS; ++y) {
            nFirst += m_image.pixelColor(x, y).lightness() < 250 ? 1 : 0;
            nSecond += m_image.pixelColor(x + 25 * DOTS, y).lightness() < 250 ? 1 : 0;
        }
    EXPECT_GT(nFirst, 500);
    EXPECT_GT(nSecond, 500);
}
