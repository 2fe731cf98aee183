#include "host/files/drawing_storage.h"

#include "platform/windows/file_bytes.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Refuse(const std::string& strReason) {
    throw CDrawingFailure(Acad::eFileAccessErr, strReason);
}

/// What a path stands for, links followed; throws when that cannot be found out.
fs::file_status StatusOf(const std::string& utf8Path) {
    std::error_code error;
    const fs::file_status status = fs::status(utf8Path, error);
    if (status.type() == fs::file_type::none) Refuse(error.message());
    return status;
}

void CheckOrdinary(const fs::file_status& status) {
    if (fs::is_directory(status)) Refuse("it is a folder");
    if (!fs::is_regular_file(status)) Refuse("it is no ordinary file");
}

void CheckReplaceable(const std::string& utf8Path) {
    const fs::file_status status = StatusOf(utf8Path);
    std::error_code error;
    if (fs::exists(status)) {
        CheckOrdinary(status);
        constexpr fs::perms anyWrite =
            fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
        // To root every file is open; one that nobody may write is meant to stay.
        if ((status.permissions() & anyWrite) == fs::perms::none || access(utf8Path.c_str(), W_OK) != 0)
            Refuse("it is write-protected");
    } else if (fs::is_symlink(fs::symlink_status(utf8Path, error))) {
        Refuse("it is a link to " + fs::read_symlink(utf8Path, error).string() + ", which is not there");
    }
}

} // namespace

CReadDrawing LoadDrawing(const std::string& utf8Path, const CReadGoesOn& fnGoesOn) {
    const fs::file_status status = StatusOf(utf8Path);
    if (!fs::exists(status)) throw CDrawingFailure(Acad::eFileNotFound, "there is no such file");
    CheckOrdinary(status);
    std::string strBytes;
    if (!ReadFileWhole(utf8Path, &strBytes)) Refuse(std::strerror(errno));
    return ReadDrawing(strBytes, fnGoesOn);
}

void StoreDrawing(const std::string& utf8Path, std::string_view bytes) {
    CheckReplaceable(utf8Path);
    if (WriteFileWithBackup(utf8Path, bytes)) return;
    // The target is none, so it is what stands under the backup's name.
    Refuse(errno == EISDIR ? "its backup's name is a folder's" : std::strerror(errno));
}
