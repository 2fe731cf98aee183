#include "platform/windows/detached_process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "tests/platform/windows/waited_file.h"
#include "tests/temp_folder.h"

namespace {

/// Makes a shell script that can be run.
std::string Script(const CTempFolder& folder, const std::string& lines) {
    std::string path = folder.Write("program", "#!/bin/sh\n" + lines);
    chmod(path.c_str(), 0755);
    return path;
}

} // namespace

TEST(StartDetached, HandsOverItsArgumentsAndFolder) {
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("work"));
    const std::string program =
        Script(folder, "{ pwd; for a in \"$@\"; do echo \"[$a]\"; done; } > out.part\n"
                       "mv out.part out\n");
    ASSERT_EQ(StartDetached(program, {"a b", "", "\"c\"", "*"}, folder.Path("work")), 0);
    EXPECT_EQ(WaitedFile(folder, "work/out"), folder.Path("work") + "\n[a b]\n[]\n[\"c\"]\n[*]\n");
}

TEST(StartDetached, SharesNothingWithTheProcessThatStartedIt) {
    const CTempFolder folder;
    const int open7 = open(folder.Path("seven").c_str(), O_CREAT | O_RDWR, 0600); // kept over a start, if let
    ASSERT_GE(open7, 0);
    std::signal(SIGPIPE, SIG_IGN);
    const std::string program = Script(
        folder,
        "cd \"$1\"\n"
        "{ echo $$ $PPID; cut -d' ' -f6 /proc/$$/stat; for f in 0 1 2; do readlink /proc/$$/fd/$f; done\n"
        "ls -l /proc/$$/fd | grep -c seven; grep SigIgn /proc/$$/status; } > part 2>&1\n"
        "mv part out\n");
    // Standard output is the script's own file while the list is written.
    ASSERT_EQ(StartDetached(program, {folder.Path()}, ""), 0);
    std::signal(SIGPIPE, SIG_DFL);
    std::istringstream out(WaitedFile(folder, "out"));
    long process = 0;
    long parent = 0;
    long session = 0;
    std::string input;
    std::string line;
    out >> process >> parent >> session >> input;
    EXPECT_GT(process, 0);
    EXPECT_NE(parent, getpid());
    EXPECT_EQ(session, process);
    EXPECT_EQ(input, "/dev/null");
    std::vector<std::string> rest;
    while (out >> line)
        rest.push_back(line);
    ASSERT_EQ(rest.size(), 5U);
    EXPECT_EQ(rest[2], "0"); // no descriptor of the file that is open here
    EXPECT_EQ(rest[4], "0000000000000000");
    close(open7);
}

TEST(StartDetached, LeavesNoDeadProcessToWaitFor) {
    const CTempFolder folder;
    ASSERT_EQ(StartDetached(Script(folder, "echo > \"$1\"\n"), {folder.Path("out")}, ""), 0);
    WaitedFile(folder, "out");
    EXPECT_EQ(waitpid(-1, nullptr, 0), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(StartDetached, TellsWhyTheProgramDoesNotRun) {
    const CTempFolder folder;
    EXPECT_EQ(StartDetached(folder.Path("missing"), {}, ""), ENOENT);
    EXPECT_EQ(StartDetached(folder.Write("text", "just text"), {}, ""), EACCES);
    chmod(folder.Path("text").c_str(), 0755);
    EXPECT_EQ(StartDetached(folder.Path("text"), {}, ""), ENOEXEC);
    EXPECT_EQ(StartDetached(folder.Path(), {}, ""), EACCES);
    EXPECT_EQ(StartDetached(Script(folder, "true\n"), {}, folder.Path("missing")), ENOENT);
    EXPECT_EQ(waitpid(-1, nullptr, 0), -1);
}
