#pragma once

#include "platform/mfc/runtime_class.h"
#include "platform/mfc/string.h"
#include "platform/windows/types.h"

/// The base of everything that is thrown. It is thrown as a value and caught by reference.
class CException {
public:
    virtual ~CException() = default;

    static const CRuntimeClass classCException;

    virtual const CRuntimeClass* GetRuntimeClass() const { return &classCException; }
    /// What happened, for the user; empty where nothing is known.
    virtual CString GetErrorMessage() const { return {}; }

    /// Whether it is of the class or of one derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
};

/// A value that cannot be: a date without its day, for one.
class CInvalidArgException : public CException {
public:
    static const CRuntimeClass classCInvalidArgException;

    const CRuntimeClass* GetRuntimeClass() const override { return &classCInvalidArgException; }
};
