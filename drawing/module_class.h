#pragma once

#include "platform/acad/rx_class.h"

class CFieldTable;

/// The descriptor of one of the module's entity classes, looked up when it is first asked for. Both names of
/// a class in files, its DXF name and its application's, are the same.
class CModuleClass {
public:
    constexpr CModuleClass(const ACHAR* name, const ACHAR* dxfName)
        : m_pName(name)
        , m_pDxfName(dxfName) {}

    AcRxClass* Desc(); ///< null while the class isn't known
    /// Makes the class known, with its field table hung on the descriptor; one known already stays as it is.
    void Register(AcRxPseudoConstructor pConstructor, CFieldTable* pFields);
    void Unregister();

private:
    const ACHAR* m_pName;
    const ACHAR* m_pDxfName;
    AcRxClass* m_pClass = nullptr;
};
