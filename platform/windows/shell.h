#pragma once

#include "platform/windows/types.h"

// Opening a program, a document or an address as the desktop does.

constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOW = 5;

// What stands in place of an instance when nothing was opened; none is above 32.
constexpr int SE_ERR_FNF = 2;          ///< there is no such file
constexpr int SE_ERR_PNF = 3;          ///< there is no such folder
constexpr int SE_ERR_ACCESSDENIED = 5; ///< the file may not be run or read
constexpr int SE_ERR_NOASSOC = 31;     ///< no operation of that name, or nothing that opens such a file

/// Opens file and does not wait for it. Texts are in the code page; operation is "open" or null, in any case.
/// A path is taken with either slash and in any case, a relative one below directory (null: the current
/// folder), one without folder also in the folders of PATH. A program, which an `.exe` in its name or its
/// first bytes tell, is started with parameters divided as a Windows program finds them, in directory, in a
/// session of its own; of `name.exe` and `name` the one that is there is meant. Folders, documents and
/// addresses (`scheme:...`) go to xdg-open. The result, as a number, is above 32 on success, else one of the
/// SE_ERR above; owner and show have no meaning here.
HINSTANCE ShellExecuteA(HWND owner, const char* operation, const char* file, const char* parameters,
                        const char* directory, int show);
