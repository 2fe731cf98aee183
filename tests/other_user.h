#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "tests/temp_folder.h"

inline constexpr uid_t g_nPlainUser = 65534;

/// Runs work in a process of its own, and gives what it answers (0 to 255), -1 when the process failed.
inline int InChild(const std::function<int()>& fnWork) {
    const pid_t nChild = fork();
    if (nChild == 0) _exit(fnWork());
    int nStatus = 0;
    if (nChild < 0 || waitpid(nChild, &nStatus, 0) != nChild || !WIFEXITED(nStatus)) return -1;
    return WEXITSTATUS(nStatus);
}

/// The same as a user without rights; for a user other than root it is the user itself.
inline int AsPlainUser(const std::function<int()>& fnWork) {
    return InChild([&fnWork] {
        if (geteuid() == 0 && (setresgid(g_nPlainUser, g_nPlainUser, g_nPlainUser) != 0 ||
                               setresuid(g_nPlainUser, g_nPlainUser, g_nPlainUser) != 0))
            return 255;
        return fnWork();
    });
}

/// The same; the folder and what is in it belong to that user.
inline int AsPlainUser(const CTempFolder& folder, const std::function<int()>& fnWork) {
    if (geteuid() == 0) {
        if (chown(folder.Path().c_str(), g_nPlainUser, g_nPlainUser) != 0) return -1;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path()))
            if (lchown(entry.path().c_str(), g_nPlainUser, g_nPlainUser) != 0) return -1;
    }
    return AsPlainUser(fnWork);
}
