// No program hands a text to a shell: by what its sources call, and by what names of commands do.

#include "tests/platform/windows/waited_file.h"
#include "tests/road/bren_project.h"
#include "tests/security/hostile_text.h"

#include <gtest/gtest.h>

#include <array>

namespace fs = std::filesystem;

namespace {
/// What runs a command line, or seeks a program and falls back on a shell.
constexpr std::array g_arCalls = {"system", "popen",   "wordexp",     "execlp",
                                  "execvp", "execvpe", "startCommand"};
constexpr std::array g_arShells = {"/bin/sh", "\"sh\"", "\"bash\"", "/bin/bash", "\"-c\""};

bool IsOfName(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

bool Calls(const std::string& strSource, const std::string& strFunction) {
    for (std::size_t nAt = strSource.find(strFunction); nAt != std::string::npos;
         nAt = strSource.find(strFunction, nAt + 1)) {
        const std::size_t nEnd = nAt + strFunction.size();
        if ((nAt == 0 || !IsOfName(strSource[nAt - 1])) && strSource[nEnd] == '(') return true;
    }
    return false;
}

/// The first of these that the source has; empty without one.
std::string ShellIn(const std::string& strSource) {
    for (const char* pCall : g_arCalls)
        if (Calls(strSource, pCall)) return pCall;
    for (const char* pShell : g_arShells)
        if (strSource.find(pShell) != std::string::npos) return pShell;
    return {};
}

/// Texts that make a file of the name "seen" where a shell gets them.
constexpr std::array g_arCommands = {"$(touch seen)",  "`touch seen`",        "; touch seen #",
                                     "& touch seen &", "x' ; touch seen ; '", "x\" ; touch seen ; \"",
                                     "| touch seen"};

bool IsSeenBelow(const std::string& strFolder) {
    for (const auto& entry : fs::recursive_directory_iterator(strFolder))
        if (entry.path().filename() == "seen") return true;
    return false;
}

/// An installation whose folder's name is a command, and programs that run beside it.
class NoShell : public testing::Test {
protected:
    NoShell() { EXPECT_EQ(Tvdata("init").m_nStatus, 0); }
    ~NoShell() override {
        EXPECT_EQ(Tvdata("close").m_nStatus, 0);
        EXPECT_FALSE(IsSeenBelow(Path("")));
    }

    std::string Path(const std::string& strName) const { return m_program.Folder().Path(strName); }
    std::string Root() const { return Path("$(touch seen);`touch seen`"); }
    CRun Tvdata(const std::string& strCall, const std::string& strArguments = "") const {
        const std::string strRoot = (strCall == "init" ? " " : " --root ") + ShellWord(Root());
        return m_program.Shell("cd \"$ROOT/..\" && $T " + strCall + strRoot + " " + strArguments);
    }
    CRun Tvcad(const std::string& strScript) const {
        return m_program.Shell("cd \"$ROOT/..\" && " TERVO_BIN "/tvcad -q --root " + ShellWord(Root()) +
                               " -s " + m_program.Folder().Write("script", strScript));
    }
    void MakeProject(const std::string& strNumber, const CImportRows& rows) const {
        const std::string strWord = "--number " + ShellWord(strNumber) + " ";
        WriteImportFiles(m_program.Folder(), rows);
        EXPECT_EQ(Tvdata("new", strWord + "--name '$(touch seen)'").m_nStatus, 0);
        const CRun run = Tvdata("import", strWord + "samples.csv layers.csv readings.csv");
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        EXPECT_EQ(Tvdata("open", strWord).m_nStatus, 0);
    }

    const CProgram m_program;
};

/// One sample a command, which is its borehole's number.
CImportRows CommandRows() {
    CSamples samples;
    for (const char* pCommand : g_arCommands)
        samples.push_back({Quoted(pCommand), Quoted("$(touch seen)")});
    CImportRows rows = RowsOf(samples);
    for (const char* pCommand : g_arCommands)
        rows.m_strLayers += Quoted(pCommand) + ",25,10,\"`touch seen`\"\n";
    return rows;
}
} // namespace

TEST(NoShellSources, CallNone) {
    int nFiles = 0;
    for (const char* pFolder :
         {"analysis", "chart", "commands", "data", "drawing", "frame", "host", "platform", "ui"})
        for (const auto& entry : fs::recursive_directory_iterator(std::string(TERVO_SOURCES "/") + pFolder)) {
            const std::string strEnding = entry.path().extension().string();
            if (strEnding != ".cpp" && strEnding != ".h" && strEnding != ".in") continue;
            std::ostringstream text;
            text << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            EXPECT_EQ(ShellIn(text.str()), "") << entry.path();
            ++nFiles;
        }
    EXPECT_GT(nFiles, 500);
}

TEST(NoShellSources, AreToldByTheCallsAndNotByOtherWords) {
    EXPECT_EQ(ShellIn("int n = std::system(text.c_str());"), "system");
    EXPECT_EQ(ShellIn("CPipe p(popen(\"ls\", \"r\"));"), "popen");
    EXPECT_EQ(ShellIn("execl(\"/bin/sh\", \"sh\", \"-c\", text);"), "/bin/sh");
    EXPECT_EQ(ShellIn("file_system(1); system_clock::now(); m_popen = 1; // the system (its own)"), "");
}

TEST_F(NoShell, GetsNamesOfProjectsBoreholesSamplesAndSoils) {
    MakeProject("$(touch seen)", CommandRows());
    const CRun list = Tvdata("list"), results = Tvdata("results", "--number '$(touch seen)' --csv");
    std::string strScript;
    for (const char* pCommand : g_arCommands) {
        EXPECT_NE(list.m_strOut.find(pCommand), std::string::npos) << list.m_strOut;
        strScript += "BREN\n" + Selection(Quoted(pCommand), Quoted("$(touch seen)")) + "0,0\n";
    }
    const CRun drawn = Tvcad(strScript + "DUMP dump.json\n");
    EXPECT_EQ(drawn.m_nStatus, 0) << drawn.m_strErrors;
    const CJson dump = CJson::parse(m_program.Folder().Read("dump.json"));
    std::size_t nCharts = 0;
    for (const CJson& entity : dump["modelSpace"])
        nCharts += entity["class"] == "CBRENChart" ? 1 : 0;
    EXPECT_EQ(nCharts, g_arCommands.size()) << drawn.m_strOut;
    EXPECT_EQ(results.m_nStatus, 0) << results.m_strErrors;
}

TEST_F(NoShell, GetsNamesOfFiles) {
    const CImportRows rows = RowsOf(CSamples{{"$(touch seen)", "`touch seen`"}});
    MakeProject("$(touch seen)", rows);
    std::string strScript =
        "BREN\n" + Selection(Quoted("$(touch seen)"), Quoted("`touch seen`")) + "0,0\nSAVECHARTS\n";
    for (const char* pEnding : {".dwg", ".dxf"})
        strScript +=
            "SAVEAS \"; touch seen #" + std::string(pEnding) + "\"\nOPEN \"; touch seen #" + pEnding + "\"\n";
    for (const char* pEnding : {".pdf", ".svg", ".png"})
        strScript += "PLOT \"$(touch seen)" + std::string(pEnding) + "\"\n";
    const CRun run = Tvcad(strScript + "DUMP \"`touch seen`.json\"\nBROPEN\nok\ncancel\n");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_TRUE(fs::exists(Root() + "/Output/$(touch seen)/" + Utf8(u8"室内曲线") +
                           "/BR$(touch seen)-`touch seen`.dwg"));
    for (const char* pFile : {"; touch seen #.dwg", "; touch seen #.dxf", "$(touch seen).pdf",
                              "$(touch seen).svg", "$(touch seen).png", "`touch seen`.json"})
        EXPECT_TRUE(fs::exists(Path(pFile))) << pFile;
    EXPECT_EQ(Tvcad("LOADMODULE \"$(touch seen).so\"\n").m_nStatus, 4);
}

TEST_F(NoShell, StartsTheConfigurationProgram) {
    MakeProject("1", RowsOf(g_arOneSample));
    // The program writes down the words that it was started with.
    const std::string strProgram = Root() + "/TervoConfig.exe";
    std::ofstream(strProgram) << "#!/bin/sh\nprintf '[%s]' \"$0\" \"$@\" > " + Path("part") + "\nmv " +
                                     Path("part") + " " + Path("words") + "\n";
    fs::permissions(strProgram, fs::perms(0755));
    EXPECT_EQ(Tvcad("BREN\nclick 1556\n").m_nStatus, 0);
    EXPECT_EQ(WaitedFile(m_program.Folder(), "words"),
              "[" + strProgram + "][/s][" + Utf8(u8"成果图-室内试验") + "]");
}
