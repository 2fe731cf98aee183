#include "host/datamanager/window/readings_plot.h"

#include <cstdlib>

#include "tests/host/datamanager/window/window_test.h"

namespace {

constexpr int g_nSmoothed = 110; // of three channels; the colours of a plot are much farther apart

/// One curve to 10 % and 100 kPa, one to 8 % and 60 kPa with pore pressure to 30 kPa.
std::vector<CSampleCurve> Curves(bool bPore) {
    const double dPore = bPore ? 30.0 : 0.0;
    return {
        {50.0, {{0.0, 0.0, 0.0, true, false}, {5.0, 80.0, 0.0, true, false}, {10.0, 100.0, 0.0, true, true}}},
        {100.0,
         {{0.0, 0.0, 0.0, true, false},
          {4.0, 20.0, dPore / 2, true, false},
          {8.0, 60.0, dPore, true, false}}}};
}

class ReadingsPlot : public CWindowTest {
protected:
    ReadingsPlot() { m_plot.resize(700, 500); }

    /// A picture of the plot, one dot a pixel.
    QImage Picture() { return m_plot.grab().toImage(); }
    static QColor At(const QImage& image, QPointF place) {
        return image.pixelColor(static_cast<int>(place.x()), static_cast<int>(place.y()));
    }
    /// Whether the colour is there, but for its smoothed edges, at most a dot away.
    static bool Shows(const QImage& image, QPointF place, const QColor& color) {
        for (const QPointF step : {QPointF(), QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
            const QColor found = At(image, place + step);
            if (std::abs(found.red() - color.red()) + std::abs(found.green() - color.green()) +
                    std::abs(found.blue() - color.blue()) <=
                g_nSmoothed)
                return true;
        }
        return false;
    }
    /// How many dots have exactly this colour.
    static int Count(const QImage& image, const QColor& color) {
        int nDots = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                nDots += image.pixelColor(x, y) == color ? 1 : 0;
        return nDots;
    }

    CReadingsPlot m_plot;
};

} // namespace

TEST_F(ReadingsPlot, HasAxesThatEndAtRoundNumbersBeyondTheCurves) {
    m_plot.Show(Curves(false), {});
    const std::vector<CPlotPanel> arPanels = m_plot.Panels();
    ASSERT_EQ(arPanels.size(), 1U);
    const QRectF frame = arPanels[0].Frame();
    EXPECT_EQ(arPanels[0].Place(0.0, 0.0), frame.bottomLeft());
    EXPECT_EQ(arPanels[0].Place(10.0, 100.0), frame.topRight());
    EXPECT_TRUE(QRectF(m_plot.rect()).contains(frame));
}

TEST_F(ReadingsPlot, PaintsEachCurveInItsOwnColour) {
    m_plot.Show(Curves(false), {});
    const QImage image = Picture();
    const CPlotPanel panel = m_plot.Panels()[0];
    EXPECT_NE(m_plot.CurveColor(0), m_plot.CurveColor(1));
    EXPECT_TRUE(Shows(image, panel.Place(5.0, 80.0), m_plot.CurveColor(0)));
    EXPECT_TRUE(Shows(image, panel.Place(4.0, 20.0), m_plot.CurveColor(1)));
    EXPECT_TRUE(Shows(image, panel.Place(8.0, 60.0), m_plot.CurveColor(1)));
    EXPECT_EQ(At(image, panel.Place(9.0, 30.0)), m_plot.palette().color(QPalette::Base));
    EXPECT_GT(Count(image, m_plot.CurveColor(0)), 150); // a line across the panel
    EXPECT_GT(Count(image, m_plot.CurveColor(1)), 150);
}

TEST_F(ReadingsPlot, ShowsPorePressureBelowWhereThereIsOne) {
    m_plot.Show(Curves(true), {});
    const std::vector<CPlotPanel> arPanels = m_plot.Panels();
    ASSERT_EQ(arPanels.size(), 2U);
    EXPECT_GT(arPanels[1].Frame().top(), arPanels[0].Frame().bottom());
    EXPECT_EQ(arPanels[0].Frame().left(), arPanels[1].Frame().left());
    const QImage image = Picture();
    EXPECT_TRUE(Shows(image, arPanels[1].Place(4.0, 15.0), m_plot.CurveColor(1)));
    EXPECT_TRUE(Shows(image, arPanels[1].Place(8.0, 30.0), m_plot.CurveColor(1)));
    EXPECT_TRUE(Shows(image, arPanels[0].Place(5.0, 80.0), m_plot.CurveColor(0)));
}

TEST_F(ReadingsPlot, PutsARingAroundAFailureState) {
    m_plot.Show(Curves(false), {});
    const QPointF failure = m_plot.Panels()[0].Place(10.0, 100.0);
    const QImage image = Picture();
    EXPECT_TRUE(Shows(image, failure + QPointF(0.0, -5.0), m_plot.CurveColor(0)));
    const QPointF other = m_plot.Panels()[0].Place(8.0, 60.0);
    EXPECT_FALSE(Shows(image, other + QPointF(0.0, -5.0), m_plot.CurveColor(1)));
}

TEST_F(ReadingsPlot, ExplainsTheRingInTheLegendWhereThereIsOne) {
    // Right of the panel and of a ring on its edge.
    const auto legend = [&] {
        QRect place = m_plot.rect();
        place.setLeft(static_cast<int>(m_plot.Panels()[0].Frame().right()) + 10);
        return Picture().copy(place);
    };
    std::vector<CSampleCurve> arCurves = Curves(false);
    m_plot.Show(arCurves, {});
    const QImage with = legend();
    arCurves[0].m_arPoints.back().m_bFailure = false;
    m_plot.Show(arCurves, {});
    const QImage without = legend();
    const QColor base = m_plot.palette().color(QPalette::Base);
    EXPECT_LT(Count(with, base), Count(without, base));
}

TEST_F(ReadingsPlot, FollowsADarkPalette) {
    m_plot.Show(Curves(false), {});
    const QColor onLight = m_plot.CurveColor(0);
    QPalette dark = m_plot.palette();
    dark.setColor(QPalette::Base, QColor(32, 32, 32));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    m_plot.setPalette(dark);
    const QColor onDark = m_plot.CurveColor(0);
    EXPECT_GT(onDark.lightness(), onLight.lightness());
    const QImage image = Picture();
    EXPECT_EQ(image.pixelColor(2, 2), QColor(32, 32, 32));
    EXPECT_TRUE(Shows(image, m_plot.Panels()[0].Place(5.0, 80.0), onDark));
    EXPECT_EQ(Count(image, onLight), 0);
}

TEST_F(ReadingsPlot, SaysWhyThereIsNothing) {
    m_plot.Show({}, {});
    const QImage without = Picture();
    EXPECT_EQ(Count(without, m_plot.palette().color(QPalette::Base)), 700 * 500);
    m_plot.Show({}, u"The sample has no readings."_qs);
    EXPECT_LT(Count(Picture(), m_plot.palette().color(QPalette::Base)), 700 * 500);
}
