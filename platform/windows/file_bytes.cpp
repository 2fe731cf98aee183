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

/// Where a path leads over links, also to a file that is not there yet. Empty, with errno, when they go
/// round.
std::string LinkTarget(const std::string& path) {
    constexpr int MOST_LINKS = 40;
    namespace fs = std::filesystem;
    fs::path target = path;
    std::error_code error;
    for (int i = 0; i < MOST_LINKS; ++i) {
        if (!fs::is_symlink(fs::symlink_status(target, error))) return target.string();
        target = target.parent_path() / fs::read_symlink(target, error);
    }
    errno = ELOOP;
    return {};
}

/// Gives the new file what the one that it follows has: its mode and, as far as this user may, its owner.
/// Where there is none it gets the usual mode.
bool TakeOver(const std::string& former, int descriptor) {
    struct stat status = {};
    if (stat(former.c_str(), &status) != 0) {
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

/// Removes a file and leaves errno as it is.
void Discard(const std::string& path) {
    const int reason = errno;
    unlink(path.c_str());
    errno = reason;
}

/// Writes a file of some new name beside the target, up to the disk, with what former has of mode and owner.
/// The file's path; empty, with errno, and nothing left, when it fails.
std::string WriteBeside(const std::string& target, std::string_view bytes, const std::string& former) {
    const std::string folder = FolderOf(target);
    std::string beside = (folder == "." ? std::string("./") : folder) + ".tervo-XXXXXX";
    CDescriptor descriptor(mkostemp(beside.data(), O_CLOEXEC));
    if (!descriptor) return {};
    if (WriteAll(descriptor.Get(), bytes) && TakeOver(former, descriptor.Get()) &&
        fsync(descriptor.Get()) == 0 && descriptor.Close())
        return beside;
    Discard(beside);
    return {};
}

/// One step: the name stands for the former file up to it, for the new one from then on.
bool Rename(const std::string& path, const std::string& target) {
    if (rename(path.c_str(), target.c_str()) == 0) return true;
    Discard(path);
    return false;
}

/// The target's name with the ending .bak, never the target's own.
std::string BackupOf(const std::string& target) {
    const std::filesystem::path backup = std::filesystem::path(target).replace_extension(".bak");
    return backup == target ? target + ".bak" : backup.string();
}

bool CopyToBackup(const std::string& target) {
    std::string former;
    if (!ReadFileWhole(target, &former)) return false;
    const std::string beside = WriteBeside(BackupOf(target), former, target);
    return !beside.empty() && Rename(beside, BackupOf(target));
}

/// Lets the target's file, if there is one, stand under its backup's name too, by way of a spare one.
bool KeepAsBackup(const std::string& target, const std::string& spare) {
    if (link(target.c_str(), spare.c_str()) != 0)
        return errno == ENOENT || CopyToBackup(target); // not every file system has second names
    if (!Rename(spare, BackupOf(target))) return false;
    unlink(spare.c_str()); // which stays when the backup's name stood for the same file already
    return true;
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
    if (target.empty()) return false;
    const std::string beside = WriteBeside(target, bytes, target);
    if (beside.empty() || !Rename(beside, target)) return false;
    FlushFolder(FolderOf(target));
    return true;
}

bool WriteFileWithBackup(const std::string& utf8Path, std::string_view bytes) {
    const std::string target = LinkTarget(utf8Path);
    if (target.empty()) return false;
    const std::string beside = WriteBeside(target, bytes, target);
    if (beside.empty()) return false;
    if (!KeepAsBackup(target, beside + "-")) {
        Discard(beside);
        return false;
    }
    if (!Rename(beside, target)) return false;
    FlushFolder(FolderOf(target));
    return true;
}
