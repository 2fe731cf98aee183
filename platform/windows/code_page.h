#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/windows/types.h"

// The system code page is 936 (GBK): all narrow text in the process is written in it.

constexpr UINT CP_ACP = 0;
constexpr UINT CP_GBK = 936;
constexpr DWORD MB_PRECOMPOSED = 0x1;
constexpr DWORD MB_ERR_INVALID_CHARS = 0x8;
constexpr DWORD WC_NO_BEST_FIT_CHARS = 0x400;

/// Converts code page text to UTF-8. False when bytes are no character; *utf8 is untouched then.
bool GbkToUtf8(std::string_view gbk, std::string* utf8);

/// Converts UTF-8 to the code page. False when a character is not in it or the bytes are no UTF-8; *gbk is
/// untouched then and *refused, if given, is the first such character in UTF-8 (U+FFFD for broken bytes).
bool Utf8ToGbk(std::string_view utf8, std::string* gbk, std::string* refused = nullptr);

/// Code page text as UTF-8 for output; bytes that are no character become U+FFFD.
std::string ToUtf8(std::string_view gbk);

/// Code page text as wide text, one wchar_t a character; bytes that are no character become U+FFFD.
std::wstring WideFromGbk(std::string_view gbk);

/// Wide text in the code page; a character that is not in it becomes '?'.
std::string GbkFromWide(std::wstring_view wide);

/// True for text of one-byte characters alone, the same bytes in either code.
bool IsAscii(std::string_view text);

/// Bytes of the character at text (a zero ends the text): 2 for a lead byte with its trail byte, else 1.
int GbkCharLength(const char* text);

/// The same for a text that ends before end; text < end.
int GbkCharLength(const char* text, const char* end);

/// The largest cut of the zero-ended text that takes at most maxBytes and divides no double-byte character.
std::size_t GbkSafeLength(const char* text, std::size_t maxBytes);

/// Copies text into buffer of size bytes with its ending zero, cut at a character. Returns the bytes copied
/// without the zero; does nothing for size 0.
std::size_t GbkCopy(char* buffer, std::size_t size, std::string_view text);

/// Takes the UTF-8 character at *position and moves past it. False, and nothing moved, at broken bytes
/// (overlong forms and surrogates too); *position < text.size().
bool NextUtf8(std::string_view text, std::size_t* position, char32_t* character);

/// True for text beyond ASCII that is UTF-8 without a character of two bytes: common pairs of the code page
/// look like those. For files that do not say what they are in.
bool LooksLikeUtf8(std::string_view bytes);

/// Appends a character in UTF-8.
void AppendUtf8(char32_t character, std::string* utf8);

/// Narrow to wide for code pages CP_ACP and 936. textBytes -1 takes the text up to and with its ending zero.
/// Returns the characters written, or needed when wideCount is 0; 0 on a buffer too small, an unknown code
/// page, and bytes that are no character with MB_ERR_INVALID_CHARS (else such a byte gives U+FFFD).
int MultiByteToWideChar(UINT codePage, DWORD flags, const char* text, int textBytes, wchar_t* wide,
                        int wideCount);

/// Wide to narrow, likewise. A character that is not in the code page gives *defaultChar ('?' when null), and
/// *usedDefault, if given, becomes TRUE.
int WideCharToMultiByte(UINT codePage, DWORD flags, const wchar_t* wide, int wideCount, char* text,
                        int textBytes, const char* defaultChar, BOOL* usedDefault);
