#include "platform/mfc/file_find.h"

#include "platform/windows/path.h"

BOOL CFileFind::FindFile(const char* pattern) {
    Close();
    const CString wanted(pattern ? pattern : "*.*");
    const std::size_t slash = LastSlash(wanted.View());
    m_strFolder = slash == std::string_view::npos ? CString() : wanted.Left(static_cast<int>(slash) + 1);
    m_hSearch = FindFirstFileA(wanted, &m_next);
    m_bNext = m_hSearch != INVALID_HANDLE_VALUE;
    return m_bNext;
}

BOOL CFileFind::FindNextFile() {
    if (!m_bNext) return FALSE;
    m_found = m_next;
    m_bNext = FindNextFileA(m_hSearch, &m_next) != FALSE;
    return m_bNext;
}

void CFileFind::Close() {
    if (m_hSearch != INVALID_HANDLE_VALUE) FindClose(m_hSearch);
    m_hSearch = INVALID_HANDLE_VALUE;
    m_bNext = false;
    m_found = {};
}

CString CFileFind::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

BOOL CFileFind::IsDots() const {
    const CString name = GetFileName();
    return IsDirectory() && (name == "." || name == "..");
}
