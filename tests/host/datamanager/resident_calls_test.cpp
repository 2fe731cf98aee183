#include "host/datamanager/resident_calls.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "platform/windows/installation_root.h"
#include "platform/windows/window_message.h"
#include "tests/support/programs.h"

namespace {

class ResidentCalls : public testing::Test {
protected:
    ResidentCalls() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number A --name one");
    }
    static bool IsThere() { return FindWindowA("QMDBMANAGERE4", nullptr) != nullptr; }

    const CProgram m_program;
};

} // namespace

TEST_F(ResidentCalls, OpenLetsThePipeThatItWroteToEnd) {
    const CRun run = m_program.Shell("$T open --root \"$ROOT\" --number A | timeout 60 cat; "
                                     "$T open --root \"$ROOT\" --number A 2>&1 | timeout 60 cat");
    EXPECT_EQ(run.m_nStatus, 0);
    const std::string strFirst = run.m_strOut.substr(0, run.m_strOut.find('\n') + 1);
    EXPECT_EQ(run.m_strOut, strFirst + strFirst); // the same process, alone on its line
    EXPECT_EQ(kill(std::stoi(strFirst), 0), 0);
}

TEST_F(ResidentCalls, OpenReadsNothingOfTheCallersInput) {
    const CRun run =
        m_program.Shell("printf 'one\\ntwo\\n' | { $T open --root \"$ROOT\" --number A >/dev/null; cat; }");
    EXPECT_EQ(run.m_strOut, "one\ntwo\n");
}

TEST_F(ResidentCalls, WorkInAFolderWhosePathIsLongerThanASocketsName) {
    const std::string strRoot = m_program.Folder().Path(std::string(60, 'd') + "/" + std::string(60, 'e'));
    m_program.Do("init '" + strRoot + "'");
    m_program.Do("new --root '" + strRoot + "' --number A --name one");
    const std::string strProcess = m_program.Do("open --root '" + strRoot + "' --number A");
    EXPECT_FALSE(IsThere());
    SetInstallationRoot(strRoot);
    EXPECT_TRUE(IsThere());
    EXPECT_EQ(SendMessageA(FindWindowA("QMDBMANAGERE4", nullptr), 2534, 1, 0), std::stoi(strProcess));
    m_program.Do("close --root '" + strRoot + "'");
    EXPECT_FALSE(IsThere());
    SetInstallationRoot(m_program.Root());
}

TEST_F(ResidentCalls, TellOfOneThatDoesNotAnswer) {
    const pid_t nProcess = std::stoi(m_program.Do("open --root \"$ROOT\" --number A"));
    kill(nProcess, SIGSTOP);
    for (const char* pszCall : {"open --root \"$ROOT\" --number A", "close --root \"$ROOT\""}) {
        const CRun run = m_program.Tvdata(pszCall);
        EXPECT_EQ(run.m_nStatus, 4) << pszCall;
        EXPECT_EQ(run.m_strErrors, "tvdata: the resident data manager does not answer\n") << pszCall;
        EXPECT_NE(m_program.Read("Project.ini").find("GCSY=-1\n"), std::string::npos) << pszCall;
    }
    kill(nProcess, SIGCONT);
    m_program.Do("close --root \"$ROOT\"");
    EXPECT_FALSE(IsThere());
}

TEST_F(ResidentCalls, CloseKeepsTheOtherKeysAndSucceedsWithoutAResidentOne) {
    m_program.Do("open --root \"$ROOT\" --number A");
    m_program.Do("close --root \"$ROOT\"");
    const std::string strIni = m_program.Read("Project.ini");
    EXPECT_NE(strIni.find("GCSY=-1\nGCBH=A\n"), std::string::npos) << strIni;
    m_program.Do("close --root \"$ROOT\"");
    EXPECT_EQ(m_program.Read("Project.ini"), strIni);
}
