#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "tests/temp_folder.h"

/// Runs work in a process of a user without rights, and gives what it answers (0 to 255). The folder and what
/// is in it belong to that user. For a user other than root it is the user itself.
inline int AsPlainUser(const CTempFolder& folder, const std::function<int()>& fnWork) {
    constexpr uid_t nUser = 65534;
    if (geteuid() == 0) {
        if (chown(folder.Path().c_str(), nUser, nUser) != 0) return -1;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path()))
            if (lchown(entry.path().c_str(), nUser, nUser) != 0) return -1;
    }
    const pid_t nChild = fork();
    if (nChild == 0) {
        if (geteuid() == 0 && (setresgid(nUser, nUser, nUser) != 0 || setresuid(nUser, nUser, nUser) != 0))
            _exit(255);
        _exit(fnWork());
    }
    int nStatus = 0;
    if (nChild < 0 || waitpid(nChild, &nStatus, 0) != nChild || !WIFEXITED(nStatus)) return -1;
    return WEXITSTATUS(nStatus);
}
