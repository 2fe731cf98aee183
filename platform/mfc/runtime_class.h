#pragma once

class CWnd;

/// What is known of a class at run time. It is found by its name while the record lives.
struct CRuntimeClass {
    using CCreate = CWnd* (*)();

    CRuntimeClass(const char* name, const CRuntimeClass* pBaseClass, CCreate pCreate = nullptr);
    ~CRuntimeClass();
    CRuntimeClass(const CRuntimeClass&) = delete;
    CRuntimeClass& operator=(const CRuntimeClass&) = delete;

    const char* const m_lpszClassName;
    const CRuntimeClass* const m_pBaseClass; ///< null for a class whose base has no record
    const CCreate m_pfnCreateObject;         ///< null for a class that is not made by name

    /// A new object, which is the caller's; null for a class that is not made by name.
    CWnd* CreateObject() const { return m_pfnCreateObject ? m_pfnCreateObject() : nullptr; }

    static const CRuntimeClass* FromName(const char* name); ///< null when there is none
    static CWnd* CreateObject(const char* name);
};
