// DUMP and PLOT in real runs.

#include "tests/host/console/program_run.h"

#include <QtGui/QImage>

class OutputCommands : public CProgramRun {
protected:
    QImage Picture(const char* pName) const {
        const QImage image(QString::fromStdString((m_folder / pName).string()));
        EXPECT_FALSE(image.isNull()) << pName;
        return image;
    }
    /// The box of the dark dots.
    static QRect Ink(const QImage& image) {
        QRect box;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).lightness() < 128) box |= QRect(x, y, 1, 1);
        return box;
    }
};

TEST_F(OutputCommands, PlotWritesTheFormatOfTheEnding) {
    ASSERT_EQ(RunScript("LINES\nSHEET 30,30\nPLOT a.pdf\nPLOT a.SVG\nPLOT a.png\n").m_nStatus, 0);
    EXPECT_EQ(ReadFile(m_folder / "a.pdf").substr(0, 5), "%PDF-");
    EXPECT_NE(ReadFile(m_folder / "a.SVG").find("<svg"), std::string::npos);
    EXPECT_EQ(ReadFile(m_folder / "a.png").substr(1, 3), "PNG");
}

TEST_F(OutputCommands, PlotdpiDecidesThePixelsOfAPng) {
    ASSERT_EQ(RunScript("PLOT a.png\nSETVAR PLOTDPI 75\nPLOT b.png\n").m_nStatus, 0);
    const auto width = [this](const char* szName) {
        const std::string bytes = ReadFile(m_folder / szName);
        const auto byte = [&](size_t at) {
            return static_cast<unsigned>(static_cast<unsigned char>(bytes.at(at)));
        };
        return byte(18) << 8 | byte(19);
    };
    EXPECT_EQ(width("a.png"), 1240U); // A4, 210 mm
    EXPECT_EQ(width("b.png"), 620U);
}

TEST_F(OutputCommands, AnotherEndingIsNoAnswerAndAPathThatCannotBeWrittenAFileFailure) {
    EXPECT_EQ(RunScript("PLOT a.txt\n").m_nStatus, 5);
    EXPECT_EQ(RunScript("PLOT missing/a.pdf\n").m_nStatus, 4);
    const CProgramResult result = RunScript("DUMP missing/a.json\nSETVAR PLOTDPI\n", "-q");
    EXPECT_EQ(result.m_nStatus, 4);
    EXPECT_EQ(result.m_strOut, "");
    EXPECT_EQ(result.m_strErr, "script:1: missing/a.json cannot be written: No such file or directory\n");
}

TEST_F(OutputCommands, ALineHasItsLengthInMillimetresOnEveryPage) {
    ASSERT_EQ(RunScript("LINE 7,9 107,9\nSETVAR PLOTDPI 254\nPLOT a.svg\nPLOT a.png\nPLOT a.pdf\n").m_nStatus,
              0);
    const std::string strSvg = ReadFile(m_folder / "a.svg");
    EXPECT_NE(strSvg.find("width=\"210mm\" height=\"297mm\" viewBox=\"0 0 210 297\""), std::string::npos)
        << strSvg;
    EXPECT_NE(strSvg.find(" d=\"M55 148.5 L155 148.5\""), std::string::npos) << strSvg;
    const std::string strToPicture = "pdftoppm -r 254 -png -singlefile '" + (m_folder / "a.pdf").string() +
                                     "' '" + (m_folder / "pdf").string() + "'";
    ASSERT_EQ(std::system(strToPicture.c_str()), 0); // NOLINT(cert-env33-c)
    for (const char* pName : {"a.png", "pdf.png"}) { // ten dots a millimetre
        const QImage image = Picture(pName);
        EXPECT_NEAR(image.width(), 2100, 1) << pName;
        EXPECT_NEAR(image.height(), 2970, 1) << pName;
        const QRect ink = Ink(image);
        EXPECT_NEAR(ink.left(), 550, 1) << pName;
        EXPECT_NEAR(ink.width(), 1000, 2) << pName;
        EXPECT_NEAR(ink.center().y(), 1485, 1) << pName;
        EXPECT_LT(image.pixelColor(ink.center()).lightness(), 30) << pName; // colour index 7 on paper
        EXPECT_TRUE(image.isGrayscale()) << pName;
        EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white)) << pName;
    }
}
