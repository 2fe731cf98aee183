#pragma once

#include "platform/mfc/string.h"
#include "platform/windows/find_file.h"

/// A search for files, by FindFirstFileA. FindFile starts it; each FindNextFile steps to the next find, the
/// first call to the first one, and tells whether there is one more behind it.
class CFileFind {
public:
    CFileFind() = default;
    ~CFileFind() { Close(); }
    CFileFind(const CFileFind&) = delete;
    CFileFind& operator=(const CFileFind&) = delete;

    /// TRUE when something matches the pattern (null: all of the current folder).
    BOOL FindFile(const char* pattern = nullptr);
    BOOL FindNextFile();
    void Close();

    // Of the find stepped to.
    CString GetFileName() const { return CString(m_found.cFileName); }
    /// The folder as it stood in the pattern, and the name.
    CString GetFilePath() const { return m_strFolder + m_found.cFileName; }
    /// The name without its ending.
    CString GetFileTitle() const;
    BOOL IsDirectory() const { return (m_found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0; }
    /// TRUE for "." and "..".
    BOOL IsDots() const;

private:
    HANDLE m_hSearch = INVALID_HANDLE_VALUE;
    CString m_strFolder;
    WIN32_FIND_DATAA m_found = {};
    WIN32_FIND_DATAA m_next = {};
    bool m_bNext = false;
};
