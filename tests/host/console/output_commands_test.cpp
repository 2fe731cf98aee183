// DUMP and PLOT in real runs.

#include "tests/host/console/program_run.h"

using OutputCommands = CProgramRun;

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
