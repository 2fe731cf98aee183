#pragma once

#include "platform/windows/types.h"

constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x1;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;

/// What a search found: the name without its folder, in the code page.
struct WIN32_FIND_DATAA {
    DWORD dwFileAttributes;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    char cFileName[MAX_PATH];
};

extern const HANDLE INVALID_HANDLE_VALUE;

/// Finds the first file or folder of a pattern: a path in the code page, with either slash and in any case,
/// whose last name may hold '*' and '?' (see wildcards.h). INVALID_HANDLE_VALUE when there is none, and for a
/// name with a character that no file name has (| < > : and the double quote). Files whose names the code
/// page lacks are passed over. The order is that of the names in capitals.
HANDLE FindFirstFileA(const char* pattern, WIN32_FIND_DATAA* data);

/// FALSE when there is no further one.
BOOL FindNextFileA(HANDLE search, WIN32_FIND_DATAA* data);

/// FALSE when search is none.
BOOL FindClose(HANDLE search);
