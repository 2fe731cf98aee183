#include "host/datamanager/import.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "host/datamanager/failure.h"
#include "host/datamanager/layout.h"
#include "host/datamanager/transaction.h"
#include "tests/support/programs.h"
#include "tests/support/test_database.h"

namespace {

const std::string g_strReadingColumns =
    "ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n";

class Import : public testing::TestWithParam<TestEngine> {
protected:
    Import() {
        CDbTransaction transaction(*m_pDatabase);
        LayOutTables(*m_pDatabase, ProjectTables());
        transaction.Commit();
    }

    /// Imports files of these texts, named 1.csv, 2.csv, ...; what was reported goes to m_strReport.
    CImportCounts Run(const std::vector<std::string>& arTexts, bool bReplace = false) {
        std::vector<std::string> arFiles;
        arFiles.reserve(arTexts.size());
        for (const std::string& strText : arTexts)
            arFiles.push_back(m_folder.Write(std::to_string(arFiles.size() + 1) + ".csv", strText));
        m_strReport.clear();
        CImportReport report(
            [this](const CImportRemark& remark) { m_strReport += RemarkLine(remark) + "\n"; });
        const CImportCounts counts = m_bCheck ? CheckFiles(*m_pDatabase, 7, arFiles, bReplace, &report)
                                              : ImportFiles(*m_pDatabase, 7, arFiles, bReplace, &report);
        for (std::size_t nAt = 0; (nAt = m_strReport.find(m_folder.Path() + "/")) != std::string::npos;)
            m_strReport.erase(nAt, m_folder.Path().size() + 1);
        return counts;
    }

    /// The rows of a query, see RowsText.
    std::string Rows(const std::string& strSql) { return RowsText(*m_pDatabase->Query(strSql)); }

    CTempFolder m_folder;
    CTestDatabase m_database{GetParam()};
    std::shared_ptr<CDbConnection> m_pDatabase = m_database.Connect();
    std::string m_strReport;
    bool m_bCheck = false; ///< only checks, and imports nothing
};

INSTANTIATE_TEST_SUITE_P(Engines, Import, TestEngines(), TestEngineName);

} // namespace

TEST_P(Import, BringsInReadingsWithTheProjectsIndex) {
    const CImportCounts counts =
        Run({g_strReadingColumns + "ZK1,1-1,1,1,50,75,37.492,1,0,-0.01,1e-05,0,0,0,2\r\n" +
             "ZK1,1-1,1,2,50,75,37.492,1,0,21.9305,19.3625,0,0,0,-128\n"});
    EXPECT_EQ(m_strReport, "");
    EXPECT_EQ(counts.m_nReadings, 2U);
    EXPECT_EQ(counts.m_nSamples, 0U);
    EXPECT_EQ(Rows("SELECT * FROM z_c_SanZhouCSXM"),
              "7|ZK1|1-1|1|1|50|75|37.492|1|0|-0.01|1e-05|0|0|0|2\n"
              "7|ZK1|1-1|1|2|50|75|37.492|1|0|21.9305|19.3625|0|0|0|-128\n");
}

TEST_P(Import, TakesColumnsInAnyOrder) {
    Run({"\xEF\xBB\xBF"
         "TCMC,TCHD,ZKBH,TCCDSD\n" +
         Utf8(u8"\"细砂, 松散\"") + ",7,ZK1,15\n"});
    EXPECT_EQ(m_strReport, "");
    EXPECT_EQ(Rows("SELECT * FROM z_g_TuCeng"), Utf8(u8"7|ZK1|15|7|细砂, 松散\n"));
}

TEST_P(Import, PutsTheMethodOfASampleIntoItsOwnTable) {
    const CImportCounts counts =
        Run({Utf8(u8"ZKBH,QYBH,SYFF,QYSD,QYLX\nZK1,1-1,固结排水剪,2,255\nZK1,1-2,,,\n")});
    EXPECT_EQ(m_strReport, "");
    EXPECT_EQ(counts.m_nSamples, 2U);
    EXPECT_EQ(Rows("SELECT * FROM z_c_QuYang"), "7|ZK1|1-1|2|-|-|255|-|-\n7|ZK1|1-2|-|-|-|-|-|-\n");
    EXPECT_EQ(Rows("SELECT * FROM z_c_SanZhou"),
              Utf8(u8"7|ZK1|1-1|固结排水剪|-|-|-|-|-|-|-|-|-\n7|ZK1|1-2|-|-|-|-|-|-|-|-|-|-\n"));
}

TEST_P(Import, WarnsOfAnUnknownMethodAndTakesIt) {
    Run({"ZKBH,QYBH,SYFF\nZK1,1-1,CD\n"});
    EXPECT_EQ(m_strReport, "warning: 1.csv:2: SYFF: unknown test method \"CD\"\n");
    EXPECT_EQ(Rows("SELECT SYFF FROM z_c_SanZhou"), "CD\n");
}

TEST_P(Import, NamesEachRefusedFieldAndImportsNothing) {
    const CImportCounts counts = Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,clay\nZK1,nan,,sand\n,8,4x,\n",
                                      "ZKBH,QYBH,SYFF,QYLX\nZK1,1-1,,256\nZK1,1-2,,1.0\nZK1,1-3,,0\n"});
    EXPECT_EQ(m_strReport,
              "1.csv:3: TCCDSD: \"nan\" is no decimal number within the range of a 4-byte float\n"
              "1.csv:3: TCHD: the field is empty\n"
              "1.csv:4: ZKBH: the field is empty\n"
              "1.csv:4: TCHD: \"4x\" is no decimal number within the range of a 4-byte float\n"
              "1.csv:4: TCMC: the field is empty\n"
              "2.csv:2: QYLX: \"256\" is no whole number from 0 to 255\n"
              "2.csv:3: QYLX: \"1.0\" is no whole number from 0 to 255\n");
    EXPECT_EQ(counts.m_nLayers + counts.m_nSamples, 0U);
    EXPECT_EQ(Rows("SELECT * FROM z_g_TuCeng"), "");
    EXPECT_EQ(Rows("SELECT * FROM z_c_QuYang"), "");
    EXPECT_EQ(Rows("SELECT * FROM z_c_SanZhou"), "");
}

TEST_P(Import, NamesTheCharacterThatTheCodePageLacks) {
    Run({Utf8(u8"ZKBH,TCCDSD,TCHD,TCMC\nZK𠀀,4,4,clay\nZK1,5,4,€é\n") + "ZK1,6,4,\xFF\n"});
    EXPECT_EQ(m_strReport, Utf8(u8"1.csv:2: ZKBH: \"𠀀\" (U+20000) is not in code page 936\n") +
                               "1.csv:4: TCMC: the bytes are no UTF-8\n");
}

TEST_P(Import, CountsTheBytesOfATextInTheCodePage) {
    std::string strLongest;
    for (int i = 0; i < 127; ++i)
        strLongest += Utf8(u8"砂");
    const std::string strHeader = "ZKBH,TCCDSD,TCHD,TCMC\n";
    Run({strHeader + "ZK1,4,4," + strLongest + "x\n"});
    EXPECT_EQ(m_strReport, "");
    Run({strHeader + "ZK1,5,4," + strLongest + "xx\n"});
    EXPECT_EQ(m_strReport, "1.csv:2: TCMC: the text has 256 bytes in code page 936, more than 255\n");
}

TEST_P(Import, RefusesAHeaderWithUnknownDoubleOrMissingColumns) {
    Run({"ZKBH,TCCDSD,TCMC,TCMC,GCSY\n"});
    EXPECT_EQ(m_strReport, "1.csv:1: TCMC: the column stands twice\n"
                           "1.csv:1: GCSY: unknown column in a file of layers\n"
                           "1.csv:1: TCHD: required column missing in a file of layers\n");
    Run({"ZKBH,QYBH,QYSD\n"});
    EXPECT_EQ(m_strReport, "1.csv:1: SYFF: required column missing in a file of samples\n");
    Run({"ZKBH,QYBH\n"});
    EXPECT_EQ(m_strReport,
              "1.csv:1: header: none of CLHDS, SYFF, TCCDSD is there, so the kind of the file is unknown\n");
    Run({""});
    EXPECT_EQ(m_strReport, "1.csv:1: header: the file is empty\n");
}

TEST_P(Import, RefusesLinesWithTooFewOrTooManyFields) {
    Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,4\nZK1,4,4,clay,more\n"});
    EXPECT_EQ(m_strReport, "1.csv:2: TCHD: the line ends before this field\n"
                           "1.csv:3: 5: the line has more fields than the header\n");
}

TEST_P(Import, RefusesAKeyThatStandsTwice) {
    Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,clay\nZK1,8,4,sand\nZK1,4.0,3,silt\n"}, true);
    EXPECT_EQ(m_strReport, "1.csv:4: TCCDSD: the same key stands in 1.csv:2\n");
    Run({"ZKBH,QYBH,SYFF\nZK1,1-1,\n", "QYBH,ZKBH,SYFF\n1-1,ZK1,\n"}, true);
    EXPECT_EQ(m_strReport, "2.csv:2: QYBH: the same key stands in 1.csv:2\n");
}

TEST_P(Import, RefusesAKeyThatIsStoredUnlessItShallBeReplaced) {
    const std::string strFirst =
        g_strReadingColumns + "ZK1,1-1,1,1,50,75,37,1,0,1,1,0,0,0,0\nZK1,1-1,1,2,50,75,37,1,0,2,2,0,0,0,0\n";
    const std::string strSecond =
        g_strReadingColumns + "ZK1,1-1,1,2,60,75,37,1,0,3,3,0,0,0,1\nZK1,1-1,1,3,60,75,37,1,0,4,4,0,0,0,1\n";
    Run({strFirst});
    Run({strSecond});
    EXPECT_EQ(m_strReport, "1.csv:2: SHJHXH: a row of this key is stored already\n");
    const CImportCounts counts = Run({strSecond}, true);
    EXPECT_EQ(m_strReport, "");
    EXPECT_EQ(counts.m_nReadings, 2U);
    EXPECT_EQ(Rows("SELECT SHJHXH, WY, CLHDS, JLLX FROM z_c_SanZhouCSXM ORDER BY SHJHXH"),
              "1|50|1|0\n2|60|3|1\n3|60|4|1\n");
}

TEST_P(Import, KeepsRowsOfOtherProjects) {
    m_pDatabase->Execute("INSERT INTO z_c_QuYang (GCSY,ZKBH,QYBH,QYSD) VALUES (8,'ZK1','1-1',5)");
    Run({"ZKBH,QYBH,SYFF,QYSD\nZK1,1-1,,3\n"});
    EXPECT_EQ(m_strReport, "");
    EXPECT_EQ(Rows("SELECT GCSY, QYSD FROM z_c_QuYang ORDER BY GCSY"), "7|3\n8|5\n");
}

TEST_P(Import, NeverTouchesDateAndValuesOfASample) {
    m_pDatabase->Execute("INSERT INTO z_c_SanZhou VALUES (7,'ZK1','1-1','old','2024.3.9',1,2,3,4,5,6,7,8)");
    Run({"ZKBH,QYBH,SYFF\nZK1,1-1,new\n"}, true);
    EXPECT_EQ(Rows("SELECT * FROM z_c_SanZhou"), "7|ZK1|1-1|new|2024.3.9|1|2|3|4|5|6|7|8\n");
    Run({"ZKBH,QYBH,SYFF\nZK1,1-1,\n"}, true);
    EXPECT_EQ(Rows("SELECT * FROM z_c_SanZhou"), "7|ZK1|1-1|-|2024.3.9|1|2|3|4|5|6|7|8\n");
}

TEST_P(Import, KeepsWhatWasStoredWhenAReplacingImportIsRefused) {
    Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,clay\n"});
    Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,sand\nZK1,x,4,sand\n"}, true);
    EXPECT_EQ(Rows("SELECT TCMC FROM z_g_TuCeng"), "clay\n");
}

TEST_P(Import, FailsForAFileThatCannotBeRead) {
    CImportReport report([](const CImportRemark&) {});
    try {
        ImportFiles(*m_pDatabase, 7, {m_folder.Path("none.csv")}, false, &report);
        FAIL() << "no failure";
    } catch (const CFailure& failure) {
        EXPECT_EQ(failure.Status(), ExitStatus::NoAccess);
    }
    EXPECT_THROW(ImportFiles(*m_pDatabase, 7, {m_folder.Path()}, false, &report), CFailure);
}

TEST_P(Import, ChecksWithoutWriting) {
    m_bCheck = true;
    const std::string strSound = "ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,clay\nZK1,8,4,sand\n";
    EXPECT_EQ(CountsText(Run({strSound})), "readings: 0\nsamples: 0\nlayers: 2\n");
    EXPECT_EQ(m_strReport, "");
    EXPECT_EQ(Rows("SELECT * FROM z_g_TuCeng"), "");
    m_bCheck = false;
    Run({strSound});
    m_bCheck = true;
    Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,8,4,sand\nZK1,x,4,sand\nZK2,1,1,sand\n"});
    EXPECT_EQ(m_strReport,
              "1.csv:2: TCCDSD: a row of this key is stored already\n"
              "1.csv:3: TCCDSD: \"x\" is no decimal number within the range of a 4-byte float\n");
    EXPECT_EQ(CountsText(Run({strSound}, true)), "readings: 0\nsamples: 0\nlayers: 2\n");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM z_g_TuCeng"), "2\n");
}

TEST_P(Import, IsUndoneWhenItIsGivenUp) {
    std::string strText = "ZKBH,TCCDSD,TCHD,TCMC\n";
    for (int i = 1; i <= 1000; ++i)
        strText += "ZK1," + std::to_string(i) + ",4,clay\n";
    const std::string strFile = m_folder.Write("many.csv", strText);
    std::vector<std::uintmax_t> arHeard;
    CImportReport report([](const CImportRemark&) {},
                         [&](std::uintmax_t nRead) {
                             arHeard.push_back(nRead);
                             return arHeard.size() < 4;
                         });
    try {
        ImportFiles(*m_pDatabase, 7, {strFile}, false, &report);
        FAIL() << "no failure";
    } catch (const CFailure& failure) {
        EXPECT_EQ(failure.Status(), ExitStatus::Refused);
        EXPECT_STREQ(failure.what(), "the import was cancelled, nothing came in");
    }
    ASSERT_EQ(arHeard.size(), 4U);
    EXPECT_EQ(arHeard[0], 0U);
    EXPECT_LT(arHeard[1], arHeard[2]);
    EXPECT_LE(arHeard[3], strText.size());
    EXPECT_EQ(Rows("SELECT * FROM z_g_TuCeng"), "");
}

TEST_P(Import, TakesManyRowsAndReplacesThem) {
    constexpr int nRows = 1234;
    const auto text = [](const char* pszValues) {
        std::string strText = g_strReadingColumns;
        for (int i = 1; i <= nRows; ++i)
            strText += "ZK1,1-1,1," + std::to_string(i) + pszValues;
        return strText;
    };
    EXPECT_EQ(Run({text(",50,75,37,1,0,1,0.5,0,0,0,0\n")}).m_nReadings, static_cast<std::size_t>(nRows));
    EXPECT_EQ(Rows("SELECT COUNT(*), MIN(SHJHXH), MAX(SHJHXH), SUM(ZXBX) FROM z_c_SanZhouCSXM"),
              "1234|1|1234|617\n");
    EXPECT_EQ(Run({text(",50,75,37,1,0,1,2,0,0,0,1\n")}, true).m_nReadings, static_cast<std::size_t>(nRows));
    EXPECT_EQ(Rows("SELECT COUNT(*), SUM(ZXBX), SUM(JLLX) FROM z_c_SanZhouCSXM"), "1234|2468|1234\n");
}

TEST_P(Import, FindsKeysInColumnsOfAnyNumberType) {
    m_pDatabase->Execute("DROP TABLE z_c_SanZhouCSXM");
    m_pDatabase->Execute(
        "CREATE TABLE z_c_SanZhouCSXM (GCSY numeric(10), ZKBH varchar(9), QYBH varchar(9), "
        "SJBH double precision, SHJHXH numeric(10), WY real, SYGD real, SYZJ real, CLHXS real, "
        "GJKXYL real, CLHDS real, ZXBX real, JQPS real, KXYL real, GJPS real, JLLX smallint)");
    const std::string strText = g_strReadingColumns + "ZK1,1-1,1,2,50,75,37,1,0,1,1,0,0,0,0\n";
    EXPECT_EQ(Run({strText}).m_nReadings, 1U);
    Run({strText});
    EXPECT_EQ(m_strReport, "1.csv:2: SHJHXH: a row of this key is stored already\n");
}

TEST_P(Import, OneOfTwoAtOnceWaitsForTheOther) {
    const auto pOther = m_database.Connect();
    CDbTransaction other(*pOther);
    pOther->Execute("INSERT INTO z_g_TuCeng VALUES (7,'ZK1',4,4,'clay')");
    std::jthread commit([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        other.Commit();
    });
    Run({"ZKBH,TCCDSD,TCHD,TCMC\nZK1,4,4,sand\n"});
    commit.join();
    EXPECT_EQ(m_strReport,
              "1.csv:2: TCCDSD: a row of this key is stored already\n"); // it read after the wait
    EXPECT_EQ(Rows("SELECT TCMC FROM z_g_TuCeng"), "clay\n");
}
