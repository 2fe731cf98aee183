#include "commands/chart_folder.h"

#include "tests/support/suite_fixture.h"

#include <filesystem>

namespace {
class ChartFolderTest : public CSuiteTest {};
} // namespace

TEST_F(ChartFolderTest, LiesBelowTheRoot) {
    const std::string strRoot = m_root.Path();
    EXPECT_STREQ(ChartFolder("G1"), (strRoot + "\\output\\G1\\室内曲线").c_str());
    EXPECT_STREQ(ChartFile("G1", "BR1-2"), (strRoot + "\\Output\\G1\\室内曲线\\BR1-2.dwg").c_str());
}

TEST_F(ChartFolderTest, IsFoundInAnyCase) {
    EXPECT_EQ(HasChartFolder("G1"), 0);
    std::filesystem::create_directories(m_root.Path("Output/G1/" + ToUtf8("室内曲线")));
    EXPECT_EQ(HasChartFolder("G1"), 1);
    EXPECT_EQ(HasChartFolder("g1"), 1);
    EXPECT_EQ(HasChartFolder("G2"), 0);
}
