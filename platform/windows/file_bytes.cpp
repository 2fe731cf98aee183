#include "platform/windows/file_bytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/windows/descriptor.h"

namespace {

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// Where a path leads over links, also to a file that is not there yet.
std::string LinkTarget(const std::string& path) {
    constexpr int MOST_LINKS = 40;
    namespace fs = std::filesystem;
    fs::path target = path;
    std::error_code error;
    for (int i = 0; i < MOST_LINKS && fs::is_symlink(fs::symlink_status(target, error)); ++i)
        target = target.parent_path() / fs::read_symlink(target, error);
    return target.string();
}

/// Gives the new file what the one it replaces had: its mode and, as far as this user may, its owner. A file
/// without predecessor gets the usual mode.
bool TakeOver(const std::string& path, int descriptor) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        const mode_t mask = umask(0);
        umask(mask);
        return fchmod(descriptor, 0666 & ~mask) == 0;
    }
    // Only root may give a file away; for others it becomes the writer's.
    const bool given = fchown(descriptor, status.st_uid, status.st_gid) == 0;
    return fchmod(descriptor, status.st_mode & (given ? 07777 : 0777)) == 0;
}

bool WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return false;
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// So that the new name itself survives a power cut; not every file system can.
void FlushFolder(const std::string& folder) {
    const CDescriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor) fsync(descriptor.Get());
}

} // namespace

bool ReadFileWhole(const std::string& utf8Path, std::string* bytes) {
    const CDescriptor descriptor(open(utf8Path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor) return false;
    struct stat status = {};
    std::string result;
    std::size_t filled = 0;
    // A file that says it is empty may be none on a disk; read until there is no more in any case.
    if (fstat(descriptor.Get(), &status) == 0 && status.st_size > 0)
        result.resize(static_cast<std::size_t>(status.st_size) + 1);
    for (;;) {
        if (filled == result.size()) result.resize(std::max<std::size_t>(4096, 2 * filled));
        const ssize_t got = read(descriptor.Get(), result.data() + filled, result.size() - filled);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return false;
        if (got == 0) break;
        filled += static_cast<std::size_t>(got);
    }
    result.resize(filled);
    *bytes = std::move(result);
    return true;
}

bool WriteFileWhole(const std::string& utf8Path, std::string_view bytes) {
    const std::string target = LinkTarget(utf8Path);
    const std::string folder = FolderOf(target);
    std::string beside = (folder == "." ? std::string("./") : folder) + ".tervo-XXXXXX";
    CDescriptor descriptor(mkostemp(beside.data(), O_CLOEXEC));
    if (!descriptor) return false;
    const bool written = WriteAll(descriptor.Get(), bytes) && TakeOver(target, descriptor.Get()) &&
                         fsync(descriptor.Get()) == 0 && descriptor.Close() &&
                         rename(beside.c_str(), target.c_str()) == 0;
    if (!written) {
        const int reason = errno;
        unlink(beside.c_str());
        errno = reason;
        return false;
    }
    FlushFolder(folder);
    return true;
}
