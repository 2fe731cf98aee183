#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/programs.h"

// Calls of the program at the same time on one installation, or on one database.

namespace {

/// The lines of a text, sorted.
std::vector<std::string> SortedLines(const std::string& strText) {
    std::vector<std::string> arLines;
    std::istringstream text(strText);
    for (std::string strLine; std::getline(text, strLine);)
        arLines.push_back(strLine);
    std::sort(arLines.begin(), arLines.end());
    return arLines;
}

using CLines = std::vector<std::string>;

} // namespace

TEST(CallsAtOnce, NewGivesEachProjectAnIndexOfItsOwn) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    const CRun run =
        program.Shell("for n in 1 2 3 4 5 6; do $T new --root \"$ROOT\" --number P$n --name x & done; wait");
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_EQ(SortedLines(run.m_strOut), (CLines{"1", "2", "3", "4", "5", "6"}));
}

TEST(CallsAtOnce, NewMakesAProjectOnce) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    const CRun run = program.Shell(
        "for n in 1 2 3 4; do { $T new --root \"$ROOT\" --number P --name x; echo status $?; } & done; wait");
    EXPECT_EQ(SortedLines(run.m_strOut), (CLines{"1", "status 0", "status 1", "status 1", "status 1"}));
    const std::string strTold = "tvdata: there is a project P already";
    EXPECT_EQ(SortedLines(run.m_strErrors), (CLines{strTold, strTold, strTold}));
}

TEST(CallsAtOnce, NewSharesADatabaseBetweenInstallations) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    program.Do("init \"$ROOT/../other\"");
    const CRun run =
        program.Shell("for r in \"$ROOT\" \"$ROOT/../other\"; do for n in 1 2 3; do $T new --root \"$r\" "
                      "--number \"$(basename \"$r\")$n\" --name x --connect "
                      "\"Data Source=$ROOT/../shared.db\" & done; done; wait");
    EXPECT_EQ(run.m_strErrors, "");
    EXPECT_EQ(SortedLines(run.m_strOut), (CLines{"1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(program.Sql("../shared.db", "SELECT COUNT(*), COUNT(DISTINCT GCSY) FROM x_GongCheng"), "6|6\n");
}

TEST(CallsAtOnce, OpenHasOneResidentDataManager) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    for (const char* pszNumber : {"A", "B", "C"})
        program.Do(std::string("new --root \"$ROOT\" --number ") + pszNumber + " --name x");
    const CRun run =
        program.Shell("for n in A B C A B C; do $T open --root \"$ROOT\" --number $n & done; wait");
    EXPECT_EQ(run.m_strErrors, "");
    const CLines arProcesses = SortedLines(run.m_strOut);
    ASSERT_EQ(arProcesses.size(), 6U);
    EXPECT_EQ(std::set<std::string>(arProcesses.begin(), arProcesses.end()).size(), 1U);
    EXPECT_EQ(kill(std::stoi(arProcesses[0]), 0), 0);
    // The keys of one project, never a mixture.
    const std::string strIni = program.Read("Project.ini");
    const std::string strNumber = strIni.substr(strIni.find("GCBH=") + 5, 1);
    const std::string strIndex = std::to_string(strNumber[0] - 'A' + 1);
    EXPECT_NE(strIni.find("GCSY=" + strIndex + "\n"), std::string::npos) << strIni;
    EXPECT_NE(strIni.find("Database=Projects/" + strNumber + "/project.db\n"), std::string::npos) << strIni;
}
