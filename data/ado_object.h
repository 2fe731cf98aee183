#pragma once

#include "platform/ado/com_error.h"
#include "platform/mfc/string.h"
#include "platform/windows/types.h"

/// What the wrappers of the database objects share: no error gets out of an operation. It is kept, as text
/// and code, until the next one; the operation answers 0, and the object stays usable.
class CADOObject {
public:
    CADOObject(const CADOObject&) = delete;
    CADOObject& operator=(const CADOObject&) = delete;

    /// The last error, in lines: what was tried, then code, meaning, source and description. Empty when
    /// there was none.
    const CString& GetLastErrorString() const { return m_strLastError; }
    DWORD GetLastErrorCode() const { return m_dwLastError; }

protected:
    /// pszClass is the name that stands in the texts.
    explicit CADOObject(const char* pszClass)
        : m_pszClass(pszClass) {}
    ~CADOObject() = default;

    /// What goes before the text of an error.
    virtual CString ErrorPrefix() const { return {}; }

    /// Makes calls of database objects: 1, or 0 when one of them raised an error, which is kept.
    template <class Calls>
    int Attempt(const Calls& calls) {
        try {
            calls();
            return 1;
        } catch (const CComError& error) {
            KeepError(error);
            return 0;
        }
    }

private:
    void KeepError(const CComError& error);

    const char* m_pszClass;
    CString m_strLastError;
    DWORD m_dwLastError = 0;
};
