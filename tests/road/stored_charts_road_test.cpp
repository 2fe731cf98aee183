// Stored chart drawings, listed and opened, in real runs.

#include "tests/road/bren_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
/// A project with one sample, and a drawing stored for it.
class StoredCharts : public testing::Test {
protected:
    StoredCharts() {
        const std::string strFolder = m_project.m_program.Root() + "/Output/GC1/" + Utf8(u8"室内曲线") + "/";
        std::filesystem::create_directories(strFolder);
        m_strStored = strFolder + "BR1-1-1.dwg";
        m_project.Run("BREN\n" + Selection("1", "1-1") + "0,0\nSAVEAS \"" + m_strStored + "\"\n");
    }

    const CBrenProject m_project{CMeasuredSamples{{"1", "1-1", "smith-exc4.4"}}};
    const std::string m_strShown = Utf8(u8"试样1-1-1");
    std::string m_strStored;
};
} // namespace

TEST_F(StoredCharts, OpenInADocumentOfTheirOwnZoomedToTheirExtents) {
    const CRun run =
        m_project.Run("BROPEN\nshow\nselect 1056 " + m_strShown + "\nok\nDOCUMENTS\nSETVAR VIEWSIZE\n" +
                      m_project.Dump() + "ZOOM e\nSETVAR VIEWSIZE\n");
    EXPECT_NE(run.m_strOut.find(Utf8(u8"dialog 1005 \"查看三轴剪切试验成果图\"\n")), std::string::npos)
        << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("    \"" + m_strShown + "\"\n"), std::string::npos) << run.m_strOut;
    const std::size_t nDocuments = run.m_strOut.find("1   Drawing1\n2 * " + m_strStored + "\n");
    ASSERT_NE(nDocuments, std::string::npos) << run.m_strOut;
    const std::string strSizes = run.m_strOut.substr(run.m_strOut.find(m_strStored) + m_strStored.size() + 1);
    const std::size_t nHalf = strSizes.size() / 2;
    EXPECT_EQ(strSizes.substr(0, nHalf), strSizes.substr(nHalf)) << "the zoom was done already";
    EXPECT_EQ(m_project.Charts().size(), 1U);
}

TEST_F(StoredCharts, TakeTheCurrentDrawingsPlaceInSingleDocumentMode) {
    const CRun run = m_project.Run("SETVAR SDI 1\nBROPEN\ndblclick 1056 " + m_strShown + "\nDOCUMENTS\n");
    EXPECT_TRUE(run.m_strOut.ends_with("1 * " + m_strStored + "\n")) << run.m_strOut;
}

TEST_F(StoredCharts, OpenNotAtAllWhenSeveralAreChosen) {
    const std::filesystem::path stored(m_strStored);
    std::filesystem::copy_file(stored, stored.parent_path() / "BR1-2.dwg");
    const CRun run = m_project.Run("BROPEN\nselect 1056 all\nok\nDOCUMENTS\n");
    EXPECT_EQ(run.m_strOut, "1 * Drawing1\n");
}
