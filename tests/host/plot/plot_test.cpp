#include "host/plot/plot.h"

#include "tests/host/plot/plot_fixture.h"

#include <QtGui/QImage>

#include <algorithm>
#include <fstream>
#include <sstream>

namespace {

CDisplayList SamplePicture() {
    return {Primitive(Line(120, 220, 200, 220)),
            Primitive(Text("轴向应变ε (%)", 130, 210, 2.5, false)),
            Primitive(Text("主应力差σ-σ (kPa)", 115, 230, 2.5, true)),
            Primitive(Text("镕", 180, 210, 2.5, false)),
            Primitive(Dot(150, 240), 1),
            Primitive(HalfCircle(160, 250, 20), 2, "Dashed2"),
            Primitive(CPlinePrimitive{{Vertex(200, 220, 0, 1.0, 0.0), Vertex(203, 220)}, false})};
}

} // namespace

class PlottingTest : public PlotTest {
protected:
    CFonts m_fonts{{}};
    CTempFolder m_folder;
    CDisplayList m_list = SamplePicture();
    CPlotOptions m_options;
    std::string m_strError;

    /// An upright A4 sheet whose lower left corner is at (100, 100).
    CPlotPage Sheet() const { return {{100.0, 100.0, 310.0, 397.0}, {{&m_list, 7}}}; }
    bool PlotTo(const std::string& strName, const std::vector<CPlotPage>& arPages) {
        return Plot(arPages, m_options, m_fonts, m_folder / strName, &m_strError);
    }
    std::string Shell(const std::string& strProgram, const std::string& strName,
                      const std::string& strRest = "") {
        return OutputOf(strProgram + " '" + (m_folder / strName).string() + "' " + strRest);
    }
    /// Page sizes in millimetres as a PDF reader sees them.
    std::vector<std::pair<double, double>> PdfSizes(const std::string& strName) {
        std::istringstream lines(Shell("pdfinfo -l 9", strName));
        std::vector<std::pair<double, double>> arSizes;
        for (std::string strLine; std::getline(lines, strLine);) {
            const std::size_t nSize = strLine.find("size:");
            double dWidth = 0.0;
            double dHeight = 0.0;
            if (strLine.rfind("Page", 0) == 0 && nSize != std::string::npos &&
                std::sscanf(strLine.c_str() + nSize, "size: %lf x %lf pts", &dWidth, &dHeight) == 2)
                arSizes.emplace_back(dWidth * 25.4 / 72.0, dHeight * 25.4 / 72.0);
        }
        return arSizes;
    }
    std::vector<std::string> Names() const {
        std::vector<std::string> arNames;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
            arNames.push_back(entry.path().filename().string());
        std::sort(arNames.begin(), arNames.end());
        return arNames;
    }
};

TEST_F(PlottingTest, PdfPagesHaveTheirExactSizes) {
    CPlotPage odd = Sheet();
    odd.m_box = {0.0, 0.0, 176.123, 257.456};
    CPlotPage large = Sheet();
    large.m_box = {0.0, 0.0, 1300.5, 900.25};
    ASSERT_TRUE(PlotTo("a.pdf", {Sheet(), odd, large})) << m_strError;
    const auto arSizes = PdfSizes("a.pdf");
    ASSERT_EQ(arSizes.size(), 3u);
    const double dNear = 0.01;
    EXPECT_NEAR(arSizes[0].first, 210.0, dNear);
    EXPECT_NEAR(arSizes[0].second, 297.0, dNear);
    EXPECT_NEAR(arSizes[1].first, 176.123, dNear);
    EXPECT_NEAR(arSizes[1].second, 257.456, dNear);
    EXPECT_NEAR(arSizes[2].first, 1300.5, dNear);
    EXPECT_NEAR(arSizes[2].second, 900.25, dNear);
}

TEST_F(PlottingTest, PdfTextsAreFoundAsTexts) {
    ASSERT_TRUE(PlotTo("a.pdf", {Sheet()})) << m_strError;
    std::string strText = Shell("pdftotext -raw", "a.pdf", "-");
    EXPECT_NE(strText.find(QString(u"轴向应变ε (%)"_qs).toStdString()), std::string::npos) << strText;
    EXPECT_NE(strText.find(QString(u"镕"_qs).toStdString()), std::string::npos) << strText;
    // A vertical title: its characters in order, however the reader breaks them up.
    std::erase_if(strText, [](unsigned char c) { return c <= ' '; });
    EXPECT_NE(strText.find(QString(u"主应力差σ-σ(kPa)"_qs).toStdString()), std::string::npos) << strText;
}

TEST_F(PlottingTest, PdfCarriesItsFonts) {
    ASSERT_TRUE(PlotTo("a.pdf", {Sheet()})) << m_strError;
    std::istringstream lines(Shell("pdffonts", "a.pdf"));
    int nFonts = 0;
    std::string strLine;
    std::getline(lines, strLine);
    std::getline(lines, strLine);
    while (std::getline(lines, strLine)) {
        ++nFonts;
        EXPECT_NE(strLine.find("Identity-H       yes"), std::string::npos) << strLine;
    }
    EXPECT_EQ(nFonts, 2);
}

TEST_F(PlottingTest, PdfTextStandsWhereItWasMeasured) {
    ASSERT_TRUE(PlotTo("a.pdf", {Sheet()})) << m_strError;
    std::istringstream lines(Shell("pdftotext -bbox", "a.pdf", "-"));
    const std::string strWord = QString(u"轴向应变ε"_qs).toStdString();
    double dLeft = 0.0;
    double dRight = 0.0;
    for (std::string strLine; std::getline(lines, strLine);)
        if (strLine.find(strWord) != std::string::npos)
            std::sscanf(strLine.c_str(), " <word xMin=\"%lf\" yMin=\"%*f\" xMax=\"%lf\"", &dLeft, &dRight);
    const CTextFont font{CHART_FONT, ""};
    const double dMm = 25.4 / 72.0;
    EXPECT_NEAR(dLeft * dMm, 30.0, 0.02);
    const double dLast = m_fonts.AdvanceWidth(font, "ε") * 2.5;
    EXPECT_NEAR(dRight * dMm, 30.0 + m_fonts.AdvanceWidth(font, "轴向应变") * 2.5 * 0.8 + dLast, 0.05);
}

TEST_F(PlottingTest, PdfPrintsAtTrueScale) {
    const CDisplayList list = {
        Primitive(CPlinePrimitive{{Vertex(110, 107, 0, 10, 10), Vertex(130, 107)}, false})};
    ASSERT_TRUE(PlotTo("a.pdf", {{{100.0, 100.0, 310.0, 397.0}, {{&list, 7}}}})) << m_strError;
    Shell("pdftoppm -r 254 -png", "a.pdf", "'" + (m_folder / "page").string() + "'");
    const QImage image(QString::fromStdString((m_folder / "page-1.png").string()));
    ASSERT_FALSE(image.isNull());
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).lightness() < 128) box |= QRect(x, y, 1, 1);
    EXPECT_NEAR(box.left(), 100, 1); // tenths of a millimetre
    EXPECT_NEAR(box.width(), 200, 1);
    EXPECT_NEAR(box.height(), 100, 1);
    EXPECT_NEAR(box.top(), 2970 - 120, 1); // from the upper edge of the exact page
}

TEST_F(PlottingTest, PngHasItsDotsPerInch) {
    m_options.m_dDotsPerInch = 150.0;
    ASSERT_TRUE(PlotTo("a.png", {Sheet()})) << m_strError;
    const QImage image(QString::fromStdString((m_folder / "a.png").string()));
    EXPECT_EQ(image.width(), 1240); // 210 mm
    EXPECT_EQ(image.height(), 1754);
    EXPECT_NEAR(image.dotsPerMeterX() * 0.0254, 150.0, 0.05);
    const double dDots = 150.0 / 25.4;
    const auto at = [&](double x, double y) {
        return image.pixelColor(static_cast<int>((x - 100.0) * dDots), static_cast<int>((397.0 - y) * dDots));
    };
    EXPECT_EQ(at(150.0, 240.0), QColor(255, 0, 0)); // the dot's middle
    EXPECT_EQ(at(151.0, 240.0), QColor(Qt::white));
}

TEST_F(PlottingTest, PngAndSvgHoldAPageAFile) {
    ASSERT_TRUE(PlotTo("a.svg", {Sheet(), Sheet()})) << m_strError;
    ASSERT_TRUE(PlotTo("b.PNG", {Sheet(), Sheet(), Sheet()})) << m_strError;
    ASSERT_TRUE(PlotTo("c.svg", {Sheet()})) << m_strError;
    EXPECT_EQ(Names(),
              (std::vector<std::string>{"a-1.svg", "a-2.svg", "b-1.PNG", "b-2.PNG", "b-3.PNG", "c.svg"}));
}

TEST_F(PlottingTest, PaintsTheFirstPictureLowest) {
    const CDisplayList below = {
        Primitive(CPlinePrimitive{{Vertex(0, 5, 0, 10, 10), Vertex(10, 5)}, false}, 256)};
    const CDisplayList above = {
        Primitive(CPlinePrimitive{{Vertex(0, 5, 0, 4, 4), Vertex(10, 5)}, false}, 256)};
    ASSERT_TRUE(PlotTo("a.png", {{{0, 0, 10, 10}, {{&below, 1}, {&above, 5}}}})) << m_strError;
    const QImage image(QString::fromStdString((m_folder / "a.png").string()));
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 10), QColor(255, 0, 0));
}

TEST_F(PlottingTest, RefusesAnotherEnding) {
    EXPECT_FALSE(PlotTo("a.dwg", {Sheet()}));
    EXPECT_NE(m_strError.find("a.dwg"), std::string::npos);
    EXPECT_TRUE(Names().empty());
}

TEST_F(PlottingTest, RefusesAPageWithoutSizeAndTooLargeAPicture) {
    EXPECT_FALSE(PlotTo("a.pdf", {{{0, 0, 0, 10}, {}}}));
    EXPECT_FALSE(PlotTo("a.svg", {{{0, 0, std::nan(""), 10}, {}}}));
    EXPECT_FALSE(PlotTo("a.png", {{{0, 0, 100000, 10}, {}}}));
    EXPECT_FALSE(PlotTo("a.pdf", {}));
    EXPECT_TRUE(Names().empty());
}

TEST_F(PlottingTest, NamesAFileThatCantBeWrittenAndLeavesNothing) {
    EXPECT_FALSE(PlotTo("missing/a.pdf", {Sheet()}));
    EXPECT_NE(m_strError.find("missing/a.pdf"), std::string::npos);
    EXPECT_TRUE(Names().empty());
}

TEST_F(PlottingTest, ReplacesAnOlderFileAndLeavesNothingBeside) {
    std::ofstream(m_folder / "a.svg") << "older";
    ASSERT_TRUE(PlotTo("a.svg", {Sheet()})) << m_strError;
    std::ifstream file(m_folder / "a.svg");
    std::string strFirst;
    std::getline(file, strFirst);
    EXPECT_EQ(strFirst.rfind("<?xml", 0), 0u);
    EXPECT_EQ(Names(), std::vector<std::string>{"a.svg"});
}

TEST_F(PlottingTest, ALineAcrossAKilometreOfDashesEndsInTime) {
    m_options.m_fnLinetype = [](const std::string&) { return std::vector<double>{0.4, -0.2}; };
    const CDisplayList list = {Primitive(Line(-9e5, 5, 9e5, 5), 7, "Dashed2")};
    for (const char* strName : {"a.png", "a.pdf", "a.svg"})
        EXPECT_TRUE(PlotTo(strName, {{{0, 0, 10, 10}, {{&list, 7}}}})) << m_strError;
}

TEST(IsPlotFile, IsToldByTheEndingInAnyCase) {
    for (const char* const szPath : {"x.pdf", "out/x.y.SVG", "x.Png"})
        EXPECT_TRUE(IsPlotFile(szPath)) << szPath;
    for (const char* const szPath : {"x", "pdf", ".pdf", "x.pdf.bak", "x.dwg", ""})
        EXPECT_FALSE(IsPlotFile(szPath)) << szPath;
}

TEST(PlotFileOf, NumbersPagesOnlyWhereAFileHoldsOne) {
    EXPECT_EQ(PlotFileOf("out/x.svg", 0, 1), "out/x.svg");
    EXPECT_EQ(PlotFileOf("out/x.svg", 1, 3), "out/x-2.svg");
    EXPECT_EQ(PlotFileOf("out/x.y.png", 11, 12), "out/x.y-12.png");
    EXPECT_EQ(PlotFileOf("out/x.pdf", 1, 3), "out/x.pdf");
}

TEST_F(PlottingTest, IsAskedBeforeEachPageAndCanBeGivenUp) {
    std::string strAsked;
    m_options.m_fnGoesOn = [&](std::size_t nDone) {
        strAsked += std::to_string(nDone) + " ";
        return nDone < 2;
    };
    EXPECT_TRUE(PlotTo("two.pdf", {Sheet(), Sheet()})) << m_strError;
    EXPECT_EQ(strAsked, "0 1 ");
    EXPECT_FALSE(PlotTo("three.pdf", {Sheet(), Sheet(), Sheet()}));
    EXPECT_EQ(m_strError, "the plot is given up");
    EXPECT_FALSE(std::filesystem::exists(m_folder / "three.pdf"));
    EXPECT_FALSE(PlotTo("three.svg", {Sheet(), Sheet(), Sheet()}));
    EXPECT_TRUE(std::filesystem::exists(m_folder / "three-2.svg")) << "the pages done stay";
    EXPECT_FALSE(std::filesystem::exists(m_folder / "three-3.svg"));
}
