#pragma once

#include <cstdint>

#include "platform/mfc/exception.h"

/// An error of the database layer for code that wants it thrown. The layer itself throws nothing.
class CADOException : public CException {
public:
    CADOException(std::int32_t lErrorCode, const CString& strError);

    static const CRuntimeClass classCADOException;

    const CRuntimeClass* GetRuntimeClass() const override { return &classCADOException; }
    CString GetErrorMessage() const override { return m_strError; }

    std::int32_t m_lErrorCode;
    CString m_strError;
};

/// Throws a CADOException.
[[noreturn]] void ThrowADOException(std::int32_t lErrorCode, const CString& strError);
