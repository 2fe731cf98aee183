#pragma once

#include <variant>

#include "platform/ado/adodb_recordset.h"
#include "platform/mfc/string.h"

/// Which field of a recordset is meant: by name, without regard to case, or by position from 0.
class CADOField {
public:
    CADOField(const char* pszName)
        : m_key(CString(pszName)) {} // NOLINT: implicit, as callers write the name or the position
    CADOField(const CString& strName)
        : m_key(strName) {} // NOLINT: likewise
    CADOField(int nPosition)
        : m_key(nPosition) {} // NOLINT: likewise

    /// The field itself; raises CComError where there is none.
    ADODB::Field& In(ADODB::Recordset& rows) const;

private:
    std::variant<CString, int> m_key;
};
