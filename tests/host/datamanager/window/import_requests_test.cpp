#include "host/datamanager/window/import_requests.h"

#include <gtest/gtest.h>

#include "host/datamanager/failure.h"
#include "tests/support/programs.h"

namespace {

const std::string g_strHeader = "ZKBH,TCCDSD,TCHD,TCMC\n";

class ImportRequests : public testing::Test {
protected:
    ImportRequests() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number A --name one");
    }

    /// A file of so many sound layers.
    std::string File(std::size_t nRows, const std::string& strAfter = "") const {
        std::string strText = g_strHeader;
        for (std::size_t i = 1; i <= nRows; ++i)
            strText += "ZK1," + std::to_string(i) + ",4,clay\n";
        return m_program.Folder().Write("layers.csv", strText + strAfter);
    }

    const CProgram m_program;
    CImportWatch m_watch;
};

} // namespace

TEST_F(ImportRequests, CountWhatIsReadOfTheWhole) {
    const std::string strFile = File(1000);
    const CImportOutcome outcome = CheckImport({"A", {strFile}}, m_watch);
    EXPECT_EQ(outcome.m_counts.m_nLayers, 1000U);
    EXPECT_EQ(m_watch.m_nWhole, std::filesystem::file_size(strFile));
    EXPECT_GT(m_watch.m_nRead, m_watch.m_nWhole / 2);
    EXPECT_LE(m_watch.m_nRead, m_watch.m_nWhole);
}

TEST_F(ImportRequests, PreviewTheFirstRowsAndTheRefusedOnes) {
    const std::string strFile = File(500, "ZK1,x,4,clay\nZK2,1,4,clay\n");
    const CImportOutcome outcome = CheckImport({"A", {strFile}}, m_watch);
    EXPECT_EQ(outcome.m_nRefusals, 1U);
    ASSERT_EQ(outcome.m_arPreviews.size(), 1U);
    const auto& arRecords = outcome.m_arPreviews[0].m_arRecords;
    ASSERT_EQ(arRecords.size(), g_nPreviewRows + 2); // the header and the refused row
    EXPECT_EQ(arRecords[0].m_arFields[1], "TCCDSD");
    EXPECT_EQ(arRecords.back().m_nLine, 502U);
    EXPECT_EQ(arRecords.back().m_arFields[1], "x");
}

TEST_F(ImportRequests, KeepTheFirstOfManyRemarksAndCountAll) {
    std::string strBad;
    for (std::size_t i = 0; i < g_nMostRemarks + 10; ++i)
        strBad += "ZK1,x,4,clay\n";
    const CImportOutcome outcome = CheckImport({"A", {File(0, strBad)}}, m_watch);
    EXPECT_EQ(outcome.m_nRefusals, g_nMostRemarks + 10);
    EXPECT_EQ(outcome.m_arRemarks.size(), g_nMostRemarks);
}

TEST_F(ImportRequests, KeepARefusalThatStandsBehindManyWarnings) {
    std::string strSamples = "ZKBH,QYBH,SYFF\n";
    for (std::size_t i = 0; i < g_nMostRemarks + 10; ++i)
        strSamples += "ZK1," + std::to_string(i) + ",other\n";
    const std::string strFile = m_program.Folder().Write("samples.csv", strSamples + "ZK1,,\n");
    const CImportOutcome outcome = CheckImport({"A", {strFile}}, m_watch);
    EXPECT_EQ(outcome.m_nWarnings, g_nMostRemarks + 10);
    EXPECT_EQ(outcome.m_nRefusals, 1U);
    ASSERT_EQ(outcome.m_arRemarks.size(), g_nMostRemarks + 1);
    EXPECT_TRUE(outcome.m_arRemarks.back().m_bRefusal);
}

TEST_F(ImportRequests, AreGivenUpByTheWatcher) {
    m_watch.m_bGivenUp = true;
    EXPECT_THROW(RunImport({"A", {File(10)}}, m_watch), CFailure);
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT COUNT(*) FROM z_g_TuCeng"), "0\n");
    m_watch.m_bGivenUp = false;
    EXPECT_EQ(RunImport({"A", {File(10)}}, m_watch).m_counts.m_nLayers, 10U);
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT COUNT(*) FROM z_g_TuCeng"), "10\n");
}

TEST_F(ImportRequests, FailForAProjectThatIsNotThere) {
    EXPECT_THROW(CheckImport({"B", {File(1)}}, m_watch), CFailure);
}
