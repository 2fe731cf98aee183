#include "host/files/drawing_storage.h"

#include "tests/other_user.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <random>

namespace fs = std::filesystem;

namespace {

/// Why a path cannot be stored to, empty when it can.
std::string StoreRefusal(const std::string& strPath) {
    try {
        StoreDrawing(strPath, "new");
        return {};
    } catch (const CDrawingFailure& failure) {
        EXPECT_EQ(failure.Status(), Acad::eFileAccessErr);
        return failure.what();
    }
}

std::string LoadRefusal(const std::string& strPath, Acad::ErrorStatus status) {
    try {
        LoadDrawing(strPath);
        ADD_FAILURE() << "read";
        return {};
    } catch (const CDrawingFailure& failure) {
        EXPECT_EQ(failure.Status(), status) << strPath;
        return failure.what();
    }
}

/// Stores two drawings in turn until it is killed.
[[noreturn]] void StoreForEver(const std::string& strPath, const std::string (&arBytes)[2]) {
    for (int i = 0;; ++i)
        StoreDrawing(strPath, arBytes[i % 2]);
}

} // namespace

TEST(StoreDrawing, KeepsTheFormerFileBesideTheLinksTarget) {
    const CTempFolder folder;
    fs::create_directory(folder.Path("there"));
    folder.Write("there/real.dwg", "old");
    fs::create_symlink("there/real.dwg", folder.Path("a.dwg"));
    EXPECT_EQ(StoreRefusal(folder.Path("a.dwg")), "");
    EXPECT_TRUE(fs::is_symlink(folder.Path("a.dwg")));
    EXPECT_EQ(folder.Read("there/real.dwg"), "new");
    EXPECT_EQ(folder.Read("there/real.bak"), "old");
    EXPECT_FALSE(fs::exists(folder.Path("a.bak")));
}

TEST(StoreDrawing, RefusesLinksThatLeadNowhere) {
    const CTempFolder folder;
    fs::create_symlink("missing.dwg", folder.Path("a.dwg"));
    fs::create_symlink("loop2.dwg", folder.Path("loop1.dwg"));
    fs::create_symlink("loop1.dwg", folder.Path("loop2.dwg"));
    EXPECT_EQ(StoreRefusal(folder.Path("a.dwg")), "it is a link to missing.dwg, which is not there");
    EXPECT_EQ(StoreRefusal(folder.Path("loop1.dwg")), "Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink(folder.Path("loop1.dwg")));
    EXPECT_EQ(LoadRefusal(folder.Path("a.dwg"), Acad::eFileNotFound), "there is no such file");
    EXPECT_EQ(LoadRefusal(folder.Path("loop1.dwg"), Acad::eFileAccessErr),
              "Too many levels of symbolic links");
}

TEST(StoreDrawing, RefusesWhatIsNoOrdinaryFile) {
    const CTempFolder folder;
    fs::create_directory(folder.Path("a.dwg"));
    ASSERT_EQ(mkfifo(folder.Path("fifo.dwg").c_str(), 0600), 0);
    fs::create_symlink("/dev/full", folder.Path("full.dwg"));
    EXPECT_EQ(StoreRefusal(folder.Path("a.dwg")), "it is a folder");
    EXPECT_EQ(StoreRefusal(folder.Path("fifo.dwg")), "it is no ordinary file");
    EXPECT_EQ(StoreRefusal(folder.Path("full.dwg")), "it is no ordinary file");
    EXPECT_EQ(LoadRefusal(folder.Path("fifo.dwg"), Acad::eFileAccessErr), "it is no ordinary file");
    EXPECT_EQ(StoreRefusal(folder.Path("missing/a.dwg")), "No such file or directory");
}

TEST(StoreDrawing, RefusesAWriteProtectedFileOfRootsToo) {
    const CTempFolder folder;
    const std::string strPath = folder.Write("a.dwg", "old");
    fs::permissions(strPath, fs::perms::owner_read);
    EXPECT_EQ(StoreRefusal(strPath), "it is write-protected");
    EXPECT_EQ(folder.Read("a.dwg"), "old");
}

TEST(StoreDrawing, RefusesWhereItsBackupWouldReplaceAFolder) {
    const CTempFolder folder;
    folder.Write("a.dwg", "old");
    fs::create_directory(folder.Path("a.bak"));
    EXPECT_EQ(StoreRefusal(folder.Path("a.dwg")), "its backup's name is a folder's");
    EXPECT_EQ(folder.Read("a.dwg"), "old");
    const fs::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2) << "nothing is left beside";
}

TEST(StoreDrawing, ChangesNothingInAFolderThatMayNotBeWritten) {
    const CTempFolder folder;
    fs::create_directory(folder.Path("closed"));
    folder.Write("closed/a.dwg", "old");
    const int nStatus = AsPlainUser(folder, [&] {
        fs::permissions(folder.Path("closed"), fs::perms::owner_read | fs::perms::owner_exec);
        const bool bRefused = StoreRefusal(folder.Path("closed/a.dwg")) == "Permission denied" &&
                              StoreRefusal(folder.Path("closed/b.dwg")) == "Permission denied";
        fs::permissions(folder.Path("closed"), fs::perms::owner_all);
        return bRefused ? 0 : 1;
    });
    EXPECT_EQ(nStatus, 0);
    EXPECT_EQ(folder.Read("closed/a.dwg"), "old");
}

TEST(StoreDrawing, RefusesAnotherUsersFile) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may give a file away";
    const CTempFolder folder;
    const std::string strPath = folder.Write("a.dwg", "old");
    ASSERT_EQ(chown(folder.Path().c_str(), g_nPlainUser, g_nPlainUser), 0);
    EXPECT_EQ(AsPlainUser([&] { return StoreRefusal(strPath) == "it is write-protected" ? 0 : 1; }), 0);
    EXPECT_EQ(folder.Read("a.dwg"), "old");
}

TEST(StoreDrawing, LeavesNothingBehindWhenTheDiskIsFull) {
    const CTempFolder folder;
    const std::string strPath = folder.Write("a.dwg", "old");
    EXPECT_EQ(InChild([&] {
                  signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{2, 2};
                  if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
                  return StoreRefusal(strPath) == "File too large" ? 0 : 1;
              }),
              0);
    EXPECT_EQ(folder.Read("a.dwg"), "old");
    const fs::directory_iterator entries(folder.Path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1);
}

TEST(StoreDrawing, KilledAtAnyMomentItLeavesAWholeDrawingAndAWholeBackup) {
    const CTempFolder folder;
    const std::string strPath = folder.Path("a.dwg");
    AcDbDatabase database;
    std::string arBytes[2];
    arBytes[0] = WriteDrawing(database, CDrawingFormat::Dwg).m_strBytes;
    database.setLtscale(7.0);
    arBytes[1] = WriteDrawing(database, CDrawingFormat::Dwg).m_strBytes;
    StoreDrawing(strPath, arBytes[0]);
    StoreDrawing(strPath, arBytes[1]);
    const auto isWhole = [&](const std::string& bytes) { return bytes == arBytes[0] || bytes == arBytes[1]; };
    std::mt19937 random(2000); // NOLINT(cert-msc51-cpp): the same moments in each run, as far as they go
    constexpr int nRounds = 40;
    for (int nRound = 0; nRound < nRounds; ++nRound) {
        const pid_t nChild = fork();
        if (nChild == 0) StoreForEver(strPath, arBytes);
        usleep(static_cast<useconds_t>(random() % 20000));
        ASSERT_EQ(kill(nChild, SIGKILL), 0);
        ASSERT_EQ(waitpid(nChild, nullptr, 0), nChild);
        ASSERT_TRUE(isWhole(folder.Read("a.dwg"))) << "round " << nRound;
        ASSERT_TRUE(isWhole(folder.Read("a.bak"))) << "round " << nRound;
        ASSERT_FALSE(LoadDrawing(strPath).m_pDatabase->IsModified());
    }
}

TEST(LoadDrawing, TellsAMissingFileAFolderAndWhatIsNoDrawing) {
    const CTempFolder folder;
    EXPECT_EQ(LoadRefusal(folder.Path("missing.dwg"), Acad::eFileNotFound), "there is no such file");
    EXPECT_EQ(LoadRefusal(folder.Path(), Acad::eFileAccessErr), "it is a folder");
    EXPECT_EQ(LoadRefusal(folder.Write("a.dwg", ""), Acad::eFilerError), "the file is empty");
}
