// A file system without room: each program says so, ends as promised, and leaves the files that were there.

#include "tests/road/bren_project.h"
#include "tests/robustness/small_disk.h"

#include <gtest/gtest.h>

#include <map>

namespace fs = std::filesystem;

namespace {
/// What a folder holds: a number by path that another content would hardly have. But for the log of messages.
std::map<std::string, std::size_t> FilesOf(const std::string& strFolder) {
    std::map<std::string, std::size_t> files;
    for (const auto& entry : fs::recursive_directory_iterator(strFolder)) {
        const std::string strName = entry.path().lexically_relative(strFolder).string();
        if (!entry.is_regular_file() || strName == "datamanager.log") continue;
        std::ostringstream bytes;
        bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        files[strName] = std::hash<std::string>()(bytes.str());
    }
    return files;
}

struct CRoom {
    const char* m_pName;
    bool m_bDisk; ///< a full disk; else a limit for the size of files
    std::string m_strReason, m_strDatabaseReason;
};
void PrintTo(const CRoom& room, std::ostream* pStream) {
    *pStream << room.m_pName;
}

/// A project with a drawing of its sample, in a place without room for more.
class NoRoom : public testing::TestWithParam<CRoom> {
protected:
    void SetUp() override {
        if (!GetParam().m_bDisk) return;
        if (!m_disk.IsMounted()) GTEST_SKIP() << "this user may not mount a disk";
        m_program.Do("close --root \"$ROOT\"");
        fs::copy(Root(), m_disk.Path("root"), fs::copy_options::recursive);
        fs::remove_all(Root());
        fs::create_directory_symlink(m_disk.Path("root"), Root());
        m_program.Do("open --root \"$ROOT\" --number GC1");
    }
    void TearDown() override { m_disk.Empty(); }

    std::string Root() const { return m_program.Root(); }
    /// The shell's words before a command that take its room away.
    std::string WithoutRoom() const {
        if (!GetParam().m_bDisk) return "trap '' XFSZ; ulimit -f 1; ";
        m_disk.Fill();
        return "";
    }
    CRun Tvdata(const std::string& strArguments) const {
        return m_program.Shell(WithoutRoom() + "$T " + strArguments);
    }
    CRun Tvcad(const std::string& strScript) const {
        const std::string strFile = m_program.Folder().Write("script", strScript);
        return m_program.Shell(WithoutRoom() + TERVO_BIN "/tvcad --root \"$ROOT\" -q -s '" + strFile + "'");
    }
    /// Runs a script that fails for want of room, and leaves the files of the installation.
    void ExpectFailure(const std::string& strScript, const std::string& strWhat) const {
        const auto before = FilesOf(Root() + "/");
        const CRun run = Tvcad(strScript);
        EXPECT_EQ(run.m_nStatus, 4) << strScript;
        EXPECT_NE(run.m_strErrors.find(strWhat + ": " + GetParam().m_strReason + "\n"), std::string::npos)
            << run.m_strErrors;
        EXPECT_EQ(FilesOf(Root() + "/"), before) << strScript;
        m_disk.Empty();
    }

    const CSmallDisk m_disk{GetParam().m_bDisk ? 8U : 0U};
    const CBrenProject m_project{g_arOneSample};
    const CProgram& m_program = m_project.m_program;
    const std::string m_strDrawn = "BREN\n" + Selection("1", "1-1") + "0,0\n";
};

INSTANTIATE_TEST_SUITE_P(Of, NoRoom,
                         testing::Values(CRoom{"Disk", true, "No space left on device",
                                               "database or disk is full"},
                                         CRoom{"Files", false, "File too large", "disk I/O error"}),
                         [](const testing::TestParamInfo<CRoom>& trial) { return trial.param.m_pName; });
} // namespace

TEST_P(NoRoom, SavesTellItAndLeaveTheDrawing) {
    for (const char* pEnding : {".dwg", ".dxf"}) {
        const std::string strFile = Root() + "/a" + pEnding;
        m_project.Run(m_strDrawn + "SAVEAS " + strFile + "\nQSAVE\n");
        ExpectFailure("OPEN " + strFile + "\nLINE 0,0 1,1\nQSAVE\n", " cannot be saved to " + strFile);
        m_project.Run("OPEN " + strFile + "\nLINE 0,0 1,1\nQSAVE\n"); // once there is room
    }
    m_project.Run(m_strDrawn + "SAVECHARTS\n");
    ExpectFailure("BREN\n" + Selection("1", "*1-1") + "0,0\nSAVECHARTS\n", "BR1-1-1.dwg");
}

TEST_P(NoRoom, PlotsAndDumpsTellItAndLeaveTheirFiles) {
    const std::string strDrawn = "LINE 0,0 1,1\nTEXT 5,5 10 \"" + std::string(100, 'x') + "\"\n";
    const auto expect = [&](const std::string& strCommand, const char* pName, const std::string& strBegin,
                            const std::string& strEnd) {
        const std::string strFile = Root() + "/" + pName;
        m_program.Folder().Write("root/" + std::string(pName), "kept");
        ExpectFailure(strDrawn + strCommand + " " + strFile + "\n", strBegin + strFile + strEnd);
    };
    for (const char* pPlot : {"a.pdf", "a.svg", "a.png"})
        expect("PLOT", pPlot, "can't write ", "");
    expect("DUMP", "a.json", "", " cannot be written");
}

TEST_P(NoRoom, ImportsTellItAndBringNothingIn) {
    const CImportRows rows = RowsOf(CSamples{{"2", "1"}, {"3", "1"}});
    const std::string strFile = m_program.Folder().Write(
        "more.csv", "ZKBH,QYBH,QYSD,QYHD,QYHSL,QYLX,QYSY,QYYX,SYFF\n" + rows.m_strSamples);
    const auto before = FilesOf(Root() + "/");
    const CRun run = Tvdata("import --root \"$ROOT\" --number GC1 '" + strFile + "'");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_EQ(run.m_strErrors,
              "tvdata: " + Root() + "/Projects/GC1/project.db: " + GetParam().m_strDatabaseReason + "\n");
    m_disk.Empty();
    EXPECT_EQ(m_project.Sql("PRAGMA integrity_check"), "ok\n");
    EXPECT_EQ(FilesOf(Root() + "/"), before);
    m_program.Do("import --root \"$ROOT\" --number GC1 '" + strFile + "'");
}

TEST_P(NoRoom, StoresTellItAndLeaveTheRow) {
    const CRun run = Tvcad(m_strDrawn);
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors; // the script ran to its end
    EXPECT_NE(
        run.m_strOut.find("z_c_SanZhou 1 1-1: " + GetParam().m_strDatabaseReason + ", row not stored\n"),
        std::string::npos)
        << run.m_strOut;
    m_disk.Empty();
    EXPECT_EQ(m_project.Sql("PRAGMA integrity_check"), "ok\n");
    EXPECT_TRUE(m_project.Results()[0]["UUC"].is_null());
    m_project.Run(m_strDrawn);
    EXPECT_FALSE(m_project.Results()[0]["UUC"].is_null());
}

TEST_P(NoRoom, NewProjectsAndInstallationsTellItAndAreNotThere) {
    const auto before = FilesOf(Root() + "/");
    const CRun run = Tvdata("new --root \"$ROOT\" --number GC2 --name x");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_TRUE(run.m_strErrors.ends_with(": " + GetParam().m_strDatabaseReason + "\n")) << run.m_strErrors;
    EXPECT_FALSE(fs::exists(Root() + "/Projects/GC2"));
    EXPECT_EQ(FilesOf(Root() + "/"), before);
    const CRun init = Tvdata("init \"$ROOT/other\"");
    EXPECT_EQ(init.m_nStatus, 4);
    EXPECT_NE(init.m_strErrors, "");
    m_disk.Empty();
    m_program.Do("new --root \"$ROOT\" --number GC2 --name x");
    fs::remove_all(Root() + "/other");
    m_program.Do("init \"$ROOT/other\"");
}

TEST_P(NoRoom, OpeningTellsItAndLeavesTheRunningProject) {
    if (!GetParam().m_bDisk) GTEST_SKIP() << "the file is smaller than any limit";
    m_program.Do("new --root \"$ROOT\" --number GC2 --name x");
    const auto before = FilesOf(Root() + "/");
    const CRun run = Tvdata("open --root \"$ROOT\" --number GC2");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_EQ(run.m_strErrors, "tvdata: " + Root() + "/Project.ini: the file cannot be written\n");
    EXPECT_EQ(FilesOf(Root() + "/"), before);
}

TEST(NoRoomForOutput, IsTold) {
    const CBrenProject project(g_arOneSample);
    for (const char* pCall : {"list --root \"$ROOT\"", "results --root \"$ROOT\" --number GC1"}) {
        const CRun run = project.m_program.Tvdata(std::string(pCall) + " >/dev/full");
        EXPECT_EQ(run.m_nStatus, 4) << pCall;
        EXPECT_EQ(run.m_strErrors, "tvdata: standard output cannot be written\n");
    }
}
