// Programs killed at any moment of an import, a store or a save: what is on the disk is whole, and the next
// run works.

#include "tests/road/bren_project.h"
#include "tests/robustness/extent.h"
#include "tests/robustness/killed_run.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {
const std::string g_strTvcad = TERVO_BIN "/tvcad --root \"$ROOT\" -q -s ";
constexpr int g_nReadings = 20000;
constexpr int g_nSamples = 30;
constexpr int g_nSaves = 5; // of each file in a run

/// What a folder holds besides whole files: what killed saves had written so far.
int Leftovers(const std::string& strFolder) {
    int nCount = 0;
    for (const auto& entry : fs::recursive_directory_iterator(strFolder))
        nCount += entry.path().filename().string().starts_with(".tervo-") ? 1 : 0;
    return nCount;
}

void Tell(const std::string& strTrial, const CKilledRuns& runs) {
    TellFigure("kill -9 during " + strTrial, std::to_string(runs.Killed()) + " kills, nothing broken");
}

/// Readings, samples and layers of a borehole of their own.
CImportRows LargeRows() {
    CImportRows rows;
    for (int i = 1; i <= g_nReadings; ++i)
        rows.m_strReadings += "large,1," + std::to_string(i) + ",1,100,80,39.1,1,0,200,500,0,0,0,2\n";
    rows.m_strSamples = "large,1,1,0.2,24,0,12,28," + g_strUU + "\n";
    rows.m_strLayers = "large,15,15,x\n";
    return rows;
}

class Kill : public testing::Test {
protected:
    const CBrenProject& Project() const { return *m_pProject; }
    std::string Path(const std::string& strName) const { return Project().m_program.Folder().Path(strName); }
    void MakeProject(const CSamples& samples) { m_pProject = std::make_unique<CBrenProject>(samples); }
    void ExpectSoundDatabase() const { ASSERT_EQ(Project().Sql("PRAGMA integrity_check"), "ok\n"); }

private:
    std::unique_ptr<CBrenProject> m_pProject;
};
} // namespace

TEST_F(Kill, DuringAnImportLeavesAllOfItOrNothing) {
    MakeProject(g_arOneSample);
    WriteImportFiles(Project().m_program.Folder(), LargeRows());
    const std::string strCounts = "SELECT (SELECT COUNT(*) FROM z_c_SanZhouCSXM WHERE ZKBH='large'), (SELECT "
                                  "COUNT(*) FROM z_c_QuYang WHERE "
                                  "ZKBH='large'), (SELECT COUNT(*) FROM z_c_SanZhou WHERE ZKBH='large'), "
                                  "(SELECT COUNT(*) FROM z_g_TuCeng WHERE "
                                  "ZKBH='large')";
    const std::string strAll = std::to_string(g_nReadings) + "|1|1|1\n", strNothing = "0|0|0|0\n";
    const auto remove = [&] {
        for (const char* pTable : {"z_c_SanZhouCSXM", "z_c_QuYang", "z_c_SanZhou", "z_g_TuCeng"})
            Project().Sql("DELETE FROM " + std::string(pTable) + " WHERE ZKBH='large'");
    };
    CKilledRuns runs("$T import --root \"$ROOT\" --number GC1 \"$ROOT/../samples.csv\" "
                     "\"$ROOT/../layers.csv\" \"$ROOT/../readings.csv\"");
    const int nKills = Extent(4, 70);
    while (runs.Killed() < nKills) {
        remove();
        const bool bKilled = runs.RunAndKill();
        const std::string strLeft = Project().Sql(strCounts);
        ASSERT_TRUE(strLeft == strAll || (bKilled && strLeft == strNothing)) << strLeft;
        ExpectSoundDatabase();
    }
    remove();
    Project().m_program.Do(
        "import --root \"$ROOT\" --number GC1 \"$ROOT/../readings.csv\" \"$ROOT/../samples.csv\" "
        "\"$ROOT/../layers.csv\"");
    EXPECT_EQ(Project().Sql(strCounts), strAll);
    Tell("`tvdata import` of 20,000 readings", runs);
}

TEST_F(Kill, DuringStoresLeavesEachRowAsItWasOrAsStored) {
    MakeProject(SamplesOfBorehole(g_nSamples));
    const std::string strScript =
        Project().m_program.Folder().Write("store.scr", "BREN\ncheck 1063\nok\n0,0\n");
    const std::string strRows =
        "SELECT QYBH, SYRQ, UUC, UUF, CUC, CUF, CUCE, CUFE, CDC, CDF FROM z_c_SanZhou";
    const std::string strBefore = Project().Sql(strRows + " WHERE SYRQ IS NULL");
    CKilledRuns runs(g_strTvcad + strScript);
    const std::string strAfter = Project().Sql(strRows);
    const auto lineOf = [](const std::string& strLines, int nLine) {
        std::istringstream lines(strLines);
        std::string strLine;
        while (nLine-- >= 0)
            std::getline(lines, strLine);
        return strLine;
    };
    const int nKills = Extent(4, 65);
    while (runs.Killed() < nKills) {
        Project().Sql("UPDATE z_c_SanZhou SET SYRQ=NULL, UUC=NULL, UUF=NULL");
        runs.RunAndKill();
        const std::string strLeft = Project().Sql(strRows);
        for (int nRow = 0; nRow < g_nSamples; ++nRow) {
            const std::string strRow = lineOf(strLeft, nRow);
            ASSERT_TRUE(strRow == lineOf(strBefore, nRow) || strRow == lineOf(strAfter, nRow)) << strRow;
        }
        ExpectSoundDatabase();
    }
    Project().Run("BREN\ncheck 1063\nok\n0,0\n");
    EXPECT_EQ(Project().Sql(strRows), strAfter);
    Tell("`BREN` storing the values of 30 samples", runs);
}

TEST_F(Kill, DuringSavesLeavesWholeDrawingsAndBackups) {
    MakeProject(g_arOneSample);
    const auto quoted = [&](const std::string& strName) { return "\"" + Path(strName) + "\""; };
    const std::vector<std::string> arNames{"a.dwg", "b.dxf"};
    std::string strMade = "BREN\n" + Selection("1", "1-1") + "0,0\n", strScript;
    for (const std::string& strName : arNames) {
        strMade += "SAVEAS " + quoted(strName) + "\nQSAVE\n";
        strScript += "OPEN " + quoted(strName) + "\nLINE 0,0 1,1\n";
        for (int i = 0; i < g_nSaves; ++i)
            strScript += "MOVE L 0,0 0,1\nQSAVE\n";
        strScript += "ERASE L\n\nQSAVE\nCLOSE\n";
    }
    Project().Run(strMade);
    const auto classesOf = [&](const std::string& strName) {
        EXPECT_EQ(Project().Run("OPEN " + quoted(strName) + "\n" + Project().Dump()).m_strOut, "");
        return Classes(Project().Entities());
    };
    const std::string arBefore[] = {classesOf(arNames[0]), classesOf(arNames[1])};
    CKilledRuns runs(g_strTvcad + Project().m_program.Folder().Write("save.scr", strScript));
    const int nKills = Extent(4, 65);
    while (runs.Killed() < nKills) {
        runs.RunAndKill();
        for (std::size_t n = 0; n < arNames.size(); ++n) {
            std::string strLines = classesOf(arNames[n]);
            ASSERT_EQ(strLines.substr(0, arBefore[n].size()), arBefore[n]);
            // Lines of killed runs, which none took out again.
            strLines.erase(0, arBefore[n].size());
            ASSERT_EQ(strLines.find_first_not_of(" Line"), std::string::npos) << strLines;
        }
        fs::copy_file(Path("a.bak"), Path("backup.dwg"), fs::copy_options::overwrite_existing);
        ASSERT_TRUE(classesOf("backup.dwg").starts_with(arBefore[0]));
    }
    EXPECT_LE(Leftovers(Path("")), 2 * runs.Killed());
    Tell("saves of a DWG and a DXF file", runs);
}
