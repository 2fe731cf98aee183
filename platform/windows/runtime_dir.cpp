#include "platform/windows/runtime_dir.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool IsOwnFolder(const std::string& path, bool othersKeptOut) {
    struct stat status = {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || status.st_uid != geteuid())
        return false;
    return !othersKeptOut || (status.st_mode & 077) == 0;
}

std::string FolderBelowTemp() {
    const std::string temp = Variable("TMPDIR");
    const std::string folder = (temp.empty() ? "/tmp" : temp) + "/tervo-runtime-" + std::to_string(geteuid());
    mkdir(folder.c_str(), 0700);
    return IsOwnFolder(folder, true) ? folder : std::string();
}

} // namespace

std::string RuntimeDir() {
    const std::string given = Variable("XDG_RUNTIME_DIR");
    return !given.empty() && IsOwnFolder(given + "/.", false) ? given : FolderBelowTemp();
}

void EnsureRuntimeDir() {
    if (!Variable("XDG_RUNTIME_DIR").empty()) return;
    const std::string folder = FolderBelowTemp();
    if (!folder.empty()) setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
}
