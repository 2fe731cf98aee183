// Names that are statements, or parts of them, on their road through the programs and the database.

#include "tests/road/bren_project.h"
#include "tests/security/hostile_text.h"
#include "tests/support/test_database.h"

#include <gtest/gtest.h>

#include <array>

namespace {
constexpr std::array g_arNames = {
    "'; DROP TABLE z_c_SanZhou; --",
    "' OR ''='",
    "\"; DELETE FROM z_c_QuYang; --",
    "/* one",
    "one */ -- two",
    "\\'; DROP TABLE z_c_SanZhouCSXM; --",
    "$$; DROP TABLE z_g_TuCeng; $$",
    "? :a @b $1 {fn user()}",
    "%s%n%d",
    "a where b='' and c=''",
    "[GCSY]",
};
constexpr const char* g_pSample = "'); DELETE FROM z_c_SanZhouCSXM; --";
constexpr const char* g_pSoil = "'); DROP TABLE x_GongCheng; /*";

/// One sample a name, which is its borehole's.
CImportRows HostileRows() {
    CSamples samples;
    for (const char* pName : g_arNames)
        samples.push_back({Quoted(pName), Quoted(g_pSample)});
    CImportRows rows = RowsOf(samples);
    rows.m_strLayers.clear();
    for (const char* pName : g_arNames)
        rows.m_strLayers += Quoted(pName) + ",15,15," + Quoted(g_pSoil) + "\n";
    return rows;
}

class SqlNames : public testing::TestWithParam<TestEngine> {
protected:
    /// The line by which a script draws the sample of a borehole.
    static std::string Drawn(const std::string& strZKBH) {
        return "BREN\n" + Selection(Quoted(strZKBH), Quoted(g_pSample)) + "0,0\n";
    }
    std::string Sql(const std::string& strSql) const {
        return RowsText(*m_database.Connect()->Query(strSql));
    }
    /// Each table is there with all its rows.
    void ExpectWhole() const {
        const std::string strSamples = std::to_string(g_arNames.size()) + "\n";
        for (const char* pTable : {"z_c_SanZhou", "z_c_QuYang", "z_g_TuCeng"})
            EXPECT_EQ(Sql("SELECT COUNT(*) FROM " + std::string(pTable)), strSamples) << pTable;
        EXPECT_EQ(Sql("SELECT COUNT(*) FROM z_c_SanZhouCSXM"), std::to_string(2 * g_arNames.size()) + "\n");
        EXPECT_EQ(Sql("SELECT COUNT(*) FROM x_GongCheng"), "1\n");
    }

    CTestDatabase m_database{GetParam()};
    const CBrenProject m_project{HostileRows(), 0, m_database.ConnectionText()};
};

INSTANTIATE_TEST_SUITE_P(Engines, SqlNames, TestEngines(), TestEngineName);

const CJson* RowOf(const CJson& rows, const std::string& strZKBH) {
    for (const CJson& row : rows)
        if (row["ZKBH"] == strZKBH && row["QYBH"] == g_pSample) return &row;
    return nullptr;
}
} // namespace

TEST_P(SqlNames, AreImportedAndListedAsTheyStand) {
    ExpectWhole();
    const CJson list = CJson::parse(m_project.m_program.Do("list --root \"$ROOT\" --json"));
    const CJson& samples = list["projects"][0]["samples"];
    ASSERT_EQ(samples.size(), g_arNames.size());
    for (const char* pName : g_arNames)
        ASSERT_NE(RowOf(samples, pName), nullptr) << pName << " is not in " << samples;
    for (const CJson& sample : samples)
        EXPECT_EQ(sample["readings"], 2) << sample;
}

TEST_P(SqlNames, AreDrawnAndStoredEachInItsOwnRow) {
    std::string strScript;
    for (const char* pName : g_arNames)
        strScript += Drawn(pName);
    const CRun run = m_project.Run(strScript + m_project.Dump());
    const CJson charts = m_project.Charts(), rows = m_project.Results();
    ASSERT_EQ(charts.size(), g_arNames.size()) << run.m_strOut;
    for (std::size_t i = 0; i < g_arNames.size(); ++i) {
        EXPECT_EQ(charts[i]["m_strZKBH"], g_arNames[i]);
        EXPECT_EQ(charts[i]["m_strQYBH"], g_pSample);
        EXPECT_EQ(charts[i]["m_strSoilName"], g_pSoil);
        ASSERT_NE(RowOf(rows, g_arNames[i]), nullptr) << rows;
        EXPECT_FALSE((*RowOf(rows, g_arNames[i]))["UUC"].is_null()) << rows;
    }
    ExpectWhole();
}

TEST_P(SqlNames, AreAdoptedInTheirOwnRow) {
    const std::string strDrawing = m_project.m_program.Folder().Path("sheet.dwg");
    m_project.Run(Drawn(g_arNames[0]) + "SAVEAS " + strDrawing + "\n" + m_project.Dump());
    std::string strChart;
    for (const CJson& entity : m_project.Entities())
        if (entity["class"] == "CBRENChart") strChart = "#" + entity["handle"].get<std::string>();
    m_project.Run("OPEN " + strDrawing + "\nBRCF\n" + strChart + "\nset 1045 7\nset 1046 8\nok\n");
    ExpectWhole();
    const CJson rows = m_project.Results();
    EXPECT_EQ((*RowOf(rows, g_arNames[0]))["UUC"], 7.0);
    EXPECT_EQ(Sql("SELECT COUNT(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL"), "1\n");
}

TEST_P(SqlNames, AreReplacedByAnotherImportOfTheirOwnRows) {
    m_project.m_program.Folder().Write("again.csv", "ZKBH,QYBH,SYFF\n" + Quoted(g_arNames[1]) + "," +
                                                        Quoted(g_pSample) + "," + Quoted("'; --") + "\n");
    const CRun run = m_project.m_program.Shell(
        "cd \"$ROOT/..\" && $T import --root root --number GC1 --replace again.csv"); // it warns of the
                                                                                      // method
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    ExpectWhole();
    EXPECT_EQ(Sql("SELECT COUNT(*) FROM z_c_SanZhou WHERE SYFF = '''; --'"), "1\n");
}

TEST(SqlNamesOfAProject, AreItsFoldersAndItsDatabases) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    const std::string strNumber = "G'1; DROP TABLE x_GongCheng; --";
    const std::string strWord = ShellWord(strNumber);
    const std::string strName = "'); DROP TABLE x_GongCheng; --";
    EXPECT_EQ(program.Do("new --root \"$ROOT\" --number " + strWord + " --name " + ShellWord(strName)),
              "1\n");
    EXPECT_TRUE(std::filesystem::exists(program.Root() + "/Projects/" + strNumber + "/project.db"));
    program.Folder().Write("layers.csv", "ZKBH,TCCDSD,TCHD,TCMC\n1,5,5,x\n");
    EXPECT_EQ(program.Do("import --root \"$ROOT\" --number " + strWord + " \"$ROOT/../layers.csv\""),
              "readings: 0\nsamples: 0\nlayers: 1\n");
    program.Do("open --root \"$ROOT\" --number " + strWord);
    const CJson list = CJson::parse(program.Do("list --root \"$ROOT\" --json"));
    EXPECT_EQ(list["projects"][0]["GCBH"], strNumber);
    EXPECT_EQ(list["projects"][0]["GCMC"], strName);
    EXPECT_EQ(list["projects"][0]["running"], true);
    EXPECT_EQ(program.Do("results --root \"$ROOT\" --csv --number " + strWord),
              "ZKBH,QYBH,SYFF,SYRQ,UUC,UUF,CUC,CUF,CUCE,CUFE,CDC,CDF\n");
}
