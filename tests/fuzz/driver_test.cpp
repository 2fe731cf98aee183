// Runs of the driver as ctest makes them.

#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

namespace {

struct CDriverRun {
    int m_nStatus;
    std::string m_strOut; ///< of both streams
};

class FuzzDriver : public testing::Test {
protected:
    CTempFolder m_folder;

    CDriverRun Run(const std::string& strTarget, const std::string& strArguments) const {
        const std::string strCommand = "cd '" + m_folder.Path() + "' && " FUZZ_PROGRAMS "/fuzz_" + strTarget +
                                       ' ' + strArguments + " >out 2>&1";
        const int nStatus = std::system(strCommand.c_str()); // NOLINT(cert-env33-c)
        return {WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1, m_folder.Read("out")};
    }
};

constexpr const char* g_pCharts = FUZZ_CORPUS "/chart";
constexpr const char* g_pDrawings = FUZZ_CORPUS "/dwg";

} // namespace

TEST_F(FuzzDriver, RunsAtLeastTheNumberOfInputsAndTellsIt) {
    const CDriverRun run = Run("chart_record", std::string("--inputs 500 --seed 4 ") + g_pCharts);
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strOut;
    EXPECT_EQ(run.m_strOut.rfind("500 inputs in ", 0), 0U) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("seed 4: no fault"), std::string::npos) << run.m_strOut;
}

TEST_F(FuzzDriver, GoesOnForTheTimeWhenTheNumberIsReachedBefore) {
    const CDriverRun run = Run("chart_record", std::string("--inputs 1 --seconds 0.5 ") + g_pCharts);
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strOut;
    EXPECT_GT(std::stoi(run.m_strOut), 10);
}

TEST_F(FuzzDriver, FindsThatTheReaderNoLongerAsksWhatIsLeft) {
    const CDriverRun run = Run("without_room_check", std::string("--inputs 1000000 ") + g_pCharts);
    EXPECT_NE(run.m_nStatus, 0);
    EXPECT_NE(run.m_strOut.find("fault: "), std::string::npos) << run.m_strOut;
    EXPECT_EQ(run.m_strOut.find("no fault"), std::string::npos) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("its input is kept in fault.input"), std::string::npos) << run.m_strOut;
}

TEST_F(FuzzDriver, FindsThatTextsNoLongerAskWhatIsLeft) {
    const CDriverRun run = Run("without_text_check", std::string("--inputs 1000000 ") + g_pCharts);
    EXPECT_NE(run.m_nStatus, 0);
    EXPECT_NE(run.m_strOut.find("fault: the target asked for more memory than its input warrants"),
              std::string::npos)
        << run.m_strOut;
    std::filesystem::create_directory(m_folder.Path("kept"));
    std::filesystem::rename(m_folder.Path("fault.input"), m_folder.Path("kept/fault.input"));
    EXPECT_NE(Run("without_text_check", "kept").m_nStatus, 0) << "the kept input shows the fault again";
    EXPECT_EQ(Run("chart_record", "kept").m_nStatus, 0);
}

TEST_F(FuzzDriver, FindsThatADrawingFileMayPromiseMoreBytesThanItHas) {
    const std::string strOptions = std::string("--inputs 1000000 --bytes-per-byte 512 ") + g_pDrawings;
    const CDriverRun run = Run("without_bytes_check", strOptions);
    EXPECT_NE(run.m_nStatus, 0);
    EXPECT_NE(run.m_strOut.find("fault: "), std::string::npos) << run.m_strOut;
    std::filesystem::create_directory(m_folder.Path("kept"));
    std::filesystem::rename(m_folder.Path("fault.input"), m_folder.Path("kept/fault.input"));
    EXPECT_EQ(Run("dwg", "--bytes-per-byte 512 kept").m_nStatus, 0);
}

TEST_F(FuzzDriver, AllowsAsMuchMemoryAsItIsTold) {
    const std::string strAll = std::string("--inputs 1 --free-bytes 100000000 ") + g_pDrawings;
    EXPECT_EQ(Run("dwg", "--bytes-per-byte 0 " + strAll).m_nStatus, 0);
    const std::string strNone = std::string("--inputs 1 --free-bytes 0 ") + g_pDrawings;
    EXPECT_EQ(Run("dwg", "--bytes-per-byte 512 " + strNone).m_nStatus, 0);
    EXPECT_NE(Run("dwg", "--bytes-per-byte 1 " + strNone).m_nStatus, 0);
}

TEST_F(FuzzDriver, RefusesToRunWithoutInputs) {
    EXPECT_EQ(Run("chart_record", "nowhere").m_nStatus, 4);
    std::filesystem::create_directory(m_folder.Path("empty"));
    const CDriverRun run = Run("chart_record", "empty");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_EQ(run.m_strOut, "empty holds no input\n");
    EXPECT_NE(Run("chart_record", "").m_nStatus, 0);
}
