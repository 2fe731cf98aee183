#pragma once

#include <optional>
#include <string>

#include "platform/windows/ini_text.h"
#include "platform/windows/types.h"

// Ini files. Section, key, text and path are in the code page; the path is taken with either slash and in any
// case. Nothing is kept between calls, so that what another process wrote is seen.

/// Copies the value of a key, or the default (null: empty; its trailing blanks are left out) when there is
/// none, into buffer of size bytes. Returns the bytes copied without the ending zero; a value that is too
/// long is cut at a character and gives size - 1. With a null key the buffer gets the names of the section's
/// keys, with a null section those of the sections, each ended by a zero and the list by one more; a list
/// that is too long is cut likewise and gives size - 2. A value with a character that the code page lacks is
/// told on standard error, by that character, and counts as missing.
DWORD GetPrivateProfileStringA(const char* section, const char* key, const char* defaultText, char* buffer,
                               DWORD size, const char* file);

/// The whole number that the value begins with: a sign, then decimal digits, or digits of base 16, 8 or 2
/// behind 0x, 0o or 0b, taken modulo 2^32; 0 for other text, the default for a missing or empty value.
UINT GetPrivateProfileIntA(const char* section, const char* key, int defaultValue, const char* file);

/// An ini file as it stands now, read once for a caller that wants several of its values.
class CProfile {
public:
    explicit CProfile(std::string file);

    /// The whole value, or nothing; a character that the code page lacks is told as above.
    std::optional<std::string> Value(const char* section, const char* key) const;
    /// The number as GetPrivateProfileIntA gives it.
    UINT Number(const char* section, const char* key, int defaultValue) const;
    const CIniText& Text() const { return m_text; }

private:
    std::string m_strFile;
    CIniText m_text;
};

/// Sets a key; removes it with a null text, or the section with a null key. Other lines stay as they are,
/// byte for byte, and so does the file's encoding; a new file is in the code page. The file is replaced
/// whole, under a lock on the file itself: of two processes that write at once neither loses a key. FALSE,
/// and nothing written, for a null section, a folder that is not there, a file that cannot be written or
/// stays locked for 10 s, and for names and texts that could not be read back (see CIniText::Set); bytes that
/// are no character are told on standard error.
BOOL WritePrivateProfileStringA(const char* section, const char* key, const char* text, const char* file);
