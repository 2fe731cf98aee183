// The sheets of measured readings, plotted by the programs, against the pictures in tests/data/golden, which
// tests/data/golden/renew makes anew.

#include "tests/road/bren_project.h"
#include "tests/support/picture_comparison.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace {
/// A sheet of a set below tests/data/readings and its picture.
struct CGoldenSheet {
    const char* m_pName;
    const char* m_pSet;
};

std::string GoldenFile(const CGoldenSheet& sheet) {
    return std::string(TERVO_TEST_DATA "/golden/") + sheet.m_pName + ".png";
}

QImage PictureOf(const std::string& strPath) {
    const QImage image(QString::fromStdString(strPath));
    EXPECT_FALSE(image.isNull()) << strPath;
    return image;
}

class CSheetProject {
public:
    explicit CSheetProject(const char* pSet)
        : m_project(CMeasuredSamples{{"ZK1", "1-1", pSet}}) {}
    std::string File(const std::string& strName) const { return m_project.m_program.Folder().Path(strName); }
    std::string Plot(const std::string& strName) const { return "PLOT " + File(strName) + "\n"; }
    /// Generates the sheet, then does what the script says.
    void Generate(const std::string& strThen) const {
        m_project.Run("SETVAR PLOTDPI 100\nBREN\n" + Selection("ZK1", "1-1") + "0,0\n" + strThen);
    }
    CPictureDifference Compare(const std::string& strOne, const std::string& strOther) const {
        return ComparePictures(PictureOf(File(strOne)), PictureOf(File(strOther)));
    }
    const CBrenProject m_project;
};

class GoldenSheet : public testing::TestWithParam<CGoldenSheet> {};
} // namespace

TEST_P(GoldenSheet, LooksAsItDid) {
    const CSheetProject project(GetParam().m_pSet);
    project.Generate(project.Plot("sheet.png"));
    const std::string strGolden = GoldenFile(GetParam());
    if (std::getenv("TERVO_RENEW_GOLDEN")) {
        std::filesystem::copy_file(project.File("sheet.png"), strGolden,
                                   std::filesystem::copy_options::overwrite_existing);
        GTEST_SKIP() << strGolden << " is renewed: look at it";
    }
    const CPictureDifference difference =
        ComparePictures(PictureOf(project.File("sheet.png")), PictureOf(strGolden));
    EXPECT_LT(difference.m_dInk, g_dSameInk)
        << strGolden << ": " << difference.m_dX << " mm from the left, " << difference.m_dY << " mm down";
}

INSTANTIATE_TEST_SUITE_P(Methods, GoldenSheet,
                         testing::Values(CGoldenSheet{"uu", "smith-ex3.4"}, CGoldenSheet{"cu", "mafra-ciu"},
                                         CGoldenSheet{"cd", "mafra-cid"}),
                         [](const auto& sheet) { return std::string(sheet.param.m_pName); });

namespace {
/// The first part of an exploded sheet that is of the class and holds the text or number of vertices.
std::string HandleOf(const CJson& entities, const std::string& strClass, const CJson& what) {
    for (const CJson& entity : entities)
        if (entity["class"] == strClass && (what.is_null() || entity.value("text", CJson()) == what ||
                                            (what.is_number() && entity["vertices"].size() == what)))
            return entity["handle"];
    ADD_FAILURE() << strClass << " " << what;
    return "";
}
} // namespace

TEST(GoldenSheetComparison, FindsAPartThatIsMissingOrMovedByAMillimetre) {
    const CSheetProject project("mafra-ciu");
    const std::string strExplode = "ERASE L\nERASE L\nEXPLODE L\n"; // two texts of the frame, the chart
    project.Generate(strExplode + project.m_project.Dump() + project.Plot("whole.png"));
    const CJson entities = project.m_project.Entities();
    const std::string arHandles[] = {
        HandleOf(entities, "AcDbPolyline", 2), HandleOf(entities, "AcDbArc", nullptr),
        HandleOf(entities, "AcDbSpline", nullptr), HandleOf(entities, "AcDbText", "0"),
        HandleOf(entities, "AcDbText", "1")}; // the least of the sheet, a subscript
    std::string strScript;
    for (const std::string& strHandle : arHandles)
        strScript += "ERASE #" + strHandle + "\n" + project.Plot("without" + strHandle + ".png") +
                     "UNDO 1\nMOVE #" + strHandle + " 0,0 0.6,0.8\n" +
                     project.Plot("moved" + strHandle + ".png") + "UNDO 1\n";
    project.Generate(strExplode + strScript + project.Plot("again.png"));
    for (const std::string& strHandle : arHandles)
        for (const char* pChange : {"without", "moved"})
            EXPECT_GT(project.Compare("whole.png", pChange + strHandle + ".png").m_dInk, g_dSameInk)
                << pChange << " " << strHandle;
    EXPECT_EQ(project.Compare("whole.png", "again.png").m_dInk, 0.0);
}
