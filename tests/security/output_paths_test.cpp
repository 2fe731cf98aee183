// Numbers of projects and boreholes that would lead out of the folders that are made for them.

#include "tests/road/bren_project.h"
#include "tests/security/hostile_text.h"

#include <gtest/gtest.h>

#include <set>

namespace fs = std::filesystem;

namespace {
const std::string g_strCurves = Utf8(u8"室内曲线");

/// All paths below a folder; links are not followed.
std::set<std::string> Below(const std::string& strFolder) {
    std::set<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator(strFolder))
        paths.insert(entry.path().lexically_relative(strFolder).string());
    return paths;
}

/// A project, and beside its installation a folder that nothing may reach.
class OutputPaths : public testing::Test {
protected:
    OutputPaths() {
        fs::create_directory(Path("outside"));
        fs::create_directories(m_program.Root() + "/Output");
    }
    ~OutputPaths() override { EXPECT_TRUE(fs::is_empty(Path("outside"))); }

    std::string Path(const std::string& strName) const { return m_program.Folder().Path(strName); }
    /// What a refused SAVECHARTS says of a sheet of the project's sample.
    std::string Refusal(int nStatus) const {
        const CRun run = m_program.Tvcad("BREN\n" + Selection("1", "1-1") + "0,0\nSAVECHARTS\n");
        EXPECT_EQ(run.m_nStatus, nStatus);
        const std::size_t nAt = run.m_strErrors.find(": ");
        return nAt == std::string::npos ? run.m_strErrors : run.m_strErrors.substr(nAt + 2);
    }

    const CBrenProject m_project{g_arOneSample};
    const CProgram& m_program = m_project.m_program;
};
} // namespace

TEST_F(OutputPaths, AreNotMadeOfANumberThatClimbs) {
    const std::set<std::string> before = Below(Path(""));
    for (const std::string& strNumber :
         {std::string(".."), std::string("."), std::string("../outside"), Path("outside/p"),
          std::string("a/../../../outside/p"), std::string("..\\outside\\p"), std::string("a\\b"),
          std::string("c:p"), std::string("")}) {
        const std::string strWord = " --number " + ShellWord(strNumber) + " ";
        EXPECT_EQ(m_program.Tvdata("new --root \"$ROOT\" --name x" + strWord).m_nStatus, 1) << strNumber;
        for (const char* pCall : {"import", "open", "results"}) {
            const CRun run = m_program.Tvdata(pCall + std::string(" --root \"$ROOT\"") + strWord +
                                              (*pCall == 'i' ? "\"$ROOT/../layers.csv\"" : ""));
            EXPECT_EQ(run.m_nStatus, 1) << pCall << strNumber << run.m_strErrors;
        }
    }
    std::set<std::string> after = Below(Path(""));
    for (const char* pStream : {"stdout", "stderr"}) // of the shell
        after.erase(pStream);
    std::set<std::string> rest = before;
    rest.erase("stdout");
    rest.erase("stderr");
    EXPECT_EQ(after, rest);
}

TEST_F(OutputPaths, OfAProjectAreThoseOfItsFolderWhateverItsFileSays) {
    fs::copy(m_program.Root() + "/Projects/GC1", Path("outside/p"));
    for (const std::string& strNumber : {std::string("../../../outside/p"), Path("outside/p"),
                                         std::string("..\\..\\..\\outside\\p"), std::string("..")}) {
        m_program.Folder().Write("root/Projects/GC1/project.ini",
                                 "[Project]\nGCSY=1\nGCBH=" + strNumber + "\nGCMC=x\nGCBZ=0\nConnect=\n");
        m_program.Do("import --root \"$ROOT\" --number GC1 --replace \"$ROOT/../samples.csv\"");
        m_program.Do("open --root \"$ROOT\" --number GC1");
        EXPECT_NE(m_program.Read("Project.ini").find("GCBH=GC1\n"), std::string::npos) << strNumber;
        EXPECT_NE(m_program.Read("Project.ini").find("Database=Projects/GC1/project.db\n"),
                  std::string::npos);
        EXPECT_NE(m_program.Do("list --root \"$ROOT\"").find("GC1"), std::string::npos);
    }
    fs::remove_all(Path("outside/p"));
}

TEST_F(OutputPaths, AreNotThoseOfTheInstallationItself) {
    m_program.Folder().Write("root/project.ini", "[Project]\nGCSY=9\n");
    m_program.Folder().Write("root/Projects/project.ini", "[Project]\nGCSY=9\n");
    for (const char* pNumber : {".", ".."}) {
        const CRun run = m_program.Tvdata("results --root \"$ROOT\" --number " + std::string(pNumber));
        EXPECT_EQ(run.m_nStatus, 1);
        EXPECT_EQ(run.m_strErrors,
                  "tvdata: there is no project " + std::string(pNumber) + " in " + m_program.Root() + "\n");
    }
}

TEST_F(OutputPaths, OfSheetsStayBelowTheirFolderWhateverTheirNumbersAre) {
    const CImportRows rows = RowsOf(CSamples{{"../../../../outside/a", "1"}, {"..", ".."}, {"b", "/c"}});
    WriteImportFiles(m_program.Folder(), rows);
    m_program.Do("import --root \"$ROOT\" --number GC1 \"$ROOT/../samples.csv\" \"$ROOT/../readings.csv\"");
    const auto run = [&](const std::string& strZKBH, const std::string& strQYBH) {
        return m_program.Tvcad("BREN\n" + Selection(strZKBH, strQYBH) + "0,0\nSAVECHARTS\n");
    };
    for (const auto& [strZKBH, strQYBH] : {std::pair{"../../../../outside/a", "1"}, std::pair{"b", "/c"}}) {
        const CRun refused = run(strZKBH, strQYBH);
        EXPECT_EQ(refused.m_nStatus, 5);
        EXPECT_NE(refused.m_strErrors.find("cannot stand in a file name"), std::string::npos)
            << refused.m_strErrors;
    }
    EXPECT_FALSE(fs::exists(m_program.Root() + "/Output/GC1"));
    EXPECT_EQ(run("..", "..").m_nStatus, 0);
    EXPECT_TRUE(fs::exists(m_program.Root() + "/Output/GC1/" + g_strCurves + "/BR..-...dwg"));
}

TEST_F(OutputPaths, DoNotLeadOverALinkOutOfTheTree) {
    const std::string strOutput = m_program.Root() + "/Output";
    fs::create_directory(Path("outside/" + g_strCurves));
    fs::create_directory_symlink(Path("outside"), strOutput + "/GC1");
    EXPECT_EQ(Refusal(5), strOutput + "/GC1/" + g_strCurves + " lies outside of " + strOutput + "\n");
    fs::remove(strOutput + "/GC1");
    fs::create_directory(strOutput + "/GC1");
    fs::create_directory_symlink(Path("outside"), strOutput + "/GC1/" + g_strCurves);
    EXPECT_EQ(Refusal(5), strOutput + "/GC1/" + g_strCurves + " lies outside of " + strOutput + "\n");
    fs::remove(strOutput + "/GC1/" + g_strCurves);
    fs::remove(Path("outside/" + g_strCurves));
    fs::create_directory(strOutput + "/GC1/" + g_strCurves);
    const std::string strSheet = strOutput + "/GC1/" + g_strCurves + "/BR1-1-1.dwg";
    m_program.Folder().Write("victim.dwg", "kept");
    fs::create_symlink(Path("victim.dwg"), strSheet);
    EXPECT_EQ(Refusal(5), strSheet + " lies outside of " + strOutput + "\n");
    EXPECT_EQ(m_program.Folder().Read("victim.dwg"), "kept");
}

TEST_F(OutputPaths, MayLieWhereTheTreeItselfIsALink) {
    fs::create_directory(Path("disk"));
    fs::remove(m_program.Root() + "/Output");
    fs::create_directory_symlink(Path("disk"), m_program.Root() + "/Output");
    m_project.Run("BREN\n" + Selection("1", "1-1") + "0,0\nSAVECHARTS\n");
    EXPECT_TRUE(fs::exists(Path("disk/GC1/" + g_strCurves + "/BR1-1-1.dwg")));
}
