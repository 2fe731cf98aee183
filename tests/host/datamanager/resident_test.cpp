#include "host/datamanager/resident.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>
#include <regex>
#include <thread>

#include "platform/windows/window_message.h"
#include "tests/support/programs.h"

namespace {

class Open : public testing::Test {
protected:
    Open() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do(Utf8(u8"new --root \"$ROOT\" --number A --name 一 --standard 5"));
        m_program.Do("new --root \"$ROOT\" --number B --name two");
    }

    /// The log without its times.
    [[nodiscard]] std::string Log() const {
        const std::string strLog = m_program.Read("datamanager.log");
        return std::regex_replace(strLog, std::regex("(^|\n)\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d "),
                                  "$1");
    }
    static bool IsThere() { return FindWindowA("QMDBMANAGERE4", nullptr) != nullptr; }

    CProgram m_program;
};

} // namespace

TEST(ResidentClass, GoesByTheEdition) {
    EXPECT_EQ(ResidentClass(0), "QMDBMANAGERE0");
    EXPECT_EQ(ResidentClass(4), "QMDBMANAGERE4");
    EXPECT_EQ(ResidentClass(5), "");
    EXPECT_EQ(ResidentClass(-1), "");
}

TEST_F(Open, WritesTheRunningProjectAndKeepsTheOtherKeys) {
    m_program.Do("open --root \"$ROOT\" --number A");
    EXPECT_EQ(m_program.Read("Project.ini", true),
              Utf8(u8"[GLOBAL]\nLOCALVER=4\n[Project]\nGCSY=1\nGCBH=A\nGCMC=一\nGCBZ=5\n"
                   u8"Database=Projects/A/project.db\nConnect=\n"));
    m_program.Do("close --root \"$ROOT\"");
    EXPECT_EQ(m_program.Read("Project.ini", true),
              Utf8(u8"[GLOBAL]\nLOCALVER=4\n[Project]\nGCSY=-1\nGCBH=A\nGCMC=一\nGCBZ=5\n"
                   u8"Database=Projects/A/project.db\nConnect=\n"));
}

TEST_F(Open, ReturnsInACommandSubstitutionWithTheProcessIdOfTheOneThatStays) {
    const CRun run =
        m_program.Shell("P=$($T open --root \"$ROOT\" --number A) && kill -0 $P && echo \"[$P]\"");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_TRUE(std::regex_match(run.m_strOut, std::regex("\\[\\d+\\]\n"))) << run.m_strOut;
    EXPECT_TRUE(IsThere());
}

TEST_F(Open, HoldsNoneOfTheCallersStreamsAndFiles) {
    const std::string strProcess =
        m_program.Shell("exec 7>\"$ROOT/../seven\"; $T open --root \"$ROOT\" --number A").m_strOut;
    const std::string strFiles = "/proc/" + strProcess.substr(0, strProcess.find('\n')) + "/fd";
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(strFiles)) {
        const std::string strTarget = std::filesystem::read_symlink(entry.path()).string();
        EXPECT_TRUE(strTarget == "/dev/null" || strTarget.find("stdout") == std::string::npos) << strTarget;
        EXPECT_EQ(strTarget.find("seven"), std::string::npos) << strTarget;
        EXPECT_EQ(strTarget.find("pipe:"), std::string::npos) << strTarget;
        ++nFiles;
    }
    EXPECT_GE(nFiles, 3);
}

TEST_F(Open, AnswersTheSuitesMessageAndNotesIt) {
    m_program.Do("open --root \"$ROOT\" --number A");
    SendMessageA(FindWindowA("QMDBMANAGERE4", nullptr), 2534, 1, 0);
    SendMessageA(FindWindowA("QMDBMANAGERE4", nullptr), 2534, 7, -3);
    EXPECT_EQ(Log(), "2534 1 0\n2534 7 -3\n");
    EXPECT_TRUE(IsThere());
}

TEST_F(Open, LetsTheResidentOneTakeOverAProject) {
    const std::string strFirst = m_program.Do("open --root \"$ROOT\" --number A");
    EXPECT_EQ(m_program.Do("open --root \"$ROOT\" --number B"), strFirst);
    EXPECT_EQ(m_program.Do("open --root \"$ROOT\" --number A --foreground"), strFirst);
    EXPECT_EQ(Log(), std::to_string(g_nMessageTake) + " 2 0\n" + std::to_string(g_nMessageTake) + " 1 0\n");
    EXPECT_NE(m_program.Read("Project.ini").find("GCSY=1\nGCBH=A\n"), std::string::npos);
}

TEST_F(Open, IsEndedByClose) {
    m_program.Do("open --root \"$ROOT\" --number A");
    m_program.Do("close --root \"$ROOT\"");
    EXPECT_FALSE(IsThere());
    EXPECT_EQ(Log(), std::to_string(g_nMessageEnd) + " 0 0\n");
    m_program.Do("close --root \"$ROOT\"");
}

TEST_F(Open, StartsAnewRightAfterClose) {
    for (int i = 0; i < 5; ++i) {
        m_program.Do("open --root \"$ROOT\" --number A");
        m_program.Do("close --root \"$ROOT\"");
    }
    m_program.Do("open --root \"$ROOT\" --number A");
    EXPECT_TRUE(IsThere());
}

TEST_F(Open, DoesNotMindOneThatWasKilled) {
    const std::string strFirst = m_program.Do("open --root \"$ROOT\" --number A");
    kill(std::stoi(strFirst), SIGKILL);
    while (IsThere())
        std::this_thread::yield();
    const std::string strSecond = m_program.Do("open --root \"$ROOT\" --number B");
    EXPECT_NE(strSecond, strFirst);
    EXPECT_TRUE(IsThere());
}

TEST_F(Open, StaysInTheForegroundUntilItIsClosed) {
    const CRun run =
        m_program.Shell("$T open --root \"$ROOT\" --number A --foreground > \"$ROOT/../pid\" & P=$!; "
                        "while ! [ -s \"$ROOT/../pid\" ]; do sleep 0.01; done; "
                        "[ \"$(cat \"$ROOT/../pid\")\" = $P ] && $T close --root \"$ROOT\" && wait $P");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_FALSE(IsThere());
}

TEST_F(Open, AnswersForTheClassOfTheInstalledEdition) {
    EXPECT_EQ(m_program.Shell("sed -i 's/LOCALVER=4/LOCALVER=2/' \"$ROOT/Project.ini\"").m_nStatus, 0);
    m_program.Do("open --root \"$ROOT\" --number A");
    EXPECT_FALSE(IsThere());
    EXPECT_TRUE(FindWindowA("QMDBMANAGERE2", nullptr));
    EXPECT_EQ(m_program.Shell("sed -i 's/LOCALVER=2/LOCALVER=4/' \"$ROOT/Project.ini\"").m_nStatus, 0);
    m_program.Do("open --root \"$ROOT\" --number A");
    EXPECT_TRUE(IsThere());
    EXPECT_FALSE(FindWindowA("QMDBMANAGERE2", nullptr));
}

TEST_F(Open, RefusesAnEditionWithoutAClass) {
    EXPECT_EQ(m_program.Shell("sed -i 's/LOCALVER=4/LOCALVER=9/' \"$ROOT/Project.ini\"").m_nStatus, 0);
    EXPECT_EQ(m_program.Tvdata("open --root \"$ROOT\" --number A").m_nStatus, 1);
    EXPECT_NE(m_program.Read("Project.ini").find("GCSY=-1\n"), std::string::npos);
}

TEST_F(Open, RefusesAProjectThatIsNotThere) {
    EXPECT_EQ(m_program.Tvdata("open --root \"$ROOT\" --number C").m_nStatus, 1);
    EXPECT_FALSE(IsThere());
}

TEST_F(Open, FailsForADatabaseThatCannotBeOpened) {
    std::filesystem::remove(m_program.Root() + "/Projects/A/project.db");
    EXPECT_EQ(m_program.Tvdata("open --root \"$ROOT\" --number A").m_nStatus, 4);
    EXPECT_FALSE(IsThere());
}

TEST_F(Open, KeepsOtherInstallationsApart) {
    m_program.Do("init \"$ROOT/../other\"");
    m_program.Do("new --root \"$ROOT/../other\" --number A --name x");
    const std::string strHere = m_program.Do("open --root \"$ROOT\" --number A");
    const std::string strThere = m_program.Do("open --root \"$ROOT/../other\" --number A");
    EXPECT_NE(strHere, strThere);
    m_program.Do("close --root \"$ROOT/../other\"");
    EXPECT_TRUE(IsThere());
}
