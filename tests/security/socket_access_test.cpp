// The data manager's socket, as the program lays it out, and what another user can do with it.

#include "platform/windows/installation_root.h"
#include "platform/windows/message_socket.h"
#include "platform/windows/window_message.h"
#include "tests/other_user.h"
#include "tests/support/programs.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>

namespace fs = std::filesystem;

namespace {
constexpr const char* g_pClass = "QMDBMANAGERE4";

class SocketAccess : public testing::Test {
protected:
    SocketAccess() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number A --name x");
    }
    /// The only socket below a folder.
    static fs::path SocketBelow(const std::string& strFolder) {
        fs::path found;
        for (const auto& entry : fs::directory_iterator(strFolder))
            if (entry.is_socket()) {
                EXPECT_TRUE(found.empty()) << found << entry.path();
                found = entry.path();
            }
        return found;
    }
    static unsigned ModeOf(const fs::path& path) {
        struct stat status = {};
        EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
        EXPECT_EQ(status.st_uid, geteuid()) << path;
        return status.st_mode & 07777;
    }
    /// 0 for a connection that is made, else the reason why not.
    static int Connect(const fs::path& path) {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        path.string().copy(address.sun_path, sizeof address.sun_path - 1);
        const int nSocket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const int nReason =
            connect(nSocket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ? 0 : errno;
        close(nSocket);
        return nReason;
    }

    const CProgram m_program;
};
} // namespace

TEST_F(SocketAccess, IsItsUsersAloneEvenInAFolderThatOthersEnter) {
    fs::permissions(m_program.Folder().Path(), fs::perms(0755));
    m_program.Do("open --root \"$ROOT\" --number A");
    const fs::path socket = SocketBelow(m_program.Folder().Path());
    ASSERT_EQ(ModeOf(socket), 0600U);
    EXPECT_EQ(Connect(socket), 0);
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
    EXPECT_EQ(AsPlainUser([&] { return Connect(socket); }), EACCES);
}

TEST_F(SocketAccess, LiesInAFolderThatNobodyElseEntersWhereNoneIsGiven) {
    unsetenv("XDG_RUNTIME_DIR");
    setenv("TMPDIR", m_program.Folder().Path().c_str(), 1);
    fs::permissions(m_program.Folder().Path(), fs::perms(0755));
    m_program.Do("open --root \"$ROOT\" --number A");
    const std::string strFolder = m_program.Folder().Path("tervo-runtime-" + std::to_string(geteuid()));
    EXPECT_EQ(ModeOf(strFolder), 0700U);
    const fs::path socket = SocketBelow(strFolder);
    EXPECT_EQ(ModeOf(socket), 0600U);
    if (geteuid() == 0) {
        EXPECT_EQ(AsPlainUser([&] { return Connect(socket); }), EACCES);
    }
    m_program.Do("close --root \"$ROOT\"");
    unsetenv("TMPDIR");
}

TEST_F(SocketAccess, EndsAConnectionThatAnotherUserGotAllTheSame) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
    fs::permissions(m_program.Folder().Path(), fs::perms(0755));
    m_program.Do("open --root \"$ROOT\" --number A");
    const fs::path socket = SocketBelow(m_program.Folder().Path());
    fs::permissions(socket, fs::perms(0666)); // as if its mode did not count
    const std::string strBefore = m_program.Read("datamanager.log");
    EXPECT_EQ(AsPlainUser([&] {
                  const int nSocket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
                  sockaddr_un name = {};
                  name.sun_family = AF_UNIX;
                  socket.string().copy(name.sun_path, sizeof name.sun_path - 1);
                  if (connect(nSocket, reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0) return 2;
                  const CMessageRequest request = {MESSAGE_MARK, 2534, 1, 0};
                  send(nSocket, &request, sizeof request, MSG_NOSIGNAL);
                  CMessageReply reply = {};
                  return recv(nSocket, &reply, sizeof reply, 0) > 0 ? 1 : 0;
              }),
              0);
    EXPECT_EQ(m_program.Read("datamanager.log"), strBefore);
    EXPECT_NE(FindWindowA(g_pClass, nullptr), nullptr); // its user is served as before
}
