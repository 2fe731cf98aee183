#include "platform/windows/shell.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/argument_words.h"
#include "platform/windows/code_page.h"
#include "platform/windows/detached_process.h"
#include "platform/windows/path.h"

namespace {

constexpr int STARTED = 33;
constexpr std::string_view PROGRAM_ENDING = ".exe";

bool IsFolder(const std::string& utf8Path) {
    struct stat status = {};
    return stat(utf8Path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool HasProgramEnding(std::string_view name) {
    return name.size() > PROGRAM_ENDING.size() &&
           SameFileName(name.substr(name.size() - PROGRAM_ENDING.size()), PROGRAM_ENDING);
}

bool HasEnding(std::string_view path) {
    const std::size_t slash = LastSlash(path);
    return path.substr(slash == std::string_view::npos ? 0 : slash + 1).find('.') != std::string_view::npos;
}

/// True for `scheme:`; a single letter is a drive.
bool IsAddress(std::string_view file) {
    const std::size_t colon = file.find(':');
    const auto isLetter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
    return colon != std::string_view::npos && colon >= 2 && isLetter(file.front()) &&
           std::all_of(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(colon), [&](char c) {
               return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
           });
}

/// The file below the folder under its own name, or without the ending of a program, or with it.
bool FindBelow(std::string_view folder, const std::string& file, std::string* utf8) {
    std::string other;
    if (HasProgramEnding(file)) {
        other = file.substr(0, file.size() - PROGRAM_ENDING.size());
    } else if (!HasEnding(file)) {
        other = file + std::string(PROGRAM_ENDING);
    }
    std::string found;
    const bool hasName = ResolvePath(folder, file, utf8);
    if (hasName && (other.empty() || !IsFolder(*utf8))) return true;
    if (other.empty() || !ResolvePath(folder, other, &found) || IsFolder(found)) return hasName;
    *utf8 = found;
    return true;
}

/// Program of that name (code page) in the folders of PATH.
bool FindInPath(const std::string& file, std::string* utf8) {
    const char* variable = std::getenv("PATH");
    std::string_view folders = variable ? variable : "";
    while (!folders.empty()) {
        const std::size_t end = std::min(folders.find(':'), folders.size());
        std::string folder;
        std::string found;
        if (end > 0 && Utf8ToGbk(folders.substr(0, end), &folder) && FindBelow(folder, file, &found) &&
            !IsFolder(found) && access(found.c_str(), X_OK) == 0) {
            *utf8 = found;
            return true;
        }
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    return false;
}

bool IsProgram(std::string_view file, const std::string& utf8Path) {
    if (HasProgramEnding(file) || HasProgramEnding(utf8Path)) return true;
    if (access(utf8Path.c_str(), X_OK) != 0) return false;
    std::array<char, 4> start = {};
    std::ifstream(utf8Path, std::ios::binary).read(start.data(), start.size());
    const std::string_view bytes(start.data(), start.size());
    return bytes.starts_with("\x7F\x45LF") || bytes.starts_with("#!");
}

int CodeOf(int reason) {
    switch (reason) {
    case 0:
        return STARTED;
    case ENOENT:
        return SE_ERR_FNF;
    case ENOTDIR:
        return SE_ERR_PNF;
    case ENOEXEC:
        return SE_ERR_NOASSOC;
    default:
        return SE_ERR_ACCESSDENIED;
    }
}

/// Leaves a document or an address (UTF-8) to the desktop.
int OpenByDesktop(const std::string& what, const std::string& folder) {
    std::string opener;
    return FindInPath("xdg-open", &opener) ? CodeOf(StartDetached(opener, {what}, folder)) : SE_ERR_NOASSOC;
}

int OpenFile(const std::string& file, const std::string& parameters, const std::string& directory,
             const std::string& folder) {
    std::string path;
    const bool found = FindBelow(directory, file, &path) ||
                       (LastSlash(file) == std::string_view::npos && FindInPath(file, &path));
    const std::size_t slash = path.rfind('/');
    if (!found) return slash == path.npos || IsFolder(path.substr(0, slash + 1)) ? SE_ERR_FNF : SE_ERR_PNF;
    path = std::filesystem::absolute(path).string(); // it is started in another folder
    if (access(path.c_str(), R_OK) != 0 && access(path.c_str(), X_OK) != 0) return SE_ERR_ACCESSDENIED;
    if (IsFolder(path) || !IsProgram(file, path)) return OpenByDesktop(path, folder);
    const int reason = StartDetached(path, ArgumentWords(parameters), folder);
    // A program of another system may have something here that runs it.
    return reason == ENOEXEC ? OpenByDesktop(path, folder) : CodeOf(reason);
}

int Open(const std::string& file, const char* parameters, const char* directory) {
    std::string words;
    std::string address;
    std::string folder;
    if (!GbkToUtf8(parameters ? parameters : "", &words) || !GbkToUtf8(file, &address)) return SE_ERR_FNF;
    const std::string below = directory ? directory : "";
    if (!below.empty() && (!ResolvePath("", below, &folder) || !IsFolder(folder))) return SE_ERR_PNF;
    return IsAddress(address) ? OpenByDesktop(address, folder) : OpenFile(file, words, below, folder);
}

} // namespace

HINSTANCE ShellExecuteA(HWND, const char* operation, const char* file, const char* parameters,
                        const char* directory, int) {
    int code = SE_ERR_NOASSOC;
    if (!operation || !*operation || SameFileName(operation, "open"))
        code = file && *file ? Open(file, parameters, directory) : SE_ERR_FNF;
    return std::bit_cast<HINSTANCE>(static_cast<INT_PTR>(code));
}
