#include "platform/windows/message_window.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <utility>
#include <vector>

#include "platform/windows/installation_root.h"
#include "platform/windows/message_socket.h"
#include "platform/windows/window_message.h"
#include "tests/temp_folder.h"

namespace {

constexpr const char* CLASS = "QMDBMANAGERE4";

/// Each test has a runtime folder and an installation of its own.
class MessageWindowTest : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directory(m_folder.Path("root"));
        std::filesystem::create_directory(m_folder.Path("run"));
        setenv("XDG_RUNTIME_DIR", m_folder.Path("run").c_str(), 1);
        SetInstallationRoot(m_folder.Path("root"));
    }
    void TearDown() override {
        End();
        SetInstallationRoot("");
        unsetenv("XDG_RUNTIME_DIR");
    }

    /// Forks a process that answers the sum of the two parameters, and ends at message 1; returns when it
    /// serves.
    void Serve(const std::string& className = CLASS) {
        std::array<int, 2> ready = {};
        ASSERT_EQ(pipe(ready.data()), 0);
        m_server = fork();
        ASSERT_GE(m_server, 0);
        if (m_server == 0) RunServer(className, ready[1]);
        close(ready[1]);
        char sign = 0;
        EXPECT_EQ(read(ready[0], &sign, 1), 1);
        EXPECT_EQ(sign, 'y');
        close(ready[0]);
    }

    void End() {
        if (m_server <= 0) return;
        kill(m_server, SIGKILL);
        waitpid(m_server, nullptr, 0);
        m_server = 0;
    }

    pid_t Server() const { return m_server; }

    const CTempFolder m_folder;

private:
    [[noreturn]] static void RunServer(const std::string& className, int ready) {
        CMessageWindow window;
        const bool created = window.Create(className, [&](UINT message, WPARAM wParam, LPARAM lParam) {
            if (message == 1) window.Quit();
            return static_cast<LRESULT>(wParam) + lParam;
        });
        const ssize_t written = write(ready, created ? "y" : "n", 1);
        close(ready);
        if (created && written == 1) window.Run();
        window.Destroy();
        _exit(0);
    }

    pid_t m_server = 0;
};

} // namespace

TEST_F(MessageWindowTest, IsNotThereBeforeAnyoneServesIt) {
    EXPECT_EQ(FindWindowA(CLASS, nullptr), nullptr);
    EXPECT_EQ(FindWindowA("", nullptr), nullptr);
    EXPECT_EQ(FindWindowA(nullptr, nullptr), nullptr);
    EXPECT_EQ(SendMessageA(nullptr, 2534, 1, 0), 0);
}

TEST_F(MessageWindowTest, AnswersMessagesOfAnotherProcess) {
    Serve();
    const HWND window = FindWindowA(CLASS, nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(SendMessageA(window, 2534, 40, 2), 42);
    EXPECT_EQ(SendMessageA(window, 2534, 1, -5), -4);
    EXPECT_EQ(SendMessageA(window, 2534, 0, 1LL << 40), 1LL << 40);
    EXPECT_EQ(FindWindowA("qmdbmanagere4", nullptr) != nullptr, true);
    EXPECT_EQ(FindWindowA("QMDBMANAGERE3", nullptr), nullptr);
    EXPECT_EQ(FindWindowA(CLASS, "a title"), nullptr);
}

TEST_F(MessageWindowTest, AnswersTheMessageThatEndsIt) {
    Serve();
    const HWND window = FindWindowA(CLASS, nullptr);
    EXPECT_EQ(SendMessageA(window, 1, 3, 4), 7);
    EXPECT_EQ(waitpid(Server(), nullptr, 0), Server());
    EXPECT_EQ(FindWindowA(CLASS, nullptr), nullptr);
    EXPECT_EQ(SendMessageA(window, 2534, 3, 4), 0);
    Serve();
    EXPECT_EQ(SendMessageA(window, 2534, 3, 4), 7); // the handle stands for the class
}

TEST_F(MessageWindowTest, LeavesNoWindowBehindWhenItsProcessIsKilled) {
    Serve();
    const HWND window = FindWindowA(CLASS, nullptr);
    ASSERT_NE(window, nullptr);
    End();
    EXPECT_EQ(FindWindowA(CLASS, nullptr), nullptr);
    EXPECT_EQ(SendMessageA(window, 2534, 1, 0), 0);
    Serve(); // what the dead one left is no hindrance
    EXPECT_EQ(SendMessageA(window, 2534, 1, 0), 1);
}

TEST_F(MessageWindowTest, DoesNotHoldACallerForEverWhenItHangs) {
    Serve();
    const HWND window = FindWindowA(CLASS, nullptr);
    kill(Server(), SIGSTOP);
    EXPECT_NE(FindWindowA(CLASS, nullptr), nullptr);
    EXPECT_EQ(SendMessageA(window, 2534, 1, 0), 0);
    kill(Server(), SIGCONT);
    EXPECT_EQ(SendMessageA(window, 2534, 1, 0), 1);
}

TEST_F(MessageWindowTest, BelongsToItsInstallation) {
    Serve();
    std::filesystem::create_directory(m_folder.Path("other"));
    std::filesystem::create_directory_symlink(m_folder.Path("root"), m_folder.Path("link"));
    SetInstallationRoot(m_folder.Path("other"));
    EXPECT_EQ(FindWindowA(CLASS, nullptr), nullptr);
    SetInstallationRoot(m_folder.Path("link"));
    EXPECT_NE(FindWindowA(CLASS, nullptr), nullptr);
}

TEST_F(MessageWindowTest, IsServedByOneProcessAtATime) {
    Serve();
    CMessageWindow second;
    EXPECT_FALSE(second.Create(CLASS, [](UINT, WPARAM, LPARAM) -> LRESULT { return 0; }));
    EXPECT_EQ(second.Descriptor(), -1);
    EXPECT_TRUE(second.Create("another", [](UINT, WPARAM, LPARAM) -> LRESULT { return 0; }));
    End();
    EXPECT_TRUE(second.Create(CLASS, [](UINT, WPARAM, LPARAM) -> LRESULT { return 0; }));
    EXPECT_EQ(FindWindowA("another", nullptr), nullptr);
}

TEST_F(MessageWindowTest, OneProcessAnswersForTwoClasses) {
    CMessageWindow first;
    CMessageWindow second;
    ASSERT_TRUE(first.Create("First", [](UINT, WPARAM, LPARAM) -> LRESULT { return 1; }));
    ASSERT_TRUE(second.Create("Second", [](UINT, WPARAM, LPARAM) -> LRESULT { return 2; }));
    std::array<LRESULT, 2> answers = {};
    std::thread caller([&] {
        answers[0] = SendMessageA(FindWindowA("first", nullptr), 1, 0, 0);
        answers[1] = SendMessageA(FindWindowA("SECOND", nullptr), 1, 0, 0);
        first.Quit();
        second.Quit();
    });
    std::thread server([&] { second.Run(); });
    first.Run();
    server.join();
    caller.join();
    EXPECT_EQ(answers, (std::array<LRESULT, 2>{1, 2}));
    first.Destroy();
    EXPECT_EQ(FindWindowA("First", nullptr), nullptr);
    EXPECT_NE(FindWindowA("Second", nullptr), nullptr);
}

TEST_F(MessageWindowTest, IsFoundByItsClassAloneWithoutATitle) {
    Serve();
    EXPECT_NE(FindWindowA(CLASS, nullptr), nullptr);
    EXPECT_EQ(FindWindowA(CLASS, ""), nullptr); // a title, which no window has
    EXPECT_EQ(FindWindowA(nullptr, "QMDBMANAGERE4"), nullptr);
    EXPECT_EQ(FindWindowA("QMDBMANAGERE", nullptr), nullptr);
    EXPECT_EQ(FindWindowA("QMDBMANAGERE40", nullptr), nullptr);
}

TEST_F(MessageWindowTest, DoesNotMindAFileInItsPlaceThatIsNoSocketOfALivingProcess) {
    const std::string place = m_folder.Path("run/" + CMessageAddress(CLASS).Name() + ".socket");
    m_folder.Write("run/" + CMessageAddress(CLASS).Name() + ".socket", "text");
    EXPECT_EQ(FindWindowA(CLASS, nullptr), nullptr);
    Serve();
    EXPECT_EQ(SendMessageA(FindWindowA(CLASS, nullptr), 2534, 1, 1), 2);
    EXPECT_TRUE(std::filesystem::is_socket(place));
}

TEST_F(MessageWindowTest, IsNotReachedByAnotherUser) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
    Serve();
    ASSERT_NE(FindWindowA(CLASS, nullptr), nullptr);
    for (const char* part : {"", "run", "root"})
        chmod(m_folder.Path(part).c_str(), 0755);
    const pid_t other = fork();
    if (other == 0) {
        if (setresuid(65534, 65534, 65534) != 0) _exit(2);
        // The folder is not its own, so it looks in its own place below the temporary folder.
        _exit(FindWindowA(CLASS, nullptr) ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
}

TEST_F(MessageWindowTest, HasNoWindowOfAnotherUserInItsOwnFolder) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
    Serve();
    // Someone else's process at the other end, as if it had put its socket there.
    ASSERT_EQ(chown(m_folder.Path("run").c_str(), 65534, 65534), 0);
    for (const char* part : {"", "run", "root"})
        chmod(m_folder.Path(part).c_str(), 0755);
    chmod(m_folder.Path("run/" + CMessageAddress(CLASS).Name() + ".socket").c_str(), 0666);
    const pid_t other = fork();
    if (other == 0) {
        if (setresuid(65534, 65534, 65534) != 0) _exit(2);
        _exit(FindWindowA(CLASS, nullptr) ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
}

TEST_F(MessageWindowTest, LetsAPollLoopServeIt) {
    CMessageWindow window;
    std::vector<std::pair<UINT, WPARAM>> got;
    ASSERT_TRUE(window.Create(CLASS, [&](UINT message, WPARAM wParam, LPARAM) -> LRESULT {
        got.emplace_back(message, wParam);
        return 5;
    }));
    LRESULT answer = 0;
    std::thread caller([&] { answer = SendMessageA(FindWindowA(CLASS, nullptr), 2534, 1, 0); });
    while (got.empty()) {
        pollfd waited = {window.Descriptor(), POLLIN, 0};
        ASSERT_EQ(poll(&waited, 1, 10000), 1);
        window.Serve(0);
    }
    caller.join();
    EXPECT_EQ(answer, 5);
    EXPECT_EQ(got, (std::vector<std::pair<UINT, WPARAM>>{{2534, 1}}));
}

TEST_F(MessageWindowTest, IsNotDisturbedByCallersThatSendNothingOrNonsense) {
    Serve();
    const CMessageAddress address(CLASS);
    const sockaddr_un name = address.Socket();
    const CDescriptor silent(socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(connect(silent.Get(), reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
    ASSERT_EQ(send(silent.Get(), "abc", 3, MSG_NOSIGNAL), 3);
    const CDescriptor wrong(socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(connect(wrong.Get(), reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
    const CMessageRequest request = {0, 1, 0, 0};
    ASSERT_EQ(send(wrong.Get(), &request, sizeof request, MSG_NOSIGNAL),
              static_cast<ssize_t>(sizeof request));
    char reply = 0;
    EXPECT_EQ(recv(wrong.Get(), &reply, 1, 0), 0); // hung up on, without an answer
    EXPECT_EQ(SendMessageA(FindWindowA(CLASS, nullptr), 2534, 6, 1), 7);
}

TEST_F(MessageWindowTest, HasAShortNameClosedToOthersWhateverTheFoldersAreCalled) {
    const std::string deep = m_folder.Path(std::string(200, 'd'));
    std::filesystem::create_directory(deep);
    setenv("XDG_RUNTIME_DIR", deep.c_str(), 1);
    SetInstallationRoot(deep);
    Serve();
    EXPECT_EQ(SendMessageA(FindWindowA(CLASS, nullptr), 2534, 1, 1), 2);
    struct stat status = {};
    ASSERT_EQ(stat((deep + "/" + CMessageAddress(CLASS).Name() + ".socket").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_LT(CMessageAddress(CLASS).Name().size(), 32U);
}

TEST_F(MessageWindowTest, StaysWithItsProcessWhenThatForks) {
    CMessageWindow window;
    ASSERT_TRUE(window.Create(CLASS, [](UINT, WPARAM, LPARAM) -> LRESULT { return 0; }));
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        window.Destroy();
        _exit(0);
    }
    EXPECT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_NE(FindWindowA(CLASS, nullptr), nullptr);
}

TEST_F(MessageWindowTest, NeedsAFolderOfItsUser) {
    setenv("XDG_RUNTIME_DIR", m_folder.Path("missing").c_str(), 1);
    setenv("TMPDIR", m_folder.Path("missing").c_str(), 1);
    CMessageWindow window;
    EXPECT_FALSE(window.Create(CLASS, [](UINT, WPARAM, LPARAM) -> LRESULT { return 0; }));
    EXPECT_EQ(FindWindowA(CLASS, nullptr), nullptr);
    unsetenv("TMPDIR");
}
