// Several stations at work on one project at once: each has an installation of its own, and all the same
// database.

#include "tests/road/bren_project.h"
#include "tests/support/test_database.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {
const CMeasuredSamples g_arSamples = {
    {"1", "1-1", "smith-ex3.4"},       {"1", "1-2", "lg22-022-cu"},   {"1", "1-3", "mafra-cid"},
    {"2", "2-1", "lg24-051-cu"},       {"2", "2-2", "mafra-ciu"},     {"2", "2-3", "sand-cd-curves"},
    {"3", "3-1", "two-circles-total"}, {"3", "3-2", "smith-exc4.5"},  {"3", "3-3", "smith-exc4.4"},
    {"4", "4-1", "uu-50-100-200"},     {"4", "4-2", "craig-cd-sand"}, {"4", "4-3", "three-specimens-cd"}};
/// What comes in meanwhile.
const CMeasuredSamples g_arFurther = {{"5", "5-1", "lg22-022-cu"}, {"5", "5-2", "mafra-ciu"},
                                      {"6", "6-1", "mafra-cid"},   {"6", "6-2", "smith-ex3.4"},
                                      {"7", "7-1", "lg24-051-cu"}, {"7", "7-2", "sand-cd-curves"},
                                      {"8", "8-1", "mafra-ciu"},   {"8", "8-2", "smith-exc4.4"}};
const std::string g_strImport =
    "cd \"$ROOT/..\" && $T import --root \"$ROOT\" --number GC1 samples.csv layers.csv readings.csv";

/// A further installation beside the project's, joined to the project in its database, which runs there.
class CStation {
public:
    CStation(const CProgram& program, const std::string& strName, const std::string& strConnect)
        : m_program(program)
        , m_strName(strName)
        , m_strRoot(program.Folder().Path(strName)) {
        m_program.Do("init '" + m_strRoot + "'");
        m_program.Do("new --root '" + m_strRoot + "' --number GC1 --name \"\" --connect \"" + strConnect +
                     "\"");
        m_program.Do("open --root '" + m_strRoot + "' --number GC1");
    }
    CStation(const CStation&) = delete;
    CStation& operator=(const CStation&) = delete;
    ~CStation() { m_program.Do("close --root '" + m_strRoot + "'"); }

    /// A run that draws all samples of a borehole.
    std::string Generation(const std::string& strZKBH) const {
        return TERVO_BIN "/tvcad --root '" + m_strRoot + "' -q -s '" +
               m_program.Folder().Write(m_strName + ".scr",
                                        "BREN\n" + Selection(strZKBH, "all") + "0,0\nQUIT\nno\n") +
               "' || echo status $? >&2";
    }

private:
    const CProgram& m_program;
    std::string m_strName, m_strRoot;
};

/// All rows of the project but for their dates, sorted.
std::vector<std::string> Rows(const std::string& strConnect) {
    const auto pDatabase = OpenDbConnection(strConnect);
    std::vector<std::string> arRows;
    for (const char* pSelection :
         {"ZKBH, QYBH, SYFF, UUC, UUF, CUC, CUF, CUCE, CUFE, CDC, CDF FROM z_c_SanZhou",
          "* FROM z_c_SanZhouCSXM", "* FROM z_c_QuYang", "* FROM z_g_TuCeng"}) {
        std::istringstream text(RowsText(*pDatabase->Query(std::string("SELECT ") + pSelection)));
        for (std::string strRow; std::getline(text, strRow);)
            arRows.push_back(strRow);
    }
    std::ranges::sort(arRows);
    return arRows;
}

/// The rows once one program after the other has done it all.
std::vector<std::string> RowsOfOneAfterTheOther() {
    const CBrenProject project(g_arSamples);
    for (const char* pHole : {"1", "2", "3", "4"})
        project.Run("BREN\n" + Selection(pHole, "all") + "0,0\nQUIT\nno\n");
    WriteImportFiles(project.m_program.Folder(), RowsOf(g_arFurther));
    EXPECT_EQ(project.m_program.Shell(g_strImport).m_nStatus, 0);
    return Rows("Provider=SQLite;Data Source=" + project.DatabasePath());
}

class Stations : public testing::TestWithParam<TestEngine> {
protected:
    CTestDatabase m_database{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Engines, Stations, TestEngines(), TestEngineName);
} // namespace

TEST_P(Stations, LoseNothingWhileFourGenerateAndAFifthImports) {
    const std::vector<std::string> arExpected = RowsOfOneAfterTheOther();
    const std::string& strConnect = m_database.ConnectionText();
    const CBrenProject project(g_arSamples, 0, strConnect);
    const CProgram& program = project.m_program;
    const CStation one(program, "s1", strConnect), two(program, "s2", strConnect),
        three(program, "s3", strConnect), four(program, "s4", strConnect);
    WriteImportFiles(program.Folder(), RowsOf(g_arFurther));
    const CRun run = program.Shell("{ " + one.Generation("1") + "; } & { " + two.Generation("2") +
                                   "; } & { " + three.Generation("3") + "; } & { " + four.Generation("4") +
                                   "; } & " + g_strImport + " || echo status $? >&2; wait");
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_EQ(run.m_strOut.find("not stored"), std::string::npos) << run.m_strOut;
    EXPECT_EQ(Rows(strConnect), arExpected);
    for (const CJson& row : project.Results())
        EXPECT_EQ(row["SYRQ"].is_null(), row["ZKBH"] > "4") << row;
}
