#include "platform/acad/rx_registry.h"

#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/rx_class.h"

ACRX_DEFINE_DESC(AcRxDictionary, AcRxObject)

AcRxObject* AcRxDictionary::at(const ACHAR* key) const {
    if (!key) return nullptr;
    const auto found = m_mapEntries.find(key);
    return found == m_mapEntries.end() ? nullptr : found->second;
}

AcRxObject* AcRxDictionary::atPut(const ACHAR* key, AcRxObject* pObject) {
    if (!key || !pObject) return nullptr;
    AcRxObject*& pPlace = m_mapEntries[key];
    AcRxObject* const pFormer = pPlace;
    pPlace = pObject;
    return pFormer;
}

AcRxObject* AcRxDictionary::remove(const ACHAR* key) {
    AcRxObject* const pFormer = at(key);
    if (pFormer) m_mapEntries.erase(key);
    return pFormer;
}

namespace {

/// The registry with the services it names.
struct CSystemRegistry {
    AcRxDictionary m_registry, m_classes;
    AcRxDynamicLinker m_linker;
    AcEditor m_editor;
    AcEdCommandStack m_commands;

    CSystemRegistry() {
        m_registry.atPut(ACRX_DYNAMIC_LINKER, &m_linker);
        m_registry.atPut(ACED_EDITOR_OBJ, &m_editor);
        m_registry.atPut(ACRX_COMMAND_DOCK, &m_commands);
        m_registry.atPut(ACDB_CLASS_DICTIONARY, &m_classes);
    }
};

} // namespace

AcRxDictionary* acrxSysRegistry() {
    // Never destroyed: static objects of programs and modules may still unregister while the process ends.
    static CSystemRegistry* const pSystem = new CSystemRegistry;
    CPlatformClass::EnterAll(pSystem->m_classes);
    return &pSystem->m_registry;
}

AcRxDynamicLinker* acrxDynamicLinker() {
    return static_cast<AcRxDynamicLinker*>(acrxSysRegistry()->at(ACRX_DYNAMIC_LINKER));
}
