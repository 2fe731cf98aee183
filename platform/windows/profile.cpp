#include "platform/windows/profile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "platform/windows/code_page.h"
#include "platform/windows/descriptor.h"
#include "platform/windows/file_bytes.h"
#include "platform/windows/ini_text.h"
#include "platform/windows/path.h"

namespace {

constexpr std::chrono::seconds LOCK_PATIENCE(10);
constexpr std::chrono::milliseconds LOCK_PAUSE(5);

std::string FileText(const std::string& file) {
    std::string path;
    std::string bytes;
    if (ResolvePath("", file, &path)) ReadFileWhole(path, &bytes);
    return bytes;
}

std::string Name(const char* file) {
    return file ? file : "";
}

/// A cut text gives size - 1; where the cut left out half a character a zero stands in its place.
DWORD CopyText(std::string_view text, char* buffer, DWORD size) {
    std::fill_n(buffer, size, '\0');
    GbkCopy(buffer, size, text);
    return text.size() < size ? static_cast<DWORD>(text.size()) : size - 1;
}

DWORD CopyNames(const std::vector<std::string>& names, char* buffer, DWORD size) {
    std::fill_n(buffer, size, '\0');
    if (size < 2) return 0;
    DWORD used = 0;
    for (const std::string& name : names) {
        const DWORD room = size - 1 - used; // the list's own zero stays
        GbkCopy(buffer + used, room, name);
        if (name.size() >= room) return size - 2;
        used += static_cast<DWORD>(name.size()) + 1;
    }
    return used;
}

std::string_view WithoutTrailingBlanks(const char* text) {
    const std::string_view whole = text ? text : "";
    return whole.substr(0, whole.find_last_not_of(" \t") + 1);
}

/// The base that a value's prefix names, and the prefix's length.
std::pair<std::uint32_t, std::size_t> BaseOf(std::string_view value) {
    if (value.starts_with("0x")) return {16, 2};
    if (value.starts_with("0o")) return {8, 2};
    if (value.starts_with("0b")) return {2, 2};
    return {10, 0};
}

/// What the character stands for in a number; 16 or more for one that is no digit of any base.
std::uint32_t DigitOf(char character) {
    if (character >= '0' && character <= '9') return static_cast<std::uint32_t>(character - '0');
    const char lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? static_cast<std::uint32_t>(lower - 'a') + 10 : 16;
}

/// The whole number that the value begins with, modulo 2^32; 0 without one.
std::uint32_t LeadingNumber(std::string_view value) {
    const bool negative = value.starts_with('-');
    if (negative || value.starts_with('+')) value.remove_prefix(1);
    const auto [base, prefix] = BaseOf(value);
    std::uint32_t number = 0;
    for (const char character : value.substr(prefix)) {
        const std::uint32_t digit = DigitOf(character);
        if (digit >= base) break;
        number = number * base + digit;
    }
    return negative ? 0U - number : number;
}

/// Tells the first bytes that are no character, for which a write is refused. False where there are none.
bool TellBrokenText(const char* file, std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto length =
            static_cast<std::size_t>(GbkCharLength(text.data() + i, text.data() + text.size()));
        std::string utf8;
        if (!GbkToUtf8(text.substr(i, length), &utf8)) {
            std::fprintf(stderr, "%s: the byte %02X in \"%s\" is no character of the system code page\n",
                         ToUtf8(file).c_str(), static_cast<unsigned>(static_cast<unsigned char>(text[i])),
                         ToUtf8(text).c_str());
            return true;
        }
        i += length;
    }
    return false;
}

bool IsStillTheFile(const CDescriptor& descriptor, const std::string& path) {
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor.Get(), &opened) == 0 && stat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// Opens (or makes) the file and locks it. Each writer puts a new file in its place, so a lock counts only
/// while the locked file still has the name.
CDescriptor LockFile(const std::string& path) {
    const auto deadline = std::chrono::steady_clock::now() + LOCK_PATIENCE;
    do {
        CDescriptor descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
        if (!descriptor) return descriptor;
        if (flock(descriptor.Get(), LOCK_EX | LOCK_NB) == 0) {
            if (IsStillTheFile(descriptor, path)) return descriptor;
        } else {
            std::this_thread::sleep_for(LOCK_PAUSE);
        }
    } while (std::chrono::steady_clock::now() < deadline);
    return {};
}

} // namespace

CProfile::CProfile(std::string file)
    : m_strFile(std::move(file))
    , m_text(FileText(m_strFile)) {}

std::optional<std::string> CProfile::Value(const char* section, const char* key) const {
    std::optional<std::string> value = m_text.Value(section, key);
    if (!value && !m_text.Refused().empty())
        std::fprintf(stderr, "%s: [%s] %s: the system code page has no character %s\n",
                     ToUtf8(m_strFile).c_str(), ToUtf8(section).c_str(), ToUtf8(key).c_str(),
                     m_text.Refused().c_str());
    return value;
}

UINT CProfile::Number(const char* section, const char* key, int defaultValue) const {
    const std::optional<std::string> value = Value(section, key);
    if (!value || value->empty()) return static_cast<UINT>(defaultValue);
    return LeadingNumber(*value);
}

DWORD GetPrivateProfileStringA(const char* section, const char* key, const char* defaultText, char* buffer,
                               DWORD size, const char* file) {
    if (!buffer || !size) return 0;
    const CProfile profile(Name(file));
    if (!section || !key) {
        const std::vector<std::string> names =
            section ? profile.Text().Keys(section) : profile.Text().Sections();
        return names.empty() ? CopyText(WithoutTrailingBlanks(defaultText), buffer, size)
                             : CopyNames(names, buffer, size);
    }
    const std::optional<std::string> value = profile.Value(section, key);
    return CopyText(value ? std::string_view(*value) : WithoutTrailingBlanks(defaultText), buffer, size);
}

UINT GetPrivateProfileIntA(const char* section, const char* key, int defaultValue, const char* file) {
    if (!section || !key) return static_cast<UINT>(defaultValue);
    return CProfile(Name(file)).Number(section, key, defaultValue);
}

BOOL WritePrivateProfileStringA(const char* section, const char* key, const char* text, const char* file) {
    std::string path;
    if (!section || !file) return FALSE;
    const bool exists = ResolvePath("", file, &path);
    if (path.empty()) return FALSE;
    for (const char* part : {section, key, key ? text : nullptr})
        if (part && TellBrokenText(file, part)) return FALSE;
    if (!exists && !(key && text)) return TRUE; // nothing to remove, and no file to make for it
    if (!CIniText("").Set(section, key ? key : "k", key && text ? text : "")) return FALSE;
    const CDescriptor lock = LockFile(path);
    std::string before;
    if (!lock || !ReadFileWhole(path, &before)) return FALSE;
    CIniText ini(before);
    if (!key) {
        ini.RemoveSection(section);
    } else if (!text) {
        ini.Remove(section, key);
    } else if (!ini.Set(section, key, text)) {
        return FALSE;
    }
    const std::string after = ini.Bytes();
    return after == before || WriteFileWhole(path, after);
}
