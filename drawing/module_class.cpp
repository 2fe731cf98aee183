#include "drawing/module_class.h"

#include "platform/acad/field_table.h"
#include "platform/acad/rx_registry.h"

namespace {
constexpr const ACHAR* g_pParent = L"AcDbEntity";
constexpr int g_nDwgVersion = 31;
constexpr int g_nMaintenanceVersion = 55;
constexpr int g_nProxyFlags = 255;
} // namespace

AcRxClass* CModuleClass::Desc() {
    if (!m_pClass) {
        const auto* pDictionary = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
        m_pClass = static_cast<AcRxClass*>(pDictionary->at(m_pName));
    }
    return m_pClass;
}

void CModuleClass::Register(AcRxPseudoConstructor pConstructor, CFieldTable* pFields) {
    if (Desc()) return;
    m_pClass = newAcRxClass(m_pName, g_pParent, g_nDwgVersion, g_nMaintenanceVersion, g_nProxyFlags,
                            pConstructor, m_pDxfName, m_pDxfName);
    if (m_pClass) m_pClass->addX(CFieldTable::desc(), pFields);
}

void CModuleClass::Unregister() {
    if (!Desc()) return;
    m_pClass->delX(CFieldTable::desc());
    deleteAcRxClass(m_pClass);
    m_pClass = nullptr;
}
