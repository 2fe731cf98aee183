// The scripts of the three commands, one after the other on the demo project.

#include "tests/examples/demo_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
class CommandScripts : public testing::Test, protected CDemoProject {};
} // namespace

TEST_F(CommandScripts, BrenDrawsASheetForEachSampleOfTheBoreholeAndStoresItsValues) {
    Script("bren.scr");
    const std::vector<std::string> arPages = Pages("ZK1.pdf");
    ASSERT_EQ(arPages.size(), 3U);
    for (std::size_t i = 0; i < arPages.size(); ++i)
        EXPECT_NE(arPages[i].find(Utf8(u8"试样编号：ZK1-1-") + std::to_string(i + 1)), std::string::npos)
            << arPages[i];
    EXPECT_EQ(Values("ZK1", "1-1")["UUC"], 135.18);
    EXPECT_EQ(Values("ZK1", "1-2")["CUC"], 59.77);
    EXPECT_EQ(Values("ZK1", "1-3")["CDF"], 31.19);
    EXPECT_TRUE(Values("ZK2", "2-1")["UUC"].is_null());
}

TEST_F(CommandScripts, BrcfStoresTheValuesTypedAndTheDrawing) {
    Script("bren.scr");
    const CJson before = Values("ZK1", "1-2");
    Script("brcf.scr");
    CJson expected = before;
    expected["CUC"] = 58.0;
    expected["CUF"] = 15.5;
    EXPECT_EQ(Values("ZK1", "1-2"), expected);
    EXPECT_NE(before, expected);
    EXPECT_TRUE(std::filesystem::exists(m_program.Root() + "/Output/DEMO-01/" +
                                        Utf8(u8"室内曲线/BRZK1-1-1~1-2~1-3.dwg")));
}

TEST_F(CommandScripts, BropenOpensTheDrawingWithTheValuesAdopted) {
    Script("bren.scr");
    Script("brcf.scr");
    Script("bropen.scr");
    const std::vector<std::string> arBefore = Pages("ZK1.pdf"), arAfter = Pages("ZK1-adopted.pdf");
    ASSERT_EQ(arAfter.size(), 3U);
    for (const char* pValue : {"58.0", "15.5"}) {
        EXPECT_NE(arAfter[1].find(pValue), std::string::npos) << arAfter[1];
        EXPECT_EQ(arBefore[1].find(pValue), std::string::npos) << arBefore[1];
    }
    EXPECT_EQ(arAfter[0], arBefore[0]);
    EXPECT_EQ(arAfter[2], arBefore[2]);
}
