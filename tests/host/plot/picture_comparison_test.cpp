#include "tests/support/picture_comparison.h"

#include "host/plot/plot.h"
#include "tests/host/plot/plot_fixture.h"

#include <cmath>

class PictureComparison : public PlotTest {
protected:
    CFonts m_fonts{{}};
    CTempFolder m_folder;

    /// What stands on a sheet, in its sizes: grid, border, dots, circle, texts, and a subscript.
    static CDisplayList Sheet() {
        return {Primitive(Line(10, 20, 50, 20), 3),
                Primitive(Line(20, 10, 20, 50), 3),
                Primitive(CPlinePrimitive{{Vertex(5, 5, 0, 0.5, 0.5), Vertex(55, 5)}, false}, 3),
                Primitive(Dot(30, 40), 1),
                Primitive(Dot(31.5, 40.5), 1),
                Primitive(HalfCircle(35, 20, 12), 2),
                Primitive(Text("主应力差", 22, 52, 2.5, false), 3),
                Primitive(Text("0", 44, 44, 2.5, false), 3),
                Primitive(Text("1", 48, 44, 1.0, false), 3)};
    }
    /// Plotted on a page whose corner is moved by so many mm.
    QImage Plotted(const CDisplayList& list, double dMoved = 0.0, double dDotsPerInch = 100.0) {
        CPlotOptions options;
        options.m_dDotsPerInch = dDotsPerInch;
        std::string strError;
        EXPECT_TRUE(Plot({{{dMoved, dMoved, 60.0 + dMoved, 60.0 + dMoved}, {{&list, 7}}}}, options, m_fonts,
                         m_folder / "a.png", &strError))
            << strError;
        return QImage(QString::fromStdString((m_folder / "a.png").string()));
    }
    double DifferenceFromSheet(const QImage& image) {
        return ComparePictures(Plotted(Sheet()), image).m_dInk;
    }
    /// With what is between paper and full ink made stronger (below 1) or weaker.
    static QImage Smoothed(const QImage& image, double dExponent) {
        const auto value = [dExponent](int n) {
            return static_cast<int>(std::lround(255.0 * (1.0 - std::pow(1.0 - n / 255.0, dExponent))));
        };
        QImage smoothed = image;
        for (int y = 0; y < image.height(); y++)
            for (int x = 0; x < image.width(); x++) {
                const QColor color = image.pixelColor(x, y);
                smoothed.setPixelColor(x, y, {value(color.red()), value(color.green()), value(color.blue())});
            }
        return smoothed;
    }
};

TEST_F(PictureComparison, OfTwoPlotsOfOneSheetFindsNothing) {
    EXPECT_EQ(DifferenceFromSheet(Plotted(Sheet())), 0.0);
}

TEST_F(PictureComparison, OverlooksHowEdgesAreSmoothed) {
    EXPECT_LT(DifferenceFromSheet(Plotted(Sheet(), 0.05)), g_dSameInk);
    for (const double dExponent : {0.8, 1.25}) {
        const QImage smoothed = Smoothed(Plotted(Sheet()), dExponent);
        EXPECT_NE(smoothed, Plotted(Sheet()));
        EXPECT_LT(DifferenceFromSheet(smoothed), g_dSameInk) << dExponent;
    }
}

TEST_F(PictureComparison, FindsEachPartThatIsMissing) {
    for (std::size_t i = 0; i < Sheet().size(); i++) {
        CDisplayList list = Sheet();
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
        EXPECT_GT(DifferenceFromSheet(Plotted(list)), g_dSameInk) << i;
    }
}

TEST_F(PictureComparison, FindsALineAndATextMovedByAMillimetre) {
    CDisplayList list = Sheet();
    list[0] = Primitive(Line(10, 21, 50, 21), 3);
    EXPECT_GT(DifferenceFromSheet(Plotted(list)), g_dSameInk);
    list = Sheet();
    list[1] = Primitive(Line(19, 10, 19, 50), 3);
    EXPECT_GT(DifferenceFromSheet(Plotted(list)), g_dSameInk);
    list = Sheet();
    list[7] = Primitive(Text("0", 45, 44, 2.5, false), 3);
    EXPECT_GT(DifferenceFromSheet(Plotted(list)), g_dSameInk);
}

TEST_F(PictureComparison, FindsAnotherColourAndAnotherWidth) {
    CDisplayList list = Sheet();
    list[0] = Primitive(Line(10, 20, 50, 20), 2);
    EXPECT_GT(DifferenceFromSheet(Plotted(list)), g_dSameInk);
    list = Sheet();
    list[2] = Primitive(Line(5, 5, 55, 5), 3);
    EXPECT_GT(DifferenceFromSheet(Plotted(list)), g_dSameInk);
}

TEST_F(PictureComparison, TellsWhere) {
    CDisplayList list = Sheet();
    list.erase(list.begin() + 3); // a dot at (30, 40)
    const CPictureDifference difference = ComparePictures(Plotted(Sheet()), Plotted(list));
    EXPECT_NEAR(difference.m_dX, 30.0, 1.0);
    EXPECT_NEAR(difference.m_dY, 60.0 - 40.0, 1.0);
}

TEST_F(PictureComparison, TakesPicturesOfAnotherResolutionAsDifferent) {
    EXPECT_EQ(DifferenceFromSheet(Plotted(Sheet(), 0.0, 101.0)), 1.0);
    EXPECT_EQ(DifferenceFromSheet(QImage()), 1.0);
}
